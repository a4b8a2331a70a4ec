#ifndef DTK_RASTER_ELLIPSE_STEPS_H
#define DTK_RASTER_ELLIPSE_STEPS_H

namespace dtk {

/// A quarter of an ellipse with the half axes a = width / 2 and b = height / 2, walked from its pole to its middle.
struct QuarterEllipse {
    long long width;
    long long height;
    long long start; ///< Twice the distance of the walk's first row from the centre.
};

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

/// The steps where the outline is flat: x grows with each of them. `Number` is what is rounded, double as a rule.
template <typename Number>
class FlatSteps {
public:
    explicit FlatSteps(const QuarterEllipse& quarter)
        : FlatSteps(quarter, static_cast<Number>(quarter.width), static_cast<Number>(quarter.height))
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
    FlatSteps(const QuarterEllipse& quarter, Number width, Number height)
        : FlatSteps(quarter.start, height, width * width, height * height)
    {
    }

    FlatSteps(long long y, Number height, Number a2, Number b2)
        : d_(4 * b2 - 2 * (a2 * height) + a2), fall_(y - 1, -2, a2), run_(2, 2, b2), east_(12, 8, b2),
          south_(4 * (2 - y), 8, a2)
    {
    }

    Number d_;
    Term<Number> fall_, run_, east_, south_;
};

/// The steps where the outline is steep: each leaves a row behind.
template <typename Number>
class SteepSteps {
public:
    /// From twice the height y and the column x on.
    SteepSteps(const QuarterEllipse& quarter, long long x, long long y)
        : SteepSteps(x, y, static_cast<Number>(quarter.width) * static_cast<Number>(quarter.width),
                     static_cast<Number>(quarter.height) * static_cast<Number>(quarter.height))
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
    SteepSteps(long long x, long long y, Number a2, Number b2)
        : d_(times(2 * x + 1, times(2 * x + 1, b2)) + times(y - 2, times(y - 2, a2)) - a2 * b2),
          widening_(8 * (x + 1), 8, b2), narrowing_(4 * (3 - y), 8, a2)
    {
    }

    static Number times(long long factor, Number value) { return static_cast<Number>(factor) * value; }

    Number d_;
    Term<Number> widening_, narrowing_;
};

/// The mask that keeps everything when the condition holds, else nothing. No processor could foretell these conditions.
inline long long mask(bool holds)
{
    return -static_cast<long long>(holds);
}

/// Integers carry the terms along, a quarter as large: only the sign of d counts, and every term is a multiple of 4. d is
/// kept inverted, because its sign then is the mask.
template <>
class FlatSteps<long long> {
public:
    explicit FlatSteps(const QuarterEllipse& quarter)
        : FlatSteps(quarter.start, quarter.height, quarter.width * quarter.width, quarter.height * quarter.height)
    {
    }

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
    FlatSteps(long long y, long long height, long long a2, long long b2)
        : inverted_d_(~((4 * b2 - 2 * (a2 * height) + a2) >> 2)), east_(3 * b2), south_((y - 2) * a2),
          east_step_(2 * b2), south_step_(2 * a2), limit_(-a2 - b2)
    {
    }

    long long inverted_d_, east_, south_;
    long long east_step_, south_step_, limit_;
};

template <>
class SteepSteps<long long> {
public:
    SteepSteps(const QuarterEllipse& quarter, long long x, long long y)
        : SteepSteps(x, y, quarter.width * quarter.width, quarter.height * quarter.height)
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
    SteepSteps(long long x, long long y, long long a2, long long b2)
        : d_(((2 * x + 1) * ((2 * x + 1) * b2) + (y - 2) * ((y - 2) * a2) - a2 * b2) >> 2), widening_(2 * (x + 1) * b2),
          narrowing_((3 - y) * a2), widening_step_(2 * b2), narrowing_step_(2 * a2)
    {
    }

    long long d_, widening_, narrowing_;
    long long widening_step_, narrowing_step_;
};

} // namespace dtk

#endif
