#include "pen/batch.h"

#include <algorithm>

using namespace dtk;
using geometry::LineAxis;
using geometry::LineWalk;
using geometry::Range;

namespace {

/// Calls `visit(major, minor)` for the points of a line whose coordinates lie in these ranges.
template <typename Visit>
void walk_inside(const LineAxis& major, const Range& majors, const LineAxis& minor, const Range& minors, Visit&& visit)
{
    const LineWalk line(major, minor);
    const Range steps = intersect(major.between(majors), line.steps_at(minor.between(minors)));
    for (std::int64_t step = steps.first; step <= steps.last; ++step)
        visit(major.at(step), minor.at(line.moved(step)));
}

/// Begins where the line comes near the surface.
DFBResult stamp_far_line(const LineAxis& horizontal, const LineAxis& vertical, StampBatch& batch)
{
    const Range columns = batch.near_columns(), rows = batch.near_rows();
    if (horizontal.length < vertical.length)
        walk_inside(vertical, rows, horizontal, columns, [&](int y, int x) { batch.add(x, y); });
    else
        walk_inside(horizontal, columns, vertical, rows, [&](int x, int y) { batch.add(x, y); });
    return batch.finish();
}

} // namespace

DFBResult stamp_line(IDirectFBSurface* dest, int x1, int y1, int x2, int y2, IDirectFBSurface* pen_surface)
{
    StampBatch batch(dest, pen_surface);
    const LineAxis horizontal(x1, x2), vertical(y1, y2);
    const auto [left, right] = std::minmax(x1, x2);
    const auto [top, bottom] = std::minmax(y1, y2);
    if (!batch.is_near(left, top, right, bottom))
        return stamp_far_line(horizontal, vertical, batch);

    const int width = static_cast<int>(horizontal.length), height = static_cast<int>(vertical.length);
    int x = x1, y = y1;
    const auto stamp_after = [&](int step_x, int step_y) {
        x += step_x;
        y += step_y;
        batch.add(x, y);
    };

    batch.add(x, y);
    if (width < height)
        geometry::walk_line(height, width,
                            [&](bool moves_both) { stamp_after(moves_both ? horizontal.step : 0, vertical.step); });
    else
        geometry::walk_line(width, height,
                            [&](bool moves_both) { stamp_after(horizontal.step, moves_both ? vertical.step : 0); });
    return batch.finish();
}
