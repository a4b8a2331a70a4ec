#include "geometry/ellipse_walk.h"
#include "raster/span_writer.h"
#include "toolkit/result.h"

#include <cstdio>

using namespace dtk;

namespace {

/// A filled ellipse inside a box, walked over one quarter that is mirrored into the other three.
///
/// Its half axes are w / 2 and (h + 1) / 2, and its centre lies half a row above the box's: so the rows come out whole,
/// and with k rows left behind the walk is on the rows box.y + h - k and box.y - 1 + k.
template <typename Pixel>
class EllipseFiller {
public:
    EllipseFiller(const DFBRectangle& box, const SpanWriter<Pixel>& spans) : box_(box), spans_(spans) {}

    /// Writes every row but for the ellipse's central block, and returns that block.
    ///
    /// While the outline is flat a whole row is written when the walk enters it; where it is steep each row is written
    /// left and right of the block.
    DFBRegion write_spans()
    {
        const long long height = box_.h + 1LL;
        walk_quarter({box_.w, height, height},
                     [this](long long x, long long rows, bool turned) { write_cap(x, rows, turned); },
                     [this](long long x, long long rows) { write_sides(x, rows); });
        return block();
    }

private:
    void write_cap(long long x, long long rows, bool turned)
    {
        block_half_width_ = x;
        block_rows_ = rows;
        if (turned)
            spans_.write_rows(lower(rows), upper(rows), column_left(x), 2 * x);
    }

    void write_sides(long long x, long long rows) const
    {
        const long long width = x - block_half_width_;
        if (width == 0)
            return;
        spans_.write_sides(lower(rows), upper(rows), column_left(x), column_left(-block_half_width_), width);
    }

    /// The rows that the walk is on, with this many rows left behind.
    long long lower(long long rows) const { return 1LL * box_.y + box_.h - rows; }
    long long upper(long long rows) const { return 1LL * box_.y - 1 + rows; }

    /// The column at the distance x left of the centre, which lies between two columns when the width is odd; it is cut
    /// towards zero.
    long long column_left(long long x) const { return (2LL * box_.x + box_.w - 2 * x) / 2; }

    /// The rows and columns around the centre where the outline was flat, the far edges not included. In a small box it
    /// may be empty or reach beyond the ellipse.
    DFBRegion block() const
    {
        const long long left = column_left(block_half_width_);
        const long long top = box_.y + block_rows_;
        return {static_cast<int>(left), static_cast<int>(top), static_cast<int>(left + 2 * block_half_width_),
                static_cast<int>(top + box_.h + 1 - 2 * block_rows_)};
    }

    DFBRectangle box_;
    const SpanWriter<Pixel>& spans_;
    long long block_half_width_ = 0;
    long long block_rows_ = 0;
};

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
    const DFBRegion block = EllipseFiller<Pixel>(rect, spans).write_spans();
    dest->Unlock(dest);
    return block;
}

/// DirectFB fills the bulk of the ellipse; it is asked also when nothing of it is left.
DFBResult fill_block(IDirectFBSurface* dest, const DFBRegion& block, const DFBRectangle& clip)
{
    const int left = std::max(block.x1, clip.x);
    const int top = std::max(block.y1, clip.y);
    const int right = std::min(block.x2, clip.x + clip.w);
    const int bottom = std::min(block.y2, clip.y + clip.h);
    return dest->FillRectangle(dest, left, top, right - left, bottom - top);
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
