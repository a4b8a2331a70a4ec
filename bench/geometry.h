#ifndef BENCH_GEOMETRY_H
#define BENCH_GEOMETRY_H

#include "shape.h"

namespace bench {

/// An ellipse in real coordinates, where pixel (0, 0) is the square from 0 to 1.
struct EllipseAxes {
    double cx, cy, a, b;
};

/// The ellipse whose inside or whose centre line covers the pixels of @p task.
EllipseAxes ellipse_axes(const Task& task);

/// The same ellipse for libraries that take a whole pixel as the centre and reach @p a and @p b pixels further.
struct WholeEllipse {
    int cx, cy, a, b;
};

WholeEllipse whole_ellipse(const Task& task);

/// The width of a round stroke with as many pixels as the task has. On a slope a square pen leaves more than its width.
double stroke_width(const Task& task);

} // namespace bench

#endif
