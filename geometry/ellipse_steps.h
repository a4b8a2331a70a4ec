#ifndef DTK_RASTER_ELLIPSE_STEPS_H
#define DTK_RASTER_ELLIPSE_STEPS_H

namespace dtk {

// The decision value d is the ellipse's equation b2 * x^2 + a2 * y^2 - a2 * b2 at the midpoint between the two pixels
// that may come next: negative means inside. Everything is kept as whole numbers: y doubled, squares of the half axes
// times 4, d times 16. Scaling by powers of two rounds nothing, so doubles give what the unscaled terms would.

/// A multiple of a square, which steps up by a fixed multiple of it. It multiplies anew each time, because sums would be
/// rounded in another way.
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

/// The steps where the outline is flat: x grows with each of them. `Number` rounds as double does.
template <typename Number>
class FlatSteps {
public:
    /// Begins at twice the height y, which may be less than that of the ellipse.
    FlatSteps(Number height, Number a2, Number b2, long long y)
        : d_(4 * b2 - 2 * (a2 * height) + a2), fall_(y - 1, -2, a2), run_(2, 2, b2), east_(12, 8, b2),
          south_(4 * (2 - y), 8, a2)
    {
    }

    bool is_flat() const { return fall_.value() > run_.value(); }

    /// Answers whether the step leaves a row behind.
    bool step()
    {
        const bool turns = d_ >= 0;
        d_ += east_.value() + south_.value_if(turns);
        fall_.step_if(turns);
        run_.step();
        east_.step();
        south_.step_if(turns);
        return turns;
    }

private:
    Number d_;
    Term<Number> fall_, run_, east_, south_;
};

/// The steps where the outline is steep: each leaves a row behind.
template <typename Number>
class SteepSteps {
public:
    /// Begins at the column x and twice the height y.
    SteepSteps(Number a2, Number b2, long long x, long long y)
        : d_(times(2 * x + 1, times(2 * x + 1, b2)) + times(y - 2, times(y - 2, a2)) - a2 * b2),
          widening_(8 * (x + 1), 8, b2), narrowing_(4 * (3 - y), 8, a2)
    {
    }

    /// Answers whether x grows by one.
    bool step()
    {
        const bool widens = d_ < 0;
        d_ += widening_.value_if(widens) + narrowing_.value();
        widening_.step_if(widens);
        narrowing_.step();
        return widens;
    }

private:
    static Number times(long long factor, Number value) { return static_cast<Number>(factor) * value; }

    Number d_;
    Term<Number> widening_, narrowing_;
};

/// The mask that keeps everything when the condition holds, else nothing. No processor could foretell these conditions.
inline long long mask(bool holds)
{
    return -static_cast<long long>(holds);
}

/// Integers carry the terms along, a quarter as large: only the sign of d counts, and whatever is added to it is a multiple
/// of 4. d is kept inverted, because its sign then is the mask.
template <>
class FlatSteps<long long> {
public:
    FlatSteps(long long height, long long a2, long long b2, long long y)
        : inverted_d_(~((4 * b2 - 2 * (a2 * height) + a2) >> 2)), east_(3 * b2), south_((y - 2) * a2),
          east_step_(2 * b2), south_step_(2 * a2), limit_(-a2 - b2)
    {
    }

    /// Fall and run are the same terms but for one square each, which the limit makes up for.
    bool is_flat() const { return south_ - east_ > limit_; }

    bool step()
    {
        const bool turns = inverted_d_ < 0;
        inverted_d_ -= east_;
        inverted_d_ += south_ & mask(turns);
        south_ -= south_step_ & mask(turns);
        east_ += east_step_;
        return turns;
    }

private:
    long long inverted_d_, east_, south_;
    long long east_step_, south_step_, limit_;
};

template <>
class SteepSteps<long long> {
public:
    SteepSteps(long long a2, long long b2, long long x, long long y)
        : d_(((2 * x + 1) * ((2 * x + 1) * b2) + (y - 2) * ((y - 2) * a2) - a2 * b2) >> 2), widening_(2 * (x + 1) * b2),
          narrowing_((3 - y) * a2), widening_step_(2 * b2), narrowing_step_(2 * a2)
    {
    }

    bool step()
    {
        const bool widens = d_ < 0;
        d_ += narrowing_;
        d_ += widening_ & mask(widens);
        widening_ += widening_step_ & mask(widens);
        narrowing_ += narrowing_step_;
        return widens;
    }

private:
    long long d_, widening_, narrowing_;
    long long widening_step_, narrowing_step_;
};

} // namespace dtk

#endif
