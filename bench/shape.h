#ifndef BENCH_SHAPE_H
#define BENCH_SHAPE_H

#include <vector>

namespace bench {

struct Box {
    int x, y, w, h;
};

struct Point {
    int x, y;
};

enum class Figure { ellipse, rectangle, polygon, line };

/// Thin is one pixel wide, thick is drawn with a pen of 5 x 5 pixels.
enum class Style { filled, thin, thick };

enum class Paint { opaque, translucent, textured };

/// What is drawn, in the toolkit's words.
struct Shape {
    Figure figure;
    Style style;
    Paint paint;
    Box box;                    ///< Of ellipses and rectangles.
    std::vector<Point> points;  ///< Corners of polygons, both ends of lines.
};

/// Neighbouring pixels of one row.
struct Run {
    int row, left, width;
};

/// A shape, and the pixels that it covers when the toolkit draws it in software.
struct Task {
    Shape shape;
    std::vector<Run> runs;
    Box bounds;
    long pixels;
};

} // namespace bench

#endif
