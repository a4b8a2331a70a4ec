#include "software/canvas.h"
#include "software/thin_line.h"
#include "toolkit/report.h"
#include "toolkit/trace.h"

#include <algorithm>

using namespace dtk;

namespace {

struct Polygon {
    const DFBPoint* points;
    u32 num_points;
    bool closed;
};

DFBRegion corners(const Polygon& polygon)
{
    DFBRegion box = {polygon.points[0].x, polygon.points[0].y, polygon.points[0].x, polygon.points[0].y};
    for (u32 i = 1; i < polygon.num_points; ++i) {
        const DFBPoint& point = polygon.points[i];
        box = {std::min(box.x1, point.x), std::min(box.y1, point.y), std::max(box.x2, point.x),
               std::max(box.y2, point.y)};
    }
    return box;
}

void add_path(const Polygon& polygon, cairo_t* context)
{
    cairo_move_to(context, polygon.points[0].x, polygon.points[0].y);
    for (u32 i = 1; i < polygon.num_points; ++i)
        cairo_line_to(context, polygon.points[i].x, polygon.points[i].y);
}

void set_color_source(const DFBColor& color, cairo_t* context)
{
    const double r = color.r / 255.0, g = color.g / 255.0, b = color.b / 255.0;
    if (color.a == 255)
        cairo_set_source_rgb(context, r, g, b);
    else
        cairo_set_source_rgba(context, r, g, b, color.a / 255.0);
}

DFBResult fill(DTKHDDVD_data& toolkit, const Polygon& polygon, const DFBRegion& box, Canvas& canvas)
{
    canvas.dirty = covering(box.x1, box.y1, box.x2, box.y2);
    if (DFBResult result = begin_path(toolkit, canvas, canvas.dirty))
        return result;
    add_path(polygon, canvas.context);
    if (toolkit.fill_pattern)
        set_pattern_source(toolkit, canvas, box.x1, box.y1);
    else
        set_color_source(toolkit.palette[fill_index], canvas.context);
    return fill_path(toolkit, canvas);
}

/// Calls `draw(from, to)` for each edge of the outline and stops at the first failure.
template <typename Draw>
DFBResult for_each_edge(const Polygon& polygon, Draw&& draw)
{
    const u32 last = polygon.num_points - 1;
    for (u32 i = 0; i < last; ++i) {
        if (DFBResult result = draw(polygon.points[i], polygon.points[i + 1]))
            return result;
    }
    return polygon.closed ? draw(polygon.points[last], polygon.points[0]) : result::ok;
}

DFBResult outline_stamped(const DTKHDDVD_data& toolkit, const Polygon& polygon, const DFBRegion& box, Canvas& canvas)
{
    Ref<IDirectFBSurface> pen_surface;
    const DFBRectangle rect = {box.x1, box.y1, box.x2 - box.x1, box.y2 - box.y1};
    if (DFBResult result = begin_stamping(toolkit, rect, canvas, pen_surface))
        return result;
    return for_each_edge(polygon, [&](const DFBPoint& from, const DFBPoint& to) {
        return stamp_line(canvas.surface, from.x, from.y, to.x, to.y, pen_surface.get());
    });
}

DFBResult outline_thin(const DTKHDDVD_data& toolkit, const Polygon& polygon, const DFBRegion& box, Canvas& canvas)
{
    canvas.dirty = covering(box.x1, box.y1, box.x2, box.y2);
    if (DFBResult result = set_color(canvas, toolkit.palette[stroke_index]))
        return result;
    return for_each_edge(polygon, [&](const DFBPoint& from, const DFBPoint& to) {
        return draw_thin_line(canvas.surface, from, to);
    });
}

DFBResult draw_polygon(DTKHDDVD_data& toolkit, const Polygon& polygon, u32 flags)
{
    if (polygon.num_points < 2 || !draws(flags))
        return result::ok;
    if (!polygon.points)
        return result::invalid_argument;
    Canvas canvas = choose_canvas(toolkit, flags);
    if (!canvas.surface)
        return result::failure;

    const DFBRegion box = corners(polygon);
    if (flags & DTKHDDVD_FILL) {
        if (DFBResult result = fill(toolkit, polygon, box, canvas))
            return result;
    }
    if (flags & DTKHDDVD_STROKE) {
        const auto outline = has_wide_pen(toolkit) ? outline_stamped : outline_thin;
        if (DFBResult result = outline(toolkit, polygon, box, canvas))
            return result;
    }
    return finish(toolkit, canvas);
}

} // namespace

DFBResult DTKHDDVD_Polygon_SW(DTKHDDVD* thiz, const DFBPoint* points, u32 num_points, u8 closed, u32 flags)
{
    if (!thiz)
        return result::thiz_null;
    trace("DTKHDDVD_Polygon", *thiz->priv, flags);
    return report("DTKHDDVD_Polygon", draw_polygon(*thiz->priv, {points, num_points, closed != 0}, flags));
}
