#ifndef DTK_RASTER_ELLIPSE_WALK_H
#define DTK_RASTER_ELLIPSE_WALK_H

#include "geometry/ellipse_steps.h"

#include <directfb.h>

namespace dtk {

/// A quarter of an ellipse with the half axes a = width / 2 and b = height / 2, walked from its pole to its middle.
struct QuarterEllipse {
    long long width;
    long long height;
    long long start; ///< Twice the distance of the walk's first row from the centre.
};

/// Walks a quarter ellipse. `Number` is what the decision value is computed in.
///
/// From the pole x grows by one pixel a step while the outline is flat, and `flat(x, rows, turned)` is called after each
/// step: how many rows the walk has left behind, and whether this step left one. Then a row is left behind with every
/// step while the outline is steep, and `steep(x, rows)` is called.
template <typename Number, typename Flat, typename Steep>
void walk_quarter_in(const QuarterEllipse& quarter, Flat&& flat, Steep&& steep)
{
    const auto width = static_cast<Number>(quarter.width);
    const auto height = static_cast<Number>(quarter.height);
    const Number a2 = width * width;
    const Number b2 = height * height;
    long long x = 0, rows = 0;

    for (FlatSteps<Number> steps(height, a2, b2, quarter.start); steps.is_flat();) {
        const bool turned = steps.step();
        ++x;
        rows += turned;
        flat(x, rows, turned);
    }

    long long y = quarter.start - 2 * rows;
    for (SteepSteps<Number> steps(a2, b2, x, y); y > 0; y -= 2) {
        x += steps.step();
        ++rows;
        steep(x, rows);
    }
}

/// Up to this many pixels in the box every term of the walk is exact in a double, so that integers take the same steps
/// and need no floating point. Beyond it the steps are those of rounded doubles.
inline bool is_exact(const QuarterEllipse& quarter)
{
    const auto size = [](long long extent) { return (extent < 0 ? -extent : extent) + 1; };
    return size(quarter.width) * size(quarter.height) < 1LL << 26;
}

/// Walks a quarter ellipse in the arithmetic that suits its size.
template <typename Flat, typename Steep>
void walk_quarter(const QuarterEllipse& quarter, Flat&& flat, Steep&& steep)
{
    if (is_exact(quarter))
        walk_quarter_in<long long>(quarter, flat, steep);
    else
        walk_quarter_in<double>(quarter, flat, steep);
}

/// Walks the whole outline of the ellipse inside a box, whose centre is (box.x + box.w / 2, box.y + box.h / 2).
///
/// Calls `visit_poles(y)` for the two points on the centre's column, then `visit(x, y)` for each step: the distances of four
/// mirrored points from the centre's column and row. Rows are `row_size` apart: 1, or whatever leads from a row to the next
/// in memory. In the last step y is 0.
template <typename Distance, typename VisitPoles, typename Visit>
void walk_ellipse(const DFBRectangle& box, Distance row_size, VisitPoles&& visit_poles, Visit&& visit)
{
    const int pole = box.h / 2;
    Distance y = pole * row_size;
    visit_poles(y);
    // For an odd height the first row is nearer to the centre than the half axis is long.
    walk_quarter({box.w, box.h, 2LL * pole},
                 [&](long long x, long long, bool turned) {
                     y -= row_size & -static_cast<Distance>(turned);
                     visit(static_cast<Distance>(x), y);
                 },
                 [&](long long x, long long) {
                     y -= row_size;
                     visit(static_cast<Distance>(x), y);
                 });
}

} // namespace dtk

#endif
