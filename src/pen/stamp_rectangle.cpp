#include "pen/batch.h"

/// Each corner belongs to two sides and is stamped by both.
DFBResult stamp_rectangle(IDirectFBSurface* dest, const DFBRectangle* rect, IDirectFBSurface* pen_surface)
{
    const int right = rect->x + rect->w - 1;
    const int bottom = rect->y + rect->h - 1;
    dtk::StampBatch batch(dest, pen_surface);

    for (int column = 0; column < rect->w; ++column) {
        batch.add_pair(rect->x + column, rect->y, rect->x + column, bottom);
    }
    for (int row = 0; row < rect->h; ++row) {
        batch.add_pair(rect->x, rect->y + row, right, rect->y + row);
    }
    return batch.finish();
}
