#include "software/canvas.h"
#include "toolkit/report.h"
#include "toolkit/trace.h"

using namespace dtk;

namespace {

DFBResult fill_with_pattern(DTKHDDVD_data& toolkit, const DFBRectangle& rect, Canvas& canvas)
{
    if (DFBResult result = begin_path(toolkit, canvas, rect))
        return result;
    set_pattern_source(toolkit, canvas, rect.x, rect.y);
    cairo_rectangle(canvas.context, rect.x, rect.y, rect.w, rect.h);
    return fill_path(toolkit, canvas);
}

DFBResult fill_with_color(const DTKHDDVD_data& toolkit, const DFBRectangle& rect, const Canvas& canvas)
{
    IDirectFBSurface* surface = canvas.surface;
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    if (DFBResult result = surface->GetPixelFormat(surface, &format))
        return result;

    const DFBResult result = DFB_PIXELFORMAT_IS_INDEXED(format) ? surface->SetColorIndex(surface, fill_index)
                                                                : set_color(canvas, toolkit.palette[fill_index]);
    if (result)
        return result;
    return surface->FillRectangle(surface, rect.x, rect.y, rect.w, rect.h);
}

DFBResult fill(DTKHDDVD_data& toolkit, const DFBRectangle& rect, Canvas& canvas)
{
    canvas.dirty = rect;
    return toolkit.fill_pattern ? fill_with_pattern(toolkit, rect, canvas) : fill_with_color(toolkit, rect, canvas);
}

DFBResult outline_stamped(const DTKHDDVD_data& toolkit, const DFBRectangle& rect, Canvas& canvas)
{
    if (canvas.is_scratch_pad) {
        int width = 0, height = 0;
        if (DFBResult result = toolkit.pen->GetSize(toolkit.pen, &width, &height))
            return result;
        canvas.dirty = stamped_area(rect, width, height);
    }

    // The pen's picture holds the key colour around its shape.
    if (DFBResult result = canvas.surface->SetBlittingFlags(canvas.surface, DSBLIT_SRC_COLORKEY))
        return result;
    Ref<IDirectFBSurface> pen_surface;
    if (DFBResult result = get_pen_surface(toolkit, pen_surface))
        return result;
    return stamp_rectangle(canvas.surface, &rect, pen_surface.get());
}

DFBResult outline_thin(const DTKHDDVD_data& toolkit, const DFBRectangle& rect, Canvas& canvas)
{
    canvas.dirty = rect;
    if (DFBResult result = set_color(canvas, toolkit.palette[stroke_index]))
        return result;
    return canvas.surface->DrawRectangle(canvas.surface, rect.x, rect.y, rect.w, rect.h);
}

DFBResult draw_rectangle(DTKHDDVD_data& toolkit, const DFBRectangle* rect, u32 flags)
{
    if (!draws(flags))
        return result::ok;
    if (!rect)
        return result::invalid_argument;
    Canvas canvas = choose_canvas(toolkit, flags);
    if (!canvas.surface)
        return result::failure;

    if (flags & DTKHDDVD_FILL) {
        if (DFBResult result = fill(toolkit, *rect, canvas))
            return result;
    }
    if (flags & DTKHDDVD_STROKE) {
        const auto outline = has_wide_pen(toolkit) ? outline_stamped : outline_thin;
        if (DFBResult result = outline(toolkit, *rect, canvas))
            return result;
    }
    return finish(toolkit, canvas);
}

} // namespace

DFBResult DTKHDDVD_Rectangle_SW(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    if (!thiz)
        return result::thiz_null;
    trace("DTKHDDVD_Rectangle", *thiz->priv, flags);
    return report("DTKHDDVD_Rectangle", draw_rectangle(*thiz->priv, rect, flags));
}
