#include "raster/outline_ellipse.h"

#include "raster/ellipse_walk.h"
#include "toolkit/result.h"

#include <cstddef>
#include <cstdio>

using namespace dtk;

namespace {

/// The rows and columns of a locked surface, seen from the centre of an ellipse.
class CentredPixels {
public:
    CentredPixels(void* pixels, int pitch, const DFBRectangle& box)
        : pitch_(pitch), cx_(box.x + box.w / 2), cy_(box.y + box.h / 2), centre_row_(cy_ * pitch_),
          pixels_(static_cast<u32*>(pixels) + cx_)
    {
    }

    /// The distance in bytes of a row that lies this many rows from the centre's.
    std::ptrdiff_t bytes(int rows) const { return rows * pitch_; }

    /// Stores the four mirrored pixels at the distance x and as many bytes above and below the centre.
    void store_all(std::ptrdiff_t x, std::ptrdiff_t rows, u32 color) const
    {
        u32* const lower = middle_of(rows);
        u32* const upper = middle_of(-rows);
        lower[x] = color;
        upper[x] = color;
        lower[-x] = color;
        upper[-x] = color;
    }

    [[gnu::noinline]] void store_inside(DFBDimension size, int x, int y, u32 color) const
    {
        store_one_inside(size, x, y, color);
        store_one_inside(size, x, -y, color);
        store_one_inside(size, -x, y, color);
        store_one_inside(size, -x, -y, color);
    }

private:
    /// The pixel of the centre's column in a row as many bytes below the centre.
    u32* middle_of(std::ptrdiff_t rows) const { return pixels_ + ((centre_row_ + rows) >> 2); }

    static bool is_within(std::ptrdiff_t position, int size) { return position >= 0 && position < size; }

    void store_one_inside(DFBDimension size, int x, int y, u32 color) const
    {
        if (is_within(cx_ + x, size.w) && is_within(cy_ + y, size.h))
            middle_of(bytes(y))[x] = color;
    }

    std::ptrdiff_t pitch_, cx_, cy_, centre_row_;
    u32* pixels_;
};

/// Locks the surface and calls `store(pixels)`.
template <typename Store>
DFBResult draw_outline(IDirectFBSurface* dest, const DFBRectangle& rect, Store&& store)
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
        store(CentredPixels(pixels, pitch, rect));
    dest->Unlock(dest);
    return result::ok;
}

/// Whether the run of pixels that reaches `excess` further than half the extent to both sides of its middle lies within 0
/// and `size`.
bool fits(int origin, int extent, int excess, int size)
{
    const long long half = extent / 2;
    const long long centre = origin + half;
    const long long reach = (half < 0 ? -half : half) + excess;
    return centre - reach >= 0 && centre + reach < size;
}

} // namespace

namespace dtk {

bool outline_fits(const DFBRectangle& rect, DFBDimension size)
{
    // The walk may end one column beyond the half axis, in a box of 5 x 2 for one.
    return fits(rect.x, rect.w, 1, size.w) && fits(rect.y, rect.h, 0, size.h);
}

DFBResult outline_ellipse_clipped(IDirectFBSurface* dest, const DFBRectangle& rect, DFBDimension size, u32 color)
{
    return draw_outline(dest, rect, [=](const CentredPixels& pixels) {
        const auto store = [&](int x, int y) { pixels.store_inside(size, x, y, color); };
        walk_ellipse(rect, 1, [&](int pole) { store(0, pole); }, store);
    });
}

} // namespace dtk

DFBResult outline_ellipse_argb(IDirectFBSurface* dest, const DFBRectangle* rect, u32 color)
{
    return draw_outline(dest, *rect, [=](const CentredPixels& pixels) {
        const auto store = [&](std::ptrdiff_t x, std::ptrdiff_t rows) { pixels.store_all(x, rows, color); };
        walk_ellipse(*rect, pixels.bytes(1), [&](std::ptrdiff_t pole) { store(0, pole); }, store);
    });
}
