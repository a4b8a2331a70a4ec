#include "pen/batch.h"
#include "raster/ellipse_walk.h"

DFBResult stamp_ellipse(IDirectFBSurface* dest, const DFBRectangle* rect, IDirectFBSurface* pen_surface)
{
    dtk::StampBatch batch(dest, pen_surface);
    dtk::walk_ellipse(
        *rect, [&](int x, int y) { batch.add(x, y); },
        [&](int right, int left, int lower, int upper) {
            batch.add(right, lower);
            batch.add(left, lower);
            batch.add(right, upper);
            batch.add(left, upper);
        });
    return batch.finish();
}
