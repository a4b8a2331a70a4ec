#ifndef GEOMETRY_LINE_WALK_H
#define GEOMETRY_LINE_WALK_H

#include <directfb.h>

#include <algorithm>
#include <cstdint>

/// Bresenham's line algorithm (1965): the major coordinate moves at each step, the minor one when an error, which begins at
/// half the line's length, reaches the whole.
namespace geometry {

/// Coordinates, or steps of a line counted from its start, from the first up to and including the last; none when that is
/// smaller.
struct Range {
    bool contains(std::int64_t step) const { return step >= first && step <= last; }

    std::int64_t first, last;
};

inline Range intersect(const Range& one, const Range& other)
{
    return {std::max(one.first, other.first), std::min(one.last, other.last)};
}

/// One coordinate along a line of any length.
struct LineAxis {
    LineAxis(int from, int to) : start(from), length(to < from ? start - to : to - start), step(to < from ? -1 : 1) {}

    int at(std::int64_t distance) const { return static_cast<int>(start + step * distance); }

    /// The distances from the start at which the coordinate is one of these.
    Range between(const Range& coordinates) const
    {
        const auto [least, greatest] = coordinates;
        const Range inside = step > 0 ? Range{least - start, greatest - start} : Range{start - greatest, start - least};
        return intersect(inside, {0, length});
    }

    std::int64_t start, length;
    int step;
};

/// Whether DirectFB would lose a line or draw another one: it clips in products of a line's width and height, for which it
/// has 31 bits.
inline bool is_too_long_for_directfb(const DFBPoint& from, const DFBPoint& to)
{
    const auto width = static_cast<std::uint64_t>(LineAxis(from.x, to.x).length);
    const auto height = static_cast<std::uint64_t>(LineAxis(from.y, to.y).length);
    return std::max<std::uint64_t>(width, 1) * std::max<std::uint64_t>(height, 1) > 0x7fffffff;
}

/// Walks along a line of less than 2^30 steps: calls `step(moves_both)` for each pixel after the first.
template <typename Step>
void walk_line(int length, int rise, Step&& step)
{
    int error = length >> 1;
    for (int i = 0; i < length; ++i) {
        // Both outcomes are worked out ahead of the choice between them.
        const int stays = error + rise;
        const int crosses = error + (rise - length);
        error = crosses >= 0 ? crosses : stays;
        step(crosses >= 0);
    }
}

/// floor((start + step * k) / divisor) for growing k, without a division for each.
class Ratio {
public:
    Ratio(std::uint64_t start, std::uint64_t step, std::uint64_t divisor)
        : value_(start / divisor), rest_(start % divisor), step_(step / divisor), step_rest_(step % divisor),
          divisor_(divisor)
    {
    }

    std::int64_t value() const { return static_cast<std::int64_t>(value_); }

    void advance()
    {
        value_ += step_;
        rest_ += step_rest_;
        if (rest_ >= divisor_) {
            ++value_;
            rest_ -= divisor_;
        }
    }

private:
    std::uint64_t value_, rest_;
    std::uint64_t step_, step_rest_;
    std::uint64_t divisor_;
};

/// Where the walk is after any number of steps, which need not be taken. Products fit because both lengths are below 2^32.
class LineWalk {
public:
    LineWalk(const LineAxis& major, const LineAxis& minor)
        : length_(static_cast<std::uint64_t>(major.length)), rise_(static_cast<std::uint64_t>(minor.length))
    {
    }

    /// How far the minor coordinate has moved after so many steps.
    std::int64_t moved(std::int64_t steps) const
    {
        return length_ ? static_cast<std::int64_t>(error(steps) / length_) : 0;
    }

    /// The same for these and all later steps of a line that is longer than a point.
    Ratio moved_from(std::int64_t steps) const { return {error(steps), rise_, length_}; }

    /// The first step after which the minor coordinate, which moves, has moved so far.
    std::int64_t first_step(std::int64_t moves) const { return moves > 0 ? first_steps_from(moves).value() : 0; }

    /// The same for at least one move and all further ones.
    Ratio first_steps_from(std::int64_t moves) const
    {
        return {static_cast<std::uint64_t>(moves) * length_ - length_ / 2 + (rise_ - 1), length_, rise_};
    }

    /// The steps after which the minor coordinate has moved as far as this. It does not move farther than it is long.
    Range steps_at(const Range& moves) const
    {
        const auto length = static_cast<std::int64_t>(length_);
        if (moves.last < moves.first)
            return {0, -1};
        return {first_step(moves.first), moves.last < moved(length) ? first_step(moves.last + 1) - 1 : length};
    }

private:
    std::uint64_t error(std::int64_t steps) const { return length_ / 2 + static_cast<std::uint64_t>(steps) * rise_; }

    std::uint64_t length_, rise_;
};

} // namespace geometry

#endif
