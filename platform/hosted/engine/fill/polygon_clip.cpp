#include "polygon_scan.h"

#include <algorithm>

namespace zuvo {
namespace {

/// A line that goes down.
struct Line {
    FixedPoint top, bottom;
};

/// Where a line crosses an upright one, rounded down.
int64_t crossing(const Line& line, int64_t x)
{
    const int64_t width = line.bottom.x - line.top.x;
    const int64_t height = line.bottom.y - line.top.y;
    const int64_t distance = x - line.top.x;
    return line.top.y + along_slope(width < 0 ? -distance : distance, height, width < 0 ? -width : width).value;
}

/// What of a line lies beyond the side that it leaves through goes down that side. Cairo rounds where that begins; where a
/// line comes in needs no cut, because a row's columns are clamped to the extent.
void add_cut_line(PolygonScan& polygon, const Line& line, int64_t top, int64_t bottom, int direction)
{
    const bool goes_right = line.top.x <= line.bottom.x;
    const int64_t side = goes_right ? polygon.extent.width * fixed_one : 0;
    if (std::min(line.top.x, line.bottom.x) < side && std::max(line.top.x, line.bottom.x) > side) {
        const int64_t exit = std::clamp(crossing(line, side), top, bottom);
        polygon.add_piece({side, exit}, {side, bottom}, exit, bottom, direction);
        bottom = exit;
    }
    polygon.add_piece(line.top, line.bottom, top, bottom, direction);
}

} // namespace

void PolygonScan::add_edge(FixedPoint from, FixedPoint to)
{
    has_slanted_edge = has_slanted_edge || (from.x != to.x && from.y != to.y);

    const bool goes_down = from.y < to.y;
    const Line line = goes_down ? Line{from, to} : Line{to, from};
    const int64_t top = std::max(line.top.y, int64_t(0));
    const int64_t bottom = std::min(line.bottom.y, extent.height * fixed_one);
    if (top < bottom)
        add_cut_line(*this, line, top, bottom, goes_down ? 1 : -1);
}

} // namespace zuvo
