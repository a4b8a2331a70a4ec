#include "toolkit/cairo_surface.h"
#include "toolkit/ref.h"
#include "toolkit/result.h"

#include <algorithm>

using namespace dtk;

namespace {

/// The distance between the outermost corners, which is the size of a software pen.
DFBDimension span(const DTKHDDVDPenShape& shape)
{
    const auto [left, right] = std::minmax({shape.x0, shape.x1, shape.x2, shape.x3});
    const auto [top, bottom] = std::minmax({shape.y0, shape.y1, shape.y2, shape.y3});
    return {right - left, bottom - top};
}

/// The alpha picture is only read by the processor, the palette picture is what every stamp blits from.
DFBResult create_picture(IDirectFB* dfb, DFBSurfaceCapabilities caps, DFBDimension size,
                         DFBSurfacePixelFormat format, IDirectFBSurface** ret_surface)
{
    DFBSurfaceDescription description = {};
    description.flags =
        static_cast<DFBSurfaceDescriptionFlags>(DSDESC_CAPS | DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT);
    description.caps = caps;
    description.width = size.w;
    description.height = size.h;
    description.pixelformat = format;
    return dfb->CreateSurface(dfb, &description, ret_surface);
}

/// Fills the shape in cairo's default colour, opaque black; a centred shape then just fits the surface.
void draw_shape(IDirectFB* dfb, IDirectFBSurface* surface, const DTKHDDVDPenShape& shape, DFBDimension size)
{
    const int shift_x = size.w / 2;
    const int shift_y = size.h / 2;
    cairo_surface_t* cairo_surface = create_cairo_surface(dfb, surface);
    cairo_t* context = cairo_create(cairo_surface);

    cairo_set_antialias(context, CAIRO_ANTIALIAS_NONE);
    cairo_move_to(context, shape.x0 + shift_x, shape.y0 + shift_y);
    cairo_line_to(context, shape.x1 + shift_x, shape.y1 + shift_y);
    cairo_line_to(context, shape.x2 + shift_x, shape.y2 + shift_y);
    cairo_line_to(context, shape.x3 + shift_x, shape.y3 + shift_y);
    LockedPixels pixels;
    if (lock_pixels(context, {0, 0, size.w, size.h}, pixels) == Pixels::ready)
        cairo_fill(context);
    unlock_pixels(cairo_surface, pixels);
    cairo_destroy(context);
    cairo_surface_destroy(cairo_surface);
}

/// The rows of a surface for as long as it is locked.
class LockedRows {
public:
    LockedRows(IDirectFBSurface* surface, DFBSurfaceLockFlags flags) : surface_(surface)
    {
        result_ = surface->Lock(surface, flags, &pixels_, &pitch_);
    }
    LockedRows(const LockedRows&) = delete;
    LockedRows& operator=(const LockedRows&) = delete;
    ~LockedRows()
    {
        if (!result_)
            surface_->Unlock(surface_);
    }

    DFBResult result() const { return result_; }
    u8* row(int y) const { return static_cast<u8*>(pixels_) + static_cast<std::ptrdiff_t>(y) * pitch_; }

private:
    IDirectFBSurface* surface_;
    void* pixels_ = nullptr;
    int pitch_ = 0;
    DFBResult result_;
};

struct Indices {
    u8 background, foreground;
};

/// Every alpha but 0 is inside.
DFBResult convert(IDirectFBSurface* alpha, IDirectFBSurface* picture, DFBDimension size, Indices indices)
{
    const LockedRows target(picture, DSLF_WRITE);
    if (target.result())
        return target.result();
    const LockedRows source(alpha, DSLF_READ);
    if (source.result())
        return source.result();

    for (int y = 0; y < size.h; ++y) {
        const u8* from = source.row(y);
        std::transform(from, from + size.w, target.row(y),
                       [=](u8 coverage) { return coverage ? indices.foreground : indices.background; });
    }
    return result::ok;
}

/// A picture that is made already when a later step fails is not released; pens are few.
DFBResult render_lut8(IDirectFB* dfb, const DTKHDDVDPenShape& shape, Indices indices, IDirectFBSurface** ret_picture)
{
    Ref<IDirectFBSurface> alpha;
    if (DFBResult result = render_pen_shape_a8(dfb, &shape, alpha.receive()))
        return result;

    DFBDimension size = {0, 0};
    if (DFBResult result = alpha->GetSize(alpha.get(), &size.w, &size.h))
        return result;

    IDirectFBSurface* picture = nullptr;
    if (DFBResult result = create_picture(dfb, DSCAPS_VIDEOONLY, size, DSPF_LUT8, &picture))
        return result;
    if (DFBResult result = picture->SetColorIndex(picture, indices.background))
        return result;
    if (DFBResult result = picture->FillRectangle(picture, 0, 0, size.w, size.h))
        return result;
    if (DFBResult result = convert(alpha.get(), picture, size, indices))
        return result;

    *ret_picture = picture;
    return result::ok;
}

} // namespace

DFBResult render_pen_shape_a8(IDirectFB* dfb, const DTKHDDVDPenShape* shape, IDirectFBSurface** ret_surface)
{
    const DFBDimension size = span(*shape);
    IDirectFBSurface* surface = nullptr;
    if (DFBResult result = create_picture(dfb, DSCAPS_SYSTEMONLY, size, DSPF_A8, &surface))
        return result;

    *ret_surface = surface;
    if (DFBResult result = surface->Clear(surface, 0, 0, 0, 0))
        return result;
    draw_shape(dfb, surface, *shape, size);
    return result::ok;
}

DFBResult render_pen_shape_lut8(IDirectFB* dfb, const DTKHDDVDPenShape* shape, u8 background_index,
                                u8 foreground_index, IDirectFBSurface** ret_surface)
{
    *ret_surface = nullptr;
    return render_lut8(dfb, *shape, {background_index, foreground_index}, ret_surface);
}
