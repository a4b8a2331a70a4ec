#include "raster/outline_ellipse.h"

#include "raster/ellipse_walk.h"
#include "toolkit/result.h"

#include <cstddef>
#include <cstdio>

using namespace dtk;

namespace {

/// Stores one colour into the pixels of a locked surface.
class PixelWriter {
public:
    PixelWriter(void* pixels, int pitch, u32 color) : pixels_(static_cast<u32*>(pixels)), pitch_(pitch), color_(color) {}

    void store(int x, int y) const { pixels_[static_cast<std::ptrdiff_t>(y) * pitch_ / 4 + x] = color_; }

private:
    u32* pixels_;
    std::ptrdiff_t pitch_;
    u32 color_;
};

/// Stores the outline's pixels for which `is_wanted(x, y)` holds.
template <typename Predicate>
DFBResult draw_outline(IDirectFBSurface* dest, const DFBRectangle& rect, u32 color, Predicate&& is_wanted)
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

    const PixelWriter writer(pixels, pitch, color);
    const auto plot = [&](int x, int y) {
        if (is_wanted(x, y))
            writer.store(x, y);
    };
    const auto plot_four = [&](int right, int left, int lower, int upper) {
        plot(right, lower);
        plot(right, upper);
        plot(left, lower);
        plot(left, upper);
    };
    if (pixels)
        walk_ellipse(rect, plot, plot_four);

    dest->Unlock(dest);
    return result::ok;
}

/// Whether the run of pixels from `centre` - `reach` to `centre` + `reach` lies within 0 and `size`.
bool fits(int origin, int extent, int size)
{
    const long long half = extent / 2;
    const long long centre = origin + half;
    const long long reach = half < 0 ? -half : half;
    return centre - reach >= 0 && centre + reach < size;
}

} // namespace

namespace dtk {

bool outline_fits(const DFBRectangle& rect, DFBDimension size)
{
    return fits(rect.x, rect.w, size.w) && fits(rect.y, rect.h, size.h);
}

DFBResult outline_ellipse_clipped(IDirectFBSurface* dest, const DFBRectangle& rect, DFBDimension size, u32 color)
{
    return draw_outline(dest, rect, color,
                        [=](int x, int y) { return x >= 0 && x < size.w && y >= 0 && y < size.h; });
}

} // namespace dtk

DFBResult outline_ellipse_argb(IDirectFBSurface* dest, const DFBRectangle* rect, u32 color)
{
    return draw_outline(dest, *rect, color, [](int, int) { return true; });
}
