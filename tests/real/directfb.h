#pragma once

#include <dtkhddvd.h>
#include <memory>
#include <vector>

/// Real DirectFB for the tests, headless. It starts once for the process: on its own, so that everything is drawn by
/// DirectFB's software, or, when DTKHDDVD_TEST_DRIVER is "hosted", through the platform library with its graphics
/// driver.
namespace real {

template <class Interface>
struct ReleaseInterface {
    void operator()(Interface* object) const { object->Release(object); }
};

using Surface = std::unique_ptr<IDirectFBSurface, ReleaseInterface<IDirectFBSurface>>;
using Toolkit = std::unique_ptr<DTKHDDVD, ReleaseInterface<DTKHDDVD>>;
using Pen = std::unique_ptr<DTKHDDVDPen, ReleaseInterface<DTKHDDVDPen>>;

/// Whether the tests run on the platform's graphics driver.
bool uses_hosted_driver();

/// DirectFB's main interface, one reference of which the process holds to its end.
IDirectFB* directfb();

/// What an ARGB surface of these tests holds before anything is drawn.
constexpr u32 background = 0xff808080;

/// A surface outside the screen; ARGB and RGB32 ones are filled with the background, others with zeros.
Surface make_surface(int width, int height, DFBSurfacePixelFormat format = DSPF_ARGB);

/// Fills a surface with one colour, 0xAARRGGBB.
void clear(const Surface& surface, u32 color);

/// A software toolkit on `surface`.
Toolkit make_toolkit(IDirectFBSurface* surface, bool use_scratch_pad);

/// A pen, not yet set.
Pen make_pen(const Toolkit& toolkit, const DTKHDDVDPenShape& shape);

/// Sets a pen that the toolkit alone holds, until drop_pen.
void set_pen(const Toolkit& toolkit, const DTKHDDVDPenShape& shape);

/// Gives back the pen that a toolkit holds, which its Release leaves alone.
void drop_pen(const Toolkit& toolkit);

/// A pen as a rectangle of this many pixels.
DTKHDDVDPenShape rectangular_pen(int width, int height);

/// A surface's pixels, row by row, as numbers of its own format.
struct Pixels {
    int width, height;
    std::vector<u32> values;

    u32 at(int x, int y) const { return values.at(static_cast<std::size_t>(y * width + x)); }
    bool operator==(const Pixels& other) const { return values == other.values; }
};

Pixels read(IDirectFBSurface* surface);

/// Writes one pixel of a 32-bit surface.
void write_pixel(const Surface& surface, int x, int y, u32 value);

/// Whether an ARGB surface holds this one value everywhere.
bool holds_only(IDirectFBSurface* surface, u32 value);

/// The results of the library's own, and DirectFB's.
constexpr DFBResult own_failure = static_cast<DFBResult>(1);
constexpr DFBResult own_unsupported = static_cast<DFBResult>(5);
constexpr DFBResult own_invalid_argument = static_cast<DFBResult>(8);

} // namespace real
