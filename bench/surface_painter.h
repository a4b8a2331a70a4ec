#ifndef BENCH_SURFACE_PAINTER_H
#define BENCH_SURFACE_PAINTER_H

#include <directfb.h>

#include "painter.h"
#include "platform.h"

namespace bench {

template <typename Interface>
using Owned = tools::Owned<Interface>;

/// A new DSPF_ARGB surface.
Owned<IDirectFBSurface> create_surface(IDirectFB* dfb, int width, int height, DFBSurfaceCapabilities capabilities);

/// A surface with the texture of the patterned shapes.
Owned<IDirectFBSurface> create_texture(IDirectFB* dfb);

/// Another interface of a whole surface.
Owned<IDirectFBSurface> sub_surface(IDirectFBSurface* surface);

/// A surface's memory; the surface does not stay locked. DirectFB keeps one in system memory where it is.
Memory memory_of(IDirectFBSurface* surface);

/// Paints onto a DirectFB surface through an interface of its own.
class SurfacePainter : public Painter {
public:
    explicit SurfacePainter(IDirectFBSurface* shared) : surface_(sub_surface(shared)) {}

    void clear() override;
    Picture picture() override;

protected:
    IDirectFBSurface* surface() const { return surface_.get(); }

private:
    Owned<IDirectFBSurface> surface_;
};

} // namespace bench

#endif
