#ifndef BENCH_RECORDER_H
#define BENCH_RECORDER_H

#include <vector>

#include <directfb.h>

#include "shape.h"

namespace bench {

/// The arguments of one BatchBlit.
struct Stamps {
    std::vector<DFBRectangle> rectangles;
    std::vector<DFBPoint> points;
};

/// The central block that the toolkit leaves to DirectFB when it fills the ellipse @p box; the rest of the ellipse is
/// drawn onto @p surface.
DFBRectangle record_block(IDirectFBSurface* surface, const DFBRectangle& box, u32 colour);

/// The stamps that the toolkit sets for the outline of @p shape; nothing is drawn.
std::vector<Stamps> record_stamps(IDirectFBSurface* surface, IDirectFBSurface* pen, const Shape& shape);

} // namespace bench

#endif
