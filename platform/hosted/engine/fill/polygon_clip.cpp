#include "polygon_scan.h"

#include <algorithm>

namespace zuvo {
namespace {

/// A line that goes down, and the side of the extent that it may come from or leave through.
struct Line {
    FixedPoint top, bottom;
};

struct Side {
    int64_t x;
    bool is_left;

    bool is_beyond(int64_t other) const { return is_left ? other < x : other > x; }
};

/// Where a line crosses a side that it does cross, rounded down.
int64_t crossing(const Line& line, int64_t x)
{
    const int64_t width = line.bottom.x - line.top.x;
    const int64_t height = line.bottom.y - line.top.y;
    const int64_t distance = x - line.top.x;
    return line.top.y + along_slope(width < 0 ? -distance : distance, height, width < 0 ? -width : width).value;
}

/// The column at a height, rounded towards the line's top.
int64_t column_at(const Line& line, int64_t y)
{
    const int64_t width = line.bottom.x - line.top.x;
    const int64_t height = line.bottom.y - line.top.y;
    const int64_t moved = along_slope(y - line.top.y, width < 0 ? -width : width, height).value;
    return line.top.x + (width < 0 ? -moved : moved);
}

void add_upright(PolygonScan& polygon, int64_t x, int64_t top, int64_t bottom, int direction)
{
    polygon.add_piece({x, top}, {x, bottom}, top, bottom, direction);
}

void add_cut_line(PolygonScan& polygon, const Line& line, int64_t top, int64_t bottom, int direction)
{
    const Side left = {0, true};
    const Side right = {polygon.extent.width * fixed_one, false};
    const bool goes_right = line.top.x <= line.bottom.x;
    const Side& from = goes_right ? left : right;
    const Side& to = goes_right ? right : left;

    if (from.is_beyond(line.top.x)) {
        int64_t entry = crossing(line, from.x);
        if (from.is_beyond(column_at(line, entry)))
            ++entry;
        entry = std::min(entry, bottom);
        if (top < entry) {
            add_upright(polygon, from.x, top, entry, direction);
            top = entry;
        }
    }
    if (to.is_beyond(line.bottom.x)) {
        int64_t exit = crossing(line, to.x);
        if (to.is_beyond(column_at(line, exit)))
            --exit;
        exit = std::max(exit, top);
        if (exit < bottom) {
            add_upright(polygon, to.x, exit, bottom, direction);
            bottom = exit;
        }
    }
    if (top < bottom)
        polygon.add_piece(line.top, line.bottom, top, bottom, direction);
}

} // namespace

void PolygonScan::add_edge(FixedPoint from, FixedPoint to)
{
    has_slanted_edge = has_slanted_edge || (from.x != to.x && from.y != to.y);

    const bool goes_down = from.y < to.y;
    const int direction = goes_down ? 1 : -1;
    const Line line = goes_down ? Line{from, to} : Line{to, from};
    const int64_t top = std::max(line.top.y, int64_t(0));
    const int64_t bottom = std::min(line.bottom.y, extent.height * fixed_one);
    if (top >= bottom)
        return;

    const int64_t right = extent.width * fixed_one;
    if (std::max(from.x, to.x) <= 0)
        add_upright(*this, 0, top, bottom, direction);
    else if (std::min(from.x, to.x) >= right)
        add_upright(*this, right, top, bottom, direction);
    else
        add_cut_line(*this, line, top, bottom, direction);
}

} // namespace zuvo
