#include "software/canvas.h"

#include "software/blend.h"
#include "software/pattern.h"
#include "toolkit/context.h"

#include <algorithm>
#include <limits>

namespace dtk {

namespace {

/// The cairo surface of the fill pattern's texture, NULL without a pattern.
cairo_surface_t* texture_surface(const DTKHDDVD_data& toolkit)
{
    cairo_surface_t* surface = nullptr;
    if (toolkit.fill_pattern)
        cairo_pattern_get_surface(toolkit.fill_pattern, &surface);
    return surface;
}

void renew_context(const DTKHDDVD_data& toolkit, const Canvas& canvas)
{
    cairo_destroy(canvas.context);
    canvas.context = create_context(toolkit.dfb, canvas.surface, &canvas.context_surface);
}

struct Extent {
    int origin, size;
};

/// A length that a rectangle cannot hold is cut where no surface reaches.
Extent saturate(long long first, long long last)
{
    constexpr long long far_away = 1LL << 29;
    const auto fits = [](long long number) { return number == static_cast<int>(number); };
    if (!fits(first) || !fits(last - first + 1)) {
        first = std::clamp(first, -far_away, far_away);
        last = std::clamp(last, -far_away, far_away);
    }
    return {static_cast<int>(first), static_cast<int>(last - first + 1)};
}

/// Locks the pixels of what a context or a pattern works on, which is renewed first if they have become stale.
template <typename Object, typename Renew>
DFBResult lock_current_pixels(Object*& object, const DFBRectangle& area, LockedPixels& ret_locked, Renew&& renew)
{
    Pixels pixels = lock_pixels(object, area, ret_locked);
    if (pixels == Pixels::stale) {
        renew();
        pixels = lock_pixels(object, area, ret_locked);
    }
    return pixels == Pixels::ready ? result::ok : result::failure;
}

DFBResult lock_canvas(const DTKHDDVD_data& toolkit, Canvas& canvas, const DFBRectangle& box)
{
    return lock_current_pixels(canvas.context, box, canvas.pixels, [&] { renew_context(toolkit, canvas); });
}

/// The part of the texture that a shape shows which begins at the texture's corner; all of it for one that reaches back.
DFBRectangle shown_texture(const DFBRectangle& box)
{
    constexpr int all = std::numeric_limits<int>::max();
    return {0, 0, box.w < 0 ? all : box.w, box.h < 0 ? all : box.h};
}

DFBResult lock_texture(DTKHDDVD_data& toolkit, Canvas& canvas, const DFBRectangle& box)
{
    return lock_current_pixels(toolkit.fill_pattern, shown_texture(box), canvas.texture,
                               [&] { renew_fill_pattern(toolkit); });
}

/// Cairo's back end keeps a surface locked from its first use until a flush, and DirectFB would refuse it to everyone else.
void take_back(cairo_surface_t* surface, LockedPixels& pixels)
{
    cairo_surface_flush(surface);
    unlock_pixels(surface, pixels);
}

} // namespace

Canvas choose_canvas(DTKHDDVD_data& toolkit, u32 flags)
{
    if (uses_scratch_pad(toolkit, flags))
        return {toolkit.scratch, toolkit.scratch_cr, toolkit.scratch_cairo_surface, true, {}, {}, {}};
    return {toolkit.target, toolkit.target_cr, toolkit.target_cairo_surface, false, {}, {}, {}};
}

DFBResult finish(const DTKHDDVD_data& toolkit, const Canvas& canvas)
{
    if (!canvas.is_scratch_pad)
        return result::ok;
    if (toolkit.dtk)
        return BlendScratchPad(toolkit.dfb, toolkit.dtk, toolkit.target, toolkit.scratch, canvas.dirty);
    return BlendScratchPadNoSync(toolkit.target, toolkit.scratch, canvas.dirty);
}

bool has_wide_pen(const DTKHDDVD_data& toolkit)
{
    if (!toolkit.pen)
        return false;
    int width = 0, height = 0;
    const DFBResult result = toolkit.pen->GetSize(toolkit.pen, &width, &height);
    return result || width != 1 || height != 1;
}

DFBResult get_pen_surface(const DTKHDDVD_data& toolkit, Ref<IDirectFBSurface>& surface)
{
    if (DFBResult result = toolkit.pen->GetSurface(toolkit.pen, surface.receive()))
        return result;
    return surface ? result::ok : result::failure;
}

DFBRectangle covering(long long left, long long top, long long right, long long bottom)
{
    const auto [x, w] = saturate(left, right);
    const auto [y, h] = saturate(top, bottom);
    return {x, y, w, h};
}

DFBRectangle stamped_area(const DFBRectangle& rect, int pen_width, int pen_height)
{
    return {std::max(rect.x - pen_width / 2 - 1, 0), std::max(rect.y - pen_height / 2 - 1, 0),
            rect.w + pen_width + 1, rect.h + pen_height + 1};
}

DFBResult begin_stamping(const DTKHDDVD_data& toolkit, const DFBRectangle& rect, Canvas& canvas,
                         Ref<IDirectFBSurface>& pen_surface)
{
    if (DFBResult result = get_pen_surface(toolkit, pen_surface))
        return result;

    if (canvas.is_scratch_pad) {
        int width = 0, height = 0;
        if (DFBResult result = pen_surface->GetSize(pen_surface.get(), &width, &height))
            return result;
        canvas.dirty = stamped_area(rect, width, height);
    }

    // The pen's picture holds the key colour around its shape.
    return canvas.surface->SetBlittingFlags(canvas.surface, DSBLIT_SRC_COLORKEY);
}

DFBResult set_color(const Canvas& canvas, const DFBColor& color)
{
    return canvas.surface->SetColor(canvas.surface, color.r, color.g, color.b, color.a);
}

void set_pattern_source(const DTKHDDVD_data& toolkit, const Canvas& canvas, int x, int y)
{
    const DFBPoint origin = pattern_origin(toolkit.texture, {x, y});

    // The matrix leads from the surface to the texture.
    cairo_matrix_t matrix;
    cairo_matrix_init_translate(&matrix, -static_cast<double>(origin.x), -static_cast<double>(origin.y));
    cairo_pattern_set_matrix(toolkit.fill_pattern, &matrix);
    cairo_set_source(canvas.context, toolkit.fill_pattern);
}

DFBResult begin_path(DTKHDDVD_data& toolkit, Canvas& canvas, const DFBRectangle& box)
{
    if (!canvas.context)
        return result::failure;
    if (DFBResult result = lock_canvas(toolkit, canvas, box))
        return result;
    const DFBResult outcome = toolkit.fill_pattern ? lock_texture(toolkit, canvas, box) : result::ok;
    if (outcome)
        take_back(cairo_get_target(canvas.context), canvas.pixels);
    return outcome;
}

DFBResult fill_path(DTKHDDVD_data& toolkit, Canvas& canvas)
{
    cairo_surface_t* texture = texture_surface(toolkit);
    cairo_fill(canvas.context);
    take_back(cairo_get_target(canvas.context), canvas.pixels);
    if (texture)
        take_back(texture, canvas.texture);

    // Errors stick for ever, and a texture in error is drawn as nothing without the context's noticing.
    const bool has_lost_context = cairo_status(canvas.context) != CAIRO_STATUS_SUCCESS;
    const bool has_lost_texture = texture && cairo_surface_status(texture) != CAIRO_STATUS_SUCCESS;
    if (has_lost_context)
        renew_context(toolkit, canvas);
    if (has_lost_texture)
        renew_fill_pattern(toolkit);
    return has_lost_context || has_lost_texture ? result::failure : result::ok;
}

} // namespace dtk
