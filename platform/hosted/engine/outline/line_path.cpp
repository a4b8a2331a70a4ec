#include "outline_path.h"

#include "engine/surface/directfb_core.h"
#include "geometry/line_walk.h"

#include <algorithm>
#include <utility>

namespace zuvo {
namespace {

using geometry::LineAxis;
using geometry::LineWalk;
using geometry::Range;

/// A line as it is walked along either coordinate.
struct Line {
    /// Makes the columns after these horizontal steps the points of the row after a vertical one.
    void set_steps(RowPath& path, int64_t row, int64_t first, int64_t last) const
    {
        const bool goes_right = horizontal.step > 0;
        path.set_run(0, vertical.at(row), cut_to_far(horizontal.at(goes_right ? first : last)),
                     cut_to_far(horizontal.at(goes_right ? last : first)));
    }

    LineAxis horizontal, vertical;
};

void add_steep_rows(RowPath& path, const Line line, const Range& rows)
{
    geometry::Ratio column = LineWalk(line.vertical, line.horizontal).moved_from(rows.first);
    for (int64_t row = rows.first; row <= rows.last; ++row, column.advance())
        line.set_steps(path, row, column.value(), column.value());
}

/// Each row of a flat line ends where the next one begins.
void add_flat_rows(RowPath& path, const Line line, const Range& rows)
{
    const LineWalk walk(line.horizontal, line.vertical);
    int64_t first = walk.first_step(rows.first);
    geometry::Ratio next = walk.first_steps_from(rows.first + 1);
    for (int64_t row = rows.first; row <= rows.last; ++row, next.advance()) {
        const int64_t end = row < line.vertical.length ? next.value() : line.horizontal.length + 1;
        line.set_steps(path, row, first, end - 1);
        first = end;
    }
}

void add_line(RowPath& path, const Line& line)
{
    const Range rows = line.vertical.between({path.top, path.bottom - 1});
    if (rows.first > rows.last)
        return;
    if (line.vertical.length == 0)
        line.set_steps(path, 0, 0, line.horizontal.length);
    else if (line.horizontal.length < line.vertical.length)
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
    add_line(path, {{from.x, to.x}, {from.y, to.y}});
    return true;
}

bool cut_thin_line(Extent extent, DFBPoint& from, DFBPoint& to)
{
    DFBRegion line = {from.x, from.y, to.x, to.y};
    const DFBRegion clip = {0, 0, extent.width - 1, extent.height - 1};
    if (!geometry::is_too_long_for_directfb(from, to) && !directfb_core_clip_line(&clip, &line))
        return false;

    from = {line.x1, line.y1};
    to = {line.x2, line.y2};
    if (from.x >= to.x)
        std::swap(from, to);
    return true;
}

} // namespace zuvo
