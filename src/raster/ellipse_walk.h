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

/// A multiple of a square, which steps up by a fixed multiple of it. It multiplies anew each time, because sums of doubles
/// would be rounded in another way.
template <typename Number>
class Term {
public:
    Term(long long factor, long long step, Number square) : factor_(factor), step_(step), square_(square) {}

    Number value() const { return static_cast<Number>(factor_) * square_; }
    Number value_if(bool holds) const { return holds ? value() : static_cast<Number>(0); }
    void step() { factor_ += step_; }
    void step_if(bool holds) { factor_ += holds ? step_ : 0; }

private:
    long long factor_, step_;
    Number square_;
};

/// Integers carry the product along. Conditions become masks, because no processor could foretell them.
template <>
class Term<long long> {
public:
    Term(long long factor, long long step, long long square) : value_(factor * square), step_(step * square) {}

    long long value() const { return value_; }
    long long value_if(bool holds) const { return value_ & -static_cast<long long>(holds); }
    void step() { value_ += step_; }
    void step_if(bool holds) { value_ += step_ & -static_cast<long long>(holds); }

private:
    long long value_, step_;
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
    const auto times = [](long long factor, Number value) { return static_cast<Number>(factor) * value; };
    long long x = 0, y = quarter.start, rows = 0;

    Number d = 4 * b2 - 2 * (a2 * height) + a2;
    Term<Number> fall(y - 1, -2, a2), run(2, 2, b2), east(12, 8, b2), south(4 * (2 - y), 8, a2);
    while (fall.value() > run.value()) {
        const bool turns = d >= 0;
        d += east.value() + south.value_if(turns);
        fall.step_if(turns);
        run.step();
        east.step();
        south.step_if(turns);
        ++x;
        rows += turns;
        flat(x, rows, turns);
    }

    y -= 2 * rows;
    d = times(2 * x + 1, times(2 * x + 1, b2)) + times(y - 2, times(y - 2, a2)) - a2 * b2;
    Term<Number> widening(8 * (x + 1), 8, b2), narrowing(4 * (3 - y), 8, a2);
    for (; y > 0; y -= 2) {
        const bool widens = d < 0;
        d += widening.value_if(widens) + narrowing.value();
        widening.step_if(widens);
        narrowing.step();
        x += widens;
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
