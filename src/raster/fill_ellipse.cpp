#include "geometry/box.h"
#include "geometry/ellipse_filler.h"
#include "raster/span_writer.h"
#include "toolkit/result.h"

#include <cstdio>

using namespace dtk;

namespace {

DFBRectangle whole_surface(IDirectFBSurface* surface)
{
    DFBRectangle area = {0, 0, 0, 0};
    surface->GetSize(surface, &area.w, &area.h);
    return area;
}

template <typename Pixel>
DFBRegion write_spans(IDirectFBSurface* dest, const DFBRectangle& rect, const DFBRectangle& clip, Pixel value)
{
    void* pixels = nullptr;
    int pitch = 0;
    dest->Lock(dest, DSLF_WRITE, &pixels, &pitch);
    const SpanWriter<Pixel> spans(pixels, pitch, clip, value);
    const DFBRegion block = geometry::EllipseFiller(rect).fill([&](auto... span) { spans.write_rows(span...); },
                                                               [&](auto... span) { spans.write_sides(span...); });
    dest->Unlock(dest);
    return block;
}

/// DirectFB fills the bulk of the ellipse; it is asked also when nothing of it is left.
DFBResult fill_block(IDirectFBSurface* dest, const DFBRegion& block, const DFBRectangle& clip)
{
    const DFBRectangle seen =
        geometry::intersection({block.x1, block.y1, block.x2 - block.x1, block.y2 - block.y1}, clip);
    return dest->FillRectangle(dest, seen.x, seen.y, seen.w, seen.h);
}

} // namespace

DFBResult fill_ellipse_argb(IDirectFBSurface* dest, const DFBRectangle* rect, const DFBRectangle* clip, u32 color)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    if (DFBResult result = dest->GetPixelFormat(dest, &format))
        return result;
    if (format != DSPF_ARGB && format != DSPF_RGB32) {
        std::fputs("fill_ellipse_argb only supports DSPF_ARGB and DSPF_RGB32\n", stderr);
        return result::unsupported;
    }

    const DFBRectangle area = clip ? *clip : whole_surface(dest);
    const DFBRegion block = write_spans<u32>(dest, *rect, area, color);
    dest->SetColor(dest, static_cast<u8>(color >> 16), static_cast<u8>(color >> 8), static_cast<u8>(color),
                   static_cast<u8>(color >> 24));
    fill_block(dest, block, area);
    return result::ok;
}

DFBResult fill_ellipse_lut8(IDirectFBSurface* dest, const DFBRectangle* rect, const DFBRectangle* clip, u32 color)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    if (DFBResult result = dest->GetPixelFormat(dest, &format))
        return result;
    if (DFB_BITS_PER_PIXEL(format) != 8) {
        std::fputs("fill_ellipse_lut8 only supports target pixel formats of 8 bits\n", stderr);
        return result::unsupported;
    }

    const DFBRectangle area = clip ? *clip : whole_surface(dest);
    const auto index = static_cast<u8>(color);
    const DFBRegion block = write_spans<u8>(dest, *rect, area, index);
    dest->SetColorIndex(dest, index);
    return fill_block(dest, block, area);
}
