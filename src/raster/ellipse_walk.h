#ifndef DTK_RASTER_ELLIPSE_WALK_H
#define DTK_RASTER_ELLIPSE_WALK_H

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
///
/// The decision value d is the ellipse's equation b2 * x^2 + a2 * y^2 - a2 * b2 at the midpoint between the two pixels
/// that may come next: negative means inside. Everything is kept as whole numbers: y doubled, squares of the half axes
/// times 4, d times 16. Scaling by powers of two rounds nothing, so doubles give what the unscaled terms would.
template <typename Number, typename Flat, typename Steep>
void walk_quarter_in(const QuarterEllipse& quarter, Flat&& flat, Steep&& steep)
{
    const auto width = static_cast<Number>(quarter.width);
    const auto height = static_cast<Number>(quarter.height);
    const Number a2 = width * width;
    const Number b2 = height * height;
    const Number none = 0;
    const auto times = [](long long factor, Number value) { return static_cast<Number>(factor) * value; };
    long long x = 0, y = quarter.start, rows = 0;

    Number d = 4 * b2 - 2 * (a2 * height) + a2;
    while (times(y - 1, a2) > 2 * times(x + 1, b2)) {
        const bool turns = d >= 0;
        const Number south = 4 * times(2 - y, a2);
        d += 4 * times(2 * x + 3, b2) + (turns ? south : none);
        ++x;
        y -= turns ? 2 : 0;
        rows += turns;
        flat(x, rows, turns);
    }

    d = times(2 * x + 1, times(2 * x + 1, b2)) + times(y - 2, times(y - 2, a2)) - a2 * b2;
    while (y > 0) {
        const bool widens = d < 0;
        const Number east = 4 * times(2 * x + 2, b2);
        d += (widens ? east : none) + 4 * times(3 - y, a2);
        x += widens;
        y -= 2;
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

/// Walks the whole outline of the ellipse inside a box. Centre and points are whole pixels.
///
/// Calls `visit_pole(x, y)` for the lower and the upper pole, then `visit(right, left, lower, upper)` for each step: the
/// two columns and the two rows of four mirrored points. In the last step both rows are the middle one.
template <typename VisitPole, typename Visit>
void walk_ellipse(const DFBRectangle& rect, VisitPole&& visit_pole, Visit&& visit)
{
    const int cx = rect.x + rect.w / 2;
    const int cy = rect.y + rect.h / 2;
    const int pole = rect.h / 2;
    const auto visit_points = [&](long long column, long long rows) {
        const int x = static_cast<int>(column);
        const int y = pole - static_cast<int>(rows);
        visit(cx + x, cx - x, cy + y, cy - y);
    };

    visit_pole(cx, cy + pole);
    visit_pole(cx, cy - pole);
    // For an odd height the first row is nearer to the centre than the half axis is long.
    walk_quarter({rect.w, rect.h, 2LL * pole}, [&](long long x, long long rows, bool) { visit_points(x, rows); },
                 visit_points);
}

} // namespace dtk

#endif
