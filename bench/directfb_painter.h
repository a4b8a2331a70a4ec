#ifndef BENCH_DIRECTFB_PAINTER_H
#define BENCH_DIRECTFB_PAINTER_H

#include "surface_painter.h"

namespace bench {

/// DirectFB by itself, as a peer. It fills rectangles, triangles and tiles; of every other shape it gets the rows, computed
/// beforehand.
class DirectFBPainter : public SurfacePainter {
public:
    DirectFBPainter(IDirectFB* dfb, IDirectFBSurface* shared) : SurfacePainter(shared), texture_(create_texture(dfb)) {}

    Draw prepare(const Task& task) override;

private:
    void set_paint(Paint paint) const;
    Draw tiled(const Task& task) const;

    Owned<IDirectFBSurface> texture_;
};

} // namespace bench

#endif
