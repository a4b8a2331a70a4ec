#pragma once

#include <directfb.h>
#include <vector>

/// Plain restatements of the ellipse routines, without any thought of speed, to hold the library's against.
namespace reference {

/// Pixels of one row that an ellipse fill stores one after the other.
struct Span {
    int left, row, width;
};

struct Fill {
    std::vector<Span> spans;
    DFBRectangle block;         ///< The central block, as it is handed to FillRectangle.
};

/// The filled ellipse of a box, cut to a clip.
class EllipseFill {
public:
    EllipseFill(const DFBRectangle& rect, const DFBRectangle& clip);

    Fill fill;

private:
    void walk_flat_part();
    void walk_steep_part();
    void cap_spans(double half_width);
    void side_spans(double column);
    void rows_of(int left, int width);
    void add_block();

    DFBRectangle rect_, clip_;
    double a_, b_, cx_, cy_, a2_, b2_;
    double x_, y_;              ///< The current boundary point.
    double xe_ = 0, ye_ = 0;    ///< Where the flat part ended.
};

/// Every pixel that the one-pixel outline of a box stores, in order, repeated ones included.
std::vector<DFBPoint> outline_pixels(const DFBRectangle& rect);

/// Every point that the ellipse stamper stamps, in order, before the shift by half the pen.
std::vector<DFBPoint> stamp_points(const DFBRectangle& rect);

} // namespace reference
