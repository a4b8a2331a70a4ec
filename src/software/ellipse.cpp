#include "geometry/box.h"
#include "geometry/color.h"
#include "raster/outline_ellipse.h"
#include "software/canvas.h"
#include "toolkit/report.h"
#include "toolkit/trace.h"

#include <algorithm>

using namespace dtk;
using geometry::color_word;
using geometry::inner_box;

namespace {

constexpr double full_circle = 6.283185307179586;

DFBResult fill_with_pattern(DTKHDDVD_data& toolkit, const DFBRectangle& box, Canvas& canvas)
{
    if (!canvas.context)
        return result::failure;

    // A half axis of 0 covers nothing, and scaling by 0 would break the context.
    const int a = box.w / 2;
    const int b = box.h / 2;
    if (a == 0 || b == 0)
        return result::ok;

    if (DFBResult result = begin_path(toolkit, canvas, box))
        return result;
    cairo_save(canvas.context);
    cairo_translate(canvas.context, box.x + a, box.y + b);
    cairo_scale(canvas.context, a, b);
    cairo_arc(canvas.context, 0, 0, 1.0, 0, full_circle);
    cairo_restore(canvas.context);
    set_pattern_source(toolkit, canvas, box.x, box.y);
    return fill_path(toolkit, canvas);
}

DFBResult fill(DTKHDDVD_data& toolkit, const DFBRectangle& box, Canvas& canvas)
{
    canvas.dirty = box;
    if (toolkit.fill_pattern)
        return fill_with_pattern(toolkit, box, canvas);
    const DFBRectangle rect = inner_box(box);
    return fill_ellipse_argb(canvas.surface, &rect, nullptr, color_word(toolkit.palette[fill_index]));
}

DFBResult outline_stamped(const DTKHDDVD_data& toolkit, const DFBRectangle& box, Canvas& canvas)
{
    Ref<IDirectFBSurface> pen_surface;
    if (DFBResult result = begin_stamping(toolkit, box, canvas, pen_surface))
        return result;
    return stamp_ellipse(canvas.surface, &box, pen_surface.get());
}

/// The area of a thin outline and of a fill below it. The pole of a box one pixel wide or high lies beside it, and the
/// walks through a box of no or negative size go around its middle, at most two pixels beyond the half axes.
DFBRectangle outlined_area(const DFBRectangle& box)
{
    if (box.w > 0 && box.h > 0)
        return {box.x, box.y, std::max(box.w, 2), std::max(box.h, 2)};
    const DFBRectangle rect = inner_box(box);
    const long long cx = rect.x + rect.w / 2, cy = rect.y + rect.h / 2;
    const long long reach_x = std::abs(rect.w / 2LL) + 2, reach_y = std::abs(rect.h / 2LL) + 2;
    return covering(cx - reach_x, cy - reach_y, cx + reach_x, cy + reach_y);
}

/// The exported rasteriser never clips; here its box may lie anywhere.
DFBResult outline_thin(const DTKHDDVD_data& toolkit, const DFBRectangle& box, Canvas& canvas)
{
    const DFBRectangle rect = inner_box(box);
    const u32 color = color_word(toolkit.palette[stroke_index]);

    canvas.dirty = outlined_area(box);
    DFBDimension size = {0, 0};
    if (DFBResult result = canvas.surface->GetSize(canvas.surface, &size.w, &size.h))
        return result;
    return outline_ellipse_inside(canvas.surface, rect, size, color);
}

DFBResult outline(const DTKHDDVD_data& toolkit, const DFBRectangle& box, Canvas& canvas)
{
    canvas.dirty = box;
    return has_wide_pen(toolkit) ? outline_stamped(toolkit, box, canvas) : outline_thin(toolkit, box, canvas);
}

/// The format is not used; a pad whose format cannot be read ends the primitive before it draws.
DFBResult ask_scratch_pad(const DTKHDDVD_data& toolkit)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    return toolkit.scratch ? toolkit.scratch->GetPixelFormat(toolkit.scratch, &format) : result::ok;
}

DFBResult draw_ellipse(DTKHDDVD_data& toolkit, const DFBRectangle* box, u32 flags)
{
    if (DFBResult result = ask_scratch_pad(toolkit))
        return result;
    if (!draws(flags))
        return result::ok;
    if (!box)
        return result::invalid_argument;
    Canvas canvas = choose_canvas(toolkit, flags);
    if (!canvas.surface)
        return result::failure;

    if (flags & DTKHDDVD_FILL) {
        if (DFBResult result = fill(toolkit, *box, canvas))
            return result;
    }
    if (flags & DTKHDDVD_STROKE) {
        if (DFBResult result = outline(toolkit, *box, canvas))
            return result;
    }
    return finish(toolkit, canvas);
}

} // namespace

DFBResult DTKHDDVD_Ellipse_SW(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    if (!thiz)
        return result::thiz_null;
    trace("DTKHDDVD_Ellipse", *thiz->priv, flags);
    return report("DTKHDDVD_Ellipse", draw_ellipse(*thiz->priv, rect, flags));
}
