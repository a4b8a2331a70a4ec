#include "raster/outline_ellipse.h"

#include "geometry/box.h"
#include "geometry/ellipse_walk.h"
#include "toolkit/result.h"

#include <cstddef>
#include <cstdio>
#include <limits>

using namespace dtk;

namespace {

/// The pixels that may be stored to, the far edges not included.
struct Limits {
    long long left, top, right, bottom;
};

/// The rows and columns of a locked surface, seen from the centre of an ellipse.
class CentredPixels {
public:
    CentredPixels(void* pixels, int pitch, const DFBRectangle& box)
        : pitch_(pitch), cx_(box.x + box.w / 2), cy_(box.y + box.h / 2), pixels_(static_cast<u32*>(pixels) + cx_)
    {
    }

    /// Whether the rows lie a whole number of pixels apart.
    bool has_whole_rows() const { return pitch_ % pixel_size == 0; }

    std::ptrdiff_t row_size() const { return pitch_ / pixel_size; }
    u32* centre() const { return row(0); }

    /// Stores those of the four mirrored pixels that lie within the limits.
    [[gnu::noinline]] void store_within(const Limits& limits, int x, int y, u32 color) const
    {
        store_one_within(limits, x, y, color);
        store_one_within(limits, x, -y, color);
        store_one_within(limits, -x, y, color);
        store_one_within(limits, -x, -y, color);
    }

private:
    static constexpr int pixel_size = 4;

    /// The pixel of the centre's column in a row this far below the centre.
    u32* row(int y) const { return pixels_ + ((cy_ + y) * pitch_ >> 2); }

    void store_one_within(const Limits& limits, int x, int y, u32 color) const
    {
        const std::ptrdiff_t column = cx_ + x, line = cy_ + y;
        if (column >= limits.left && column < limits.right && line >= limits.top && line < limits.bottom)
            row(y)[x] = color;
    }

    std::ptrdiff_t pitch_, cx_, cy_;
    u32* pixels_;
};

/// Stores every pixel that lies within the limits, in rows that may lie any number of bytes apart.
void store_within(const Limits& limits, const CentredPixels& pixels, const DFBRectangle& box, u32 color)
{
    const auto store = [&](int x, int y) { pixels.store_within(limits, x, y, color); };
    geometry::walk_ellipse(box, 1, [&](int pole) { store(0, pole); }, store);
}

void store_all(const CentredPixels& pixels, const DFBRectangle& box, u32 color)
{
    u32* const centre = pixels.centre();
    const auto store = [&](std::ptrdiff_t x, std::ptrdiff_t rows) {
        u32* const lower = centre + rows;
        u32* const upper = centre - rows;
        lower[x] = color;
        upper[x] = color;
        lower[-x] = color;
        upper[-x] = color;
    };
    geometry::walk_ellipse(box, pixels.row_size(), [&](std::ptrdiff_t pole) { store(0, pole); }, store);
}

/// Stores the whole outline, or what of it lies within the limits.
void store(const CentredPixels& pixels, const DFBRectangle& box, const Limits* limits, u32 color)
{
    using Number = std::numeric_limits<long long>;
    constexpr Limits everywhere = {Number::min(), Number::min(), Number::max(), Number::max()};
    if (!limits && pixels.has_whole_rows())
        store_all(pixels, box, color);
    else
        store_within(limits ? *limits : everywhere, pixels, box, color);
}

DFBResult outline_ellipse(IDirectFBSurface* dest, const DFBRectangle& rect, const Limits* limits, u32 color)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    if (DFBResult result = dest->GetPixelFormat(dest, &format))
        return result;
    if (format != DSPF_ARGB) {
        std::fputs("outline_ellipse_argb supports only DSPF_ARGB", stderr);
        return result::invalid_argument;
    }

    void* pixels = nullptr;
    int pitch = 0;
    dest->Lock(dest, DSLF_WRITE, &pixels, &pitch);
    if (pixels)
        store(CentredPixels(pixels, pitch, rect), rect, limits, color);
    dest->Unlock(dest);
    return result::ok;
}

} // namespace

DFBResult dtk::outline_ellipse_inside(IDirectFBSurface* dest, const DFBRectangle& rect, DFBDimension size, u32 color)
{
    const Limits limits = {0, 0, size.w, size.h};
    return outline_ellipse(dest, rect, geometry::outline_fits(rect, size.w, size.h) ? nullptr : &limits, color);
}

DFBResult outline_ellipse_argb(IDirectFBSurface* dest, const DFBRectangle* rect, u32 color)
{
    return outline_ellipse(dest, *rect, nullptr, color);
}
