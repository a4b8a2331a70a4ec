#include "outline_path.h"

#include "engine/surface/directfb_core.h"
#include "geometry/line_walk.h"

#include <algorithm>
#include <utility>

namespace zuvo {
namespace {

/// floor((start + step * k) / divisor) for growing k, without a division for each.
class Ratio {
public:
    Ratio(uint64_t start, uint64_t step, uint64_t divisor)
        : value_(start / divisor), rest_(start % divisor), step_(step / divisor), step_rest_(step % divisor),
          divisor_(divisor)
    {
    }

    int64_t value() const { return static_cast<int64_t>(value_); }

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
    uint64_t value_, rest_;
    uint64_t step_, step_rest_;
    uint64_t divisor_;
};

/// A line of steps away from its start: the longer direction moves at each step, the shorter one when its error, which
/// begins at half the longer one, reaches the whole.
struct Steps {
    int64_t x, y;           ///< The start.
    uint64_t width, height; ///< How far the end is away.
    int right, down;        ///< The direction: 1 or -1.
};

Steps make_steps(DFBPoint from, DFBPoint to)
{
    const int64_t dx = int64_t(to.x) - from.x;
    const int64_t dy = int64_t(to.y) - from.y;
    return {from.x, from.y, static_cast<uint64_t>(std::abs(dx)), static_cast<uint64_t>(std::abs(dy)), dx < 0 ? -1 : 1,
            dy < 0 ? -1 : 1};
}

void set_steps(RowPath& path, const Steps& line, uint64_t row, int64_t first, int64_t last)
{
    const int64_t one = line.x + line.right * first;
    const int64_t other = line.x + line.right * last;
    path.set_run(0, static_cast<int>(line.y + line.down * static_cast<int64_t>(row)),
                 cut_to_far(line.right > 0 ? one : other), cut_to_far(line.right > 0 ? other : one));
}

/// The rows of the line, counted from its start, that the path keeps: from the first up to, but without, the end.
struct RowCount {
    uint64_t first, end;
};

RowCount kept_rows(const RowPath& path, const Steps& line)
{
    const int64_t nearest = line.down > 0 ? path.top - line.y : line.y - (path.bottom - 1);
    const int64_t count = nearest + (path.bottom - path.top);
    const uint64_t end = static_cast<uint64_t>(std::max(count, int64_t(0)));
    return {static_cast<uint64_t>(std::max(nearest, int64_t(0))), std::min(end, line.height + 1)};
}

void add_steep_rows(RowPath& path, const Steps& line, RowCount rows)
{
    Ratio step(line.height / 2 + line.width * rows.first, line.width, line.height);
    for (uint64_t row = rows.first; row < rows.end; ++row, step.advance())
        set_steps(path, line, row, step.value(), step.value());
}

/// Each row of a flat line ends where the next one begins. The first step of row k is the first one whose error has
/// reached k times the width.
void add_flat_rows(RowPath& path, const Steps& line, RowCount rows)
{
    const uint64_t width = line.width, height = line.height;
    const auto error_of = [width, height](uint64_t row) { return width * row + (height - 1) - width / 2; };

    int64_t first = rows.first ? static_cast<int64_t>(error_of(rows.first) / height) : 0;
    Ratio next(rows.first < height ? error_of(rows.first + 1) : 0, width, height);
    for (uint64_t row = rows.first; row < rows.end; ++row, next.advance()) {
        const int64_t end = row < height ? next.value() : static_cast<int64_t>(width) + 1;
        set_steps(path, line, row, first, end - 1);
        first = end;
    }
}

void add_line(RowPath& path, const Steps& line)
{
    const RowCount rows = kept_rows(path, line);
    if (rows.first >= rows.end)
        return;
    if (line.height == 0)
        set_steps(path, line, 0, 0, static_cast<int64_t>(line.width));
    else if (line.width < line.height)
        add_steep_rows(path, line, rows);
    else
        add_flat_rows(path, line, rows);
}

} // namespace

bool line_path(RowPath& path, RowRange rows, DFBPoint from, DFBPoint to)
{
    const int64_t top = std::min(from.y, to.y);
    const int64_t bottom = int64_t(std::max(from.y, to.y)) + 1;
    if (!path.begin(1, std::max(rows.top, top), std::min(rows.bottom, bottom)))
        return false;
    path.turns_once = true;
    path.turn = path.top;
    add_line(path, make_steps(from, to));
    return true;
}

bool cut_thin_line(Extent extent, DFBPoint& from, DFBPoint& to)
{
    DFBRegion line = {from.x, from.y, to.x, to.y};
    const DFBRegion clip = {0, 0, extent.width - 1, extent.height - 1};
    if (!dtk::is_too_long_for_directfb(from, to) && !directfb_core_clip_line(&clip, &line))
        return false;

    from = {line.x1, line.y1};
    to = {line.x2, line.y2};
    if (from.x >= to.x)
        std::swap(from, to);
    return true;
}

} // namespace zuvo
