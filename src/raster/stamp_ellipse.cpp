#include "pen/batch.h"
#include "raster/ellipse_walk.h"

DFBResult stamp_ellipse(IDirectFBSurface* dest, const DFBRectangle* rect, IDirectFBSurface* pen_surface)
{
    const int cx = rect->x + rect->w / 2;
    const int cy = rect->y + rect->h / 2;
    dtk::StampBatch batch(dest, pen_surface);
    dtk::walk_ellipse(
        *rect, 1, [&](int pole) { batch.add_pair(cx, cy + pole, cx, cy - pole); },
        [&](int x, int y) {
            batch.add_pair(cx + x, cy + y, cx - x, cy + y);
            batch.add_pair(cx + x, cy - y, cx - x, cy - y);
        });
    return batch.finish();
}
