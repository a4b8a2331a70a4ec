#include "software/thin_line.h"

#include "geometry/line_walk.h"
#include "toolkit/result.h"

namespace dtk {

namespace {

using geometry::LineAxis;
using geometry::LineWalk;
using geometry::Range;

/// A coordinate of a line and how far the surface reaches in its direction.
struct VisibleAxis {
    LineAxis axis;
    int size;

    Range visible() const { return axis.between({0, size - 1}); }
};

/// Draws what is visible of a line, run by run: `draw_run(first, last, minor)` draws from one major coordinate to another.
template <typename DrawRun>
DFBResult draw_runs(const VisibleAxis& major, const VisibleAxis& minor, DrawRun&& draw_run)
{
    const LineWalk walk(major.axis, minor.axis);
    const Range steps = intersect(major.visible(), walk.steps_at(minor.visible()));
    if (steps.last < steps.first)
        return result::ok;

    const std::int64_t end = walk.moved(steps.last);
    for (std::int64_t moved = walk.moved(steps.first); moved <= end; ++moved) {
        const Range run = intersect(walk.steps_at({moved, moved}), steps);
        if (DFBResult result = draw_run(major.axis.at(run.first), major.axis.at(run.last), minor.axis.at(moved)))
            return result;
    }
    return result::ok;
}

/// Draws the visible part of the walk that DirectFB's own would be. It goes to the right.
DFBResult draw_long_line(IDirectFBSurface* surface, const DFBPoint& from, const DFBPoint& to)
{
    DFBDimension size = {0, 0};
    if (DFBResult result = surface->GetSize(surface, &size.w, &size.h))
        return result;

    const VisibleAxis horizontal = {{from.x, to.x}, size.w}, vertical = {{from.y, to.y}, size.h};
    if (horizontal.axis.length >= vertical.axis.length)
        return draw_runs(horizontal, vertical,
                         [=](int first, int last, int y) { return surface->DrawLine(surface, first, y, last, y); });
    return draw_runs(vertical, horizontal,
                     [=](int first, int last, int x) { return surface->DrawLine(surface, x, first, x, last); });
}

} // namespace

DFBResult draw_thin_line(IDirectFBSurface* surface, const DFBPoint& from, const DFBPoint& to)
{
    if (!geometry::is_too_long_for_directfb(from, to))
        return surface->DrawLine(surface, from.x, from.y, to.x, to.y);
    return to.x > from.x ? draw_long_line(surface, from, to) : draw_long_line(surface, to, from);
}

} // namespace dtk
