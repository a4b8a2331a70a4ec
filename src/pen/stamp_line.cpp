#include "pen/batch.h"

#include <algorithm>

using namespace dtk;

namespace {

int sign(int value)
{
    return (value > 0) - (value < 0);
}

/// One coordinate of the walk: how far it has to go, and in which direction.
struct Axis {
    int length;
    int step;
};

Axis axis(int from, int to)
{
    const int distance = to - from;
    return {distance < 0 ? -distance : distance, sign(distance)};
}

/// Calls `advance(major_step, minor_step)` once for every pixel after the first.
template <typename Advance>
void walk(const Axis& major, const Axis& minor, Advance&& advance)
{
    int error = major.length >> 1;
    for (int i = 0; i < major.length; ++i) {
        // Both outcomes are worked out ahead of the choice between them.
        const int stays = error + minor.length;
        const int crosses = error + (minor.length - major.length);
        error = crosses >= 0 ? crosses : stays;
        advance(major.step, crosses >= 0 ? minor.step : 0);
    }
}

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
    const auto [left, right] = std::minmax(x1, x2);
    const auto [top, bottom] = std::minmax(y1, y2);
    if (!batch.is_near(left, top, right, bottom))
        return stamp_far_line({x1, x2}, {y1, y2}, batch);

    const Axis horizontal = axis(x1, x2);
    const Axis vertical = axis(y1, y2);
    int x = x1, y = y1;

    const auto stamp_after = [&](int step_x, int step_y) {
        x += step_x;
        y += step_y;
        batch.add(x, y);
    };

    batch.add(x, y);
    if (horizontal.length < vertical.length)
        walk(vertical, horizontal, [&](int major, int minor) { stamp_after(minor, major); });
    else
        walk(horizontal, vertical, [&](int major, int minor) { stamp_after(major, minor); });
    return batch.finish();
}
