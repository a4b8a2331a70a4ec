#ifndef GEOMETRY_ELLIPSE_WALK_H
#define GEOMETRY_ELLIPSE_WALK_H

#include <directfb.h>

/// The midpoint algorithm for ellipses (J. Van Aken, "An Efficient Ellipse-Drawing Algorithm", 1984).
namespace geometry {

// The decision value d is the ellipse's equation b2 * x^2 + a2 * y^2 - a2 * b2 at the midpoint between the two pixels
// that may come next: negative means inside. Everything is kept as whole numbers: y doubled, squares of the half axes
// times 4, d times 16. Of d a quarter is carried along, since whatever is added to it is a multiple of 4. Scaling by
// powers of two rounds nothing, so doubles give what the unscaled terms would.

/// A multiple of a square, which steps up by two squares. It multiplies anew each time, because sums would be rounded in
/// another way. `Number` rounds as double does.
template <typename Number>
class Term {
public:
    Term(long long factor, Number square) : factor_(factor), square_(square) {}

    Number value() const { return multiple(0); }
    Number value_if(bool holds) const { return holds ? value() : static_cast<Number>(0); }
    void step_if(bool holds) { factor_ += holds ? 2 : 0; }

    static Number quarter(Number decision) { return decision / 4; }
    static Number inverted(Number decision) { return -decision; }
    static bool was_outside(Number inverted_decision) { return inverted_decision <= 0; }

    /// Whether the outline falls by less than it runs, from the terms of steps to the east and to the south.
    static bool is_flat(const Term& east, const Term& south)
    {
        return static_cast<Number>(1 - south.factor_) * south.square_ > east.multiple(-1);
    }

private:
    Number multiple(int more) const { return static_cast<Number>(factor_ + more) * square_; }

    long long factor_;
    Number square_;
};

/// Integers carry the multiple along. Its conditions are masks: no processor could predict them.
template <>
class Term<long long> {
public:
    Term(long long factor, long long square) : value_(factor * square), step_(2 * square) {}

    long long value() const { return value_; }
    long long value_if(bool holds) const { return value_ & mask(holds); }
    void step_if(bool holds) { value_ += step_ & mask(holds); }

    static long long quarter(long long decision) { return decision >> 2; }

    /// All bits inverted, because the sign then is the mask.
    static long long inverted(long long decision) { return ~decision; }
    static bool was_outside(long long inverted_decision) { return inverted_decision < 0; }

    /// Each side of the comparison is one square away from a term, together half of what the terms step up by.
    static bool is_flat(const Term& east, const Term& south)
    {
        return east.value_ + south.value_ < (east.step_ + south.step_) / 2;
    }

private:
    static long long mask(bool holds) { return -static_cast<long long>(holds); }

    long long value_, step_;
};

/// The steps where the outline is flat: x grows with each of them.
template <typename Number>
class FlatSteps {
public:
    /// Begins at twice the height y, which may be less than that of the ellipse.
    FlatSteps(Number height, Number a2, Number b2, long long y)
        : inverted_d_(Value::inverted(Value::quarter(4 * b2 - 2 * (a2 * height) + a2))), east_(3, b2), south_(2 - y, a2)
    {
    }

    bool is_flat() const { return Value::is_flat(east_, south_); }

    /// Returns whether the step leaves a row behind.
    bool step()
    {
        const bool turns = Value::was_outside(inverted_d_);
        inverted_d_ -= east_.value() + south_.value_if(turns);
        east_.step_if(true);
        south_.step_if(turns);
        return turns;
    }

private:
    using Value = Term<Number>;

    Number inverted_d_;
    Value east_, south_;
};

/// The steps where the outline is steep: each leaves a row behind.
template <typename Number>
class SteepSteps {
public:
    /// Begins at the column x and twice the height y.
    SteepSteps(Number a2, Number b2, long long x, long long y)
        : d_(Value::quarter(times(2 * x + 1, times(2 * x + 1, b2)) + times(y - 2, times(y - 2, a2)) - a2 * b2)),
          widening_(2 * (x + 1), b2), narrowing_(3 - y, a2)
    {
    }

    /// Returns whether x grows by one.
    bool step()
    {
        const bool widens = d_ < 0;
        d_ += widening_.value_if(widens) + narrowing_.value();
        widening_.step_if(widens);
        narrowing_.step_if(true);
        return widens;
    }

private:
    using Value = Term<Number>;

    static Number times(long long factor, Number value) { return static_cast<Number>(factor) * value; }

    Number d_;
    Value widening_, narrowing_;
};

/// A quarter of an ellipse with the half axes a = width / 2 and b = height / 2, walked from its pole to its middle.
struct QuarterEllipse {
    long long width;
    long long height;
    long long start; ///< Twice the distance of the walk's first row from the centre.
};

/// Where the outline becomes steep: the column, and how many rows the walk has left behind.
struct SteepStart {
    long long x, rows;
};

/// Walks a quarter ellipse. `Number` is what the decision value is computed in.
///
/// From the pole x grows by one pixel a step while the outline is flat, and `flat(x, rows, turned)` is called after each
/// step: how many rows the walk has left behind, and whether this step left one. Then a row is left behind with every
/// step while the outline is steep, and `steep(x, rows, start)` is called, `start` being the column where that began.
template <typename Number, typename Flat, typename Steep>
SteepStart walk_quarter_in(const QuarterEllipse& quarter, Flat&& flat, Steep&& steep)
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

    const SteepStart start = {x, rows};
    long long y = quarter.start - 2 * rows;
    for (SteepSteps<Number> steps(a2, b2, x, y); y > 0; y -= 2) {
        x += steps.step();
        ++rows;
        steep(x, rows, start.x);
    }
    return start;
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
SteepStart walk_quarter(const QuarterEllipse& quarter, Flat&& flat, Steep&& steep)
{
    return is_exact(quarter) ? walk_quarter_in<long long>(quarter, flat, steep)
                             : walk_quarter_in<double>(quarter, flat, steep);
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
                 [&](long long x, long long, long long) {
                     y -= row_size;
                     visit(static_cast<Distance>(x), y);
                 });
}

} // namespace geometry

#endif
