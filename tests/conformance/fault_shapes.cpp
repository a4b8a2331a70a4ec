#include "conformance/faults.h"

#include <algorithm>
#include <csignal>
#include <vector>

/// Faults of what is drawn, and where.

using namespace faults;

namespace {

unsigned int blended_or_not(unsigned int flags, bool is_border)
{
    if (has("always blends"))
        return flags | ZUVO_DTK_BLEND;
    const bool never = (has("borders do not blend") && is_border) || (has("patterns do not blend") && state.has_pattern);
    return never ? flags & ~ZUVO_DTK_BLEND : flags;
}

int narrowed(int coordinate)
{
    return has("coordinates of 16 bits") ? static_cast<short>(coordinate) : coordinate;
}

DFBRectangle narrowed(const DFBRectangle& rect)
{
    return {narrowed(rect.x), narrowed(rect.y), rect.w, rect.h};
}

DFBRectangle grown(DFBRectangle rect, const char* fault, DFBRectangle by)
{
    return has(fault) ? DFBRectangle{rect.x + by.x, rect.y + by.y, rect.w + by.w, rect.h + by.h} : rect;
}

/// Passes on a call that takes a box, which some faults change.
template <typename Function>
int draw_box(Function* next, unsigned int dtk, const DFBRectangle* rect, unsigned int flags,
             const std::function<DFBRectangle(const DFBRectangle&)>& change)
{
    if (!rect)
        return has("NULL is welcome") ? 0 : next(dtk, rect, flags);
    const DFBRectangle box = change(narrowed(*rect));
    return draw(dtk, [=] { return next(dtk, &box, flags); });
}

/// A border of four lines, which blend where they meet.
int draw_sides(unsigned int dtk, const DFBRectangle& box, unsigned int flags)
{
    const int right = box.x + box.w - 1, bottom = box.y + box.h - 1;
    const int errors[] = {zuvo_dtk_draw_line(dtk, box.x, box.y, right, box.y, flags),
                          zuvo_dtk_draw_line(dtk, right, box.y, right, bottom, flags),
                          zuvo_dtk_draw_line(dtk, right, bottom, box.x, bottom, flags),
                          zuvo_dtk_draw_line(dtk, box.x, bottom, box.x, box.y, flags)};
    return *std::max_element(std::begin(errors), std::end(errors));
}

} // namespace

int zuvo_dtk_draw_line(unsigned int dtk, int x1, int y1, int x2, int y2, unsigned int flags)
{
    PLATFORM(zuvo_dtk_draw_line);
    const bool is_edge = !(flags & ZUVO_DTK_DRAW);
    if (has("lines lack their end") && !is_edge)
        x2 -= (x2 > x1) - (x2 < x1), y2 -= (y2 > y1) - (y2 < y1);
    if (has("edges are moved") && is_edge)
        ++y1, ++y2;
    const int left = narrowed(x1), right = narrowed(x2), chosen = static_cast<int>(blended_or_not(flags, true));
    return draw(dtk, [=] { return next(dtk, left, y1, right, y2, static_cast<unsigned int>(chosen)); });
}

int zuvo_dtk_draw_rectangle(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    PLATFORM(zuvo_dtk_draw_rectangle);
    if (has("crashes on extremes") && rect && rect->w == 2147483647)
        std::raise(SIGSEGV);
    return draw_box(next, dtk, rect, blended_or_not(flags, false), [](const DFBRectangle& box) {
        if (has("patterns begin at the surface") && state.has_pattern && box.x > 0)
            return DFBRectangle{0, box.y, box.x + box.w, box.h};
        return grown(box, "rectangles are one wider", {0, 0, box.w > 0 && box.w < 10000, 0});
    });
}

int zuvo_dtk_draw_rectangle_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    PLATFORM(zuvo_dtk_draw_rectangle_border);
    const unsigned int chosen = blended_or_not(flags, true);
    if (has("borders blend twice in corners") && rect && (chosen & ZUVO_DTK_BLEND) && rect->w > 0 && rect->h > 0)
        return draw_sides(dtk, *rect, chosen);
    return draw_box(next, dtk, rect, chosen,
                    [](const DFBRectangle& box) { return grown(box, "borders are one higher", {0, 0, 0, 1}); });
}

int zuvo_dtk_draw_ellipse(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    PLATFORM(zuvo_dtk_draw_ellipse);
    return draw_box(next, dtk, rect, blended_or_not(flags, false), [](const DFBRectangle& box) {
        const DFBRectangle moved = grown(box, "ellipses lie elsewhere", {6, 6, 0, 0});
        return state.has_pattern ? moved : grown(moved, "ellipses are one smaller", {0, 0, -1, -1});
    });
}

int zuvo_dtk_draw_ellipse_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    PLATFORM(zuvo_dtk_draw_ellipse_border);
    return draw_box(next, dtk, rect, blended_or_not(flags, true), [](const DFBRectangle& box) {
        return grown(box, "ellipse borders are one smaller", {0, 0, -1, -1});
    });
}

int zuvo_dtk_draw_polygon(unsigned int dtk, const DFBPoint* points, unsigned int num_points, unsigned int reserved)
{
    PLATFORM(zuvo_dtk_draw_polygon);
    if (!points)
        return has("NULL is welcome") ? 0 : next(dtk, points, num_points, reserved);
    std::vector<DFBPoint> moved(points, points + num_points);
    for (DFBPoint& point : moved)
        point = {narrowed(point.x) + has("polygons are moved"), point.y};
    return draw(dtk, [=] { return next(dtk, moved.data(), num_points, reserved); });
}

