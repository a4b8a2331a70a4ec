#ifndef BENCH_CAIRO_PIXELS_H
#define BENCH_CAIRO_PIXELS_H

#include <cairo.h>
#include <directfb.h>

namespace bench {

/// Makes cairo's surface for an ARGB surface whose memory stays where it is: through cairo's DirectFB back end where the
/// process's cairo has one, else as an image over the memory.
cairo_surface_t* create_cairo_surface(IDirectFB* dfb, IDirectFBSurface* surface);

/// Locks a surface for an image of cairo's, to the end of the scope. The back end locks by itself.
class CairoPixels {
public:
    /// A surface of NULL is none.
    explicit CairoPixels(IDirectFBSurface* surface);
    CairoPixels(const CairoPixels&) = delete;
    CairoPixels& operator=(const CairoPixels&) = delete;
    ~CairoPixels();

private:
    IDirectFBSurface* locked_;
};

} // namespace bench

#endif
