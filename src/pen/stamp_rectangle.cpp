#include "pen/batch.h"

namespace {

/// Stamps only where it may be seen.
DFBResult stamp_far_rectangle(const DFBRectangle& rect, dtk::StampBatch& batch)
{
    const long long left = rect.x, right = left + rect.w - 1, top = rect.y, bottom = top + rect.h - 1;
    const geometry::Range columns = intersect(batch.near_columns(), {left, right});
    const geometry::Range rows = intersect(batch.near_rows(), {top, bottom});

    for (long long column = columns.first; column <= columns.last; ++column) {
        batch.add_if_near(column, top);
        batch.add_if_near(column, bottom);
    }
    for (long long row = rows.first; row <= rows.last; ++row) {
        batch.add_if_near(left, row);
        batch.add_if_near(right, row);
    }
    return batch.finish();
}

} // namespace

/// Each corner belongs to two sides and is stamped by both.
DFBResult stamp_rectangle(IDirectFBSurface* dest, const DFBRectangle* rect, IDirectFBSurface* pen_surface)
{
    dtk::StampBatch batch(dest, pen_surface);
    if (!batch.is_near(rect->x, rect->y, 0LL + rect->x + rect->w - 1, 0LL + rect->y + rect->h - 1))
        return stamp_far_rectangle(*rect, batch);

    const int right = rect->x + rect->w - 1;
    const int bottom = rect->y + rect->h - 1;
    for (int column = 0; column < rect->w; ++column) {
        batch.add_pair(rect->x + column, rect->y, rect->x + column, bottom);
    }
    for (int row = 0; row < rect->h; ++row) {
        batch.add_pair(rect->x, rect->y + row, right, rect->y + row);
    }
    return batch.finish();
}
