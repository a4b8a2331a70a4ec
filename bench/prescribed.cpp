#include "prescribed.h"

#include "cairo_pixels.h"

namespace bench {

using tools::check;

namespace {

cairo_t* create_context(IDirectFB* dfb, IDirectFBSurface* surface)
{
    const std::unique_ptr<cairo_surface_t, CairoDestroyer> target(create_cairo_surface(dfb, surface));
    cairo_t* context = cairo_create(target.get());
    cairo_set_antialias(context, CAIRO_ANTIALIAS_NONE);
    return context;
}

cairo_pattern_t* create_pattern(IDirectFB* dfb, IDirectFBSurface* texture)
{
    const std::unique_ptr<cairo_surface_t, CairoDestroyer> surface(create_cairo_surface(dfb, texture));
    cairo_pattern_t* pattern = cairo_pattern_create_for_surface(surface.get());
    cairo_pattern_set_extend(pattern, CAIRO_EXTEND_REPEAT);
    return pattern;
}

/// The picture of a pen of 5 x 5 pixels, with the key colour outside and the opaque colour inside.
Owned<IDirectFBSurface> create_pen_surface(IDirectFB* dfb)
{
    const DTKHDDVDPenShape shape = pen_shape(5);
    const u8 stroke = 0, key = 2;
    IDirectFBSurface* pen = nullptr;
    check(render_pen_shape_lut8(dfb, &shape, key, stroke, &pen), "cannot draw a pen");
    Owned<IDirectFBSurface> owned(pen);
    check(pen->SetSrcColorKeyIndex(pen, key), "cannot set a colour key");

    IDirectFBPalette* palette = nullptr;
    check(pen->GetPalette(pen, &palette), "a pen has no palette");
    const auto component = [](unsigned value) { return static_cast<u8>(value); };
    const DFBColor entry = {component(alpha(opaque_colour)), component(red(opaque_colour)),
                            component(green(opaque_colour)), component(blue(opaque_colour))};
    check(palette->SetEntries(palette, &entry, 1, stroke), "cannot set a pen's colour");
    palette->Release(palette);
    return owned;
}

} // namespace

Prescribed::Prescribed(IDirectFB* dfb, IDirectFBSurface* shared)
    : SurfacePainter(shared), target_(sub_surface(surface())),
      scratch_(create_surface(dfb, picture_width, picture_height, DSCAPS_VIDEOONLY)), texture_(create_texture(dfb)),
      pen_(create_pen_surface(dfb)), target_context_(create_context(dfb, surface())),
      scratch_context_(create_context(dfb, scratch_.get())), pattern_(create_pattern(dfb, texture_.get()))
{
    scratch_->Clear(scratch_.get(), 0, 0, 0, 0);
}

Draw Prescribed::prepare(const Task& task)
{
    const Shape& shape = task.shape;
    if (shape.style == Style::thick)
        return stamped(task);
    if (shape.style == Style::thin)
        return thin_ellipse(task);
    const bool is_textured = shape.paint == Paint::textured;
    switch (shape.figure) {
    case Figure::ellipse: return is_textured ? textured_ellipse(task) : filled_ellipse(task);
    case Figure::rectangle: return is_textured ? textured_rectangle(task) : filled_rectangle(task);
    case Figure::polygon: return filled_polygon(task);
    case Figure::line: break;
    }
    return {};
}

Prescribed::Canvas Prescribed::canvas(Paint paint) const
{
    if (paint == Paint::opaque)
        return {target_.get(), target_context_.get()};
    return {scratch_.get(), scratch_context_.get()};
}

/// What is translucent went into the scratch pad, which is blended and cleared.
Draw Prescribed::blended(const Draw& draw, Paint paint, const DFBRectangle& dirty) const
{
    if (paint == Paint::opaque)
        return draw;
    return [draw, dirty, scratch = scratch_.get(), target = target_.get()] {
        draw();
        DFBSurfacePixelFormat format;
        scratch->GetPixelFormat(scratch, &format);
        target->SetBlittingFlags(target, DSBLIT_BLEND_ALPHACHANNEL);
        target->Blit(target, scratch, &dirty, dirty.x, dirty.y);
        scratch->SetColor(scratch, 0, 0, 0, 0);
        scratch->FillRectangle(scratch, dirty.x, dirty.y, dirty.w, dirty.h);
    };
}

} // namespace bench
