#ifndef DTK_PEN_LINE_WALK_H
#define DTK_PEN_LINE_WALK_H

#include <directfb.h>

#include <algorithm>
#include <cstdint>

namespace dtk {

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

/// The walk along a line: the major coordinate moves at each step, the minor one when an error that begins at half the
/// line's length reaches the whole.
///
/// Where the walk is after any number of steps needs no steps to be taken. Products fit because both lengths are below
/// 2^32.
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

    /// The first step after which the minor coordinate has moved so far.
    std::int64_t first_step(std::int64_t moves) const
    {
        if (moves <= 0)
            return 0;
        const std::uint64_t wanted = static_cast<std::uint64_t>(moves) * length_ - length_ / 2;
        return static_cast<std::int64_t>(wanted / rise_ + (wanted % rise_ != 0));
    }

    std::uint64_t length_, rise_;
};

} // namespace dtk

#endif
