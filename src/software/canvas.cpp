#include "software/canvas.h"

#include "software/blend.h"
#include "software/pattern.h"
#include "toolkit/context.h"

#include <algorithm>

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

/// Cairo keeps a surface locked from its first use until a flush, and DirectFB would refuse it to everyone else.
void unlock(cairo_surface_t* surface)
{
    if (surface)
        cairo_surface_flush(surface);
}

void renew_context(const DTKHDDVD_data& toolkit, const Canvas& canvas)
{
    cairo_destroy(canvas.context);
    canvas.context = create_context(toolkit.dfb, canvas.surface, &canvas.context_surface);
}

/// Patterns that begin further to the left or above are beyond cairo's numbers, and it draws nothing.
constexpr int least_origin = -32765;

int nearest_origin(int origin, int tile)
{
    return origin < least_origin && tile > 0 ? origin % tile : origin;
}

/// Where cairo is to begin with a texture: a pattern that begins too far away is the same some whole tiles nearer.
DFBPoint pattern_origin(IDirectFBSurface* texture, const DFBPoint& origin)
{
    if (origin.x >= least_origin && origin.y >= least_origin)
        return origin;
    DFBDimension tile = {0, 0};
    texture->GetSize(texture, &tile.w, &tile.h);
    return {nearest_origin(origin.x, tile.w), nearest_origin(origin.y, tile.h)};
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

} // namespace

Canvas choose_canvas(DTKHDDVD_data& toolkit, u32 flags)
{
    if (uses_scratch_pad(toolkit, flags))
        return {toolkit.scratch, toolkit.scratch_cr, toolkit.scratch_cairo_surface, true, {}};
    return {toolkit.target, toolkit.target_cr, toolkit.target_cairo_surface, false, {}};
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

DFBResult fill_path(DTKHDDVD_data& toolkit, const Canvas& canvas)
{
    cairo_surface_t* texture = texture_surface(toolkit);
    cairo_fill(canvas.context);
    unlock(cairo_get_target(canvas.context));
    unlock(texture);

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
