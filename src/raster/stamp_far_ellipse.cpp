#include "raster/stamp_far_ellipse.h"

#include "geometry/ellipse_walk.h"

namespace dtk {
namespace {

/// Queues four mirrored stamps. The code is there once, for most steps of a far ellipse do not come here.
[[gnu::noinline]] void stamp_four(StampBatch& batch, const Centre& centre, long long x, long long y)
{
    batch.add_if_near(centre.x + x, centre.y + y);
    batch.add_if_near(centre.x - x, centre.y + y);
    batch.add_if_near(centre.x + x, centre.y - y);
    batch.add_if_near(centre.x - x, centre.y - y);
}

} // namespace

// An ellipse is walked as a whole, since how its steps are rounded belongs to it.
DFBResult stamp_far_ellipse(const DFBRectangle& rect, const Centre& centre, StampBatch batch)
{
    const geometry::Range columns = batch.near_columns(), rows = batch.near_rows();
    const auto stamp = [&](long long x, long long y) {
        const bool is_column_near = columns.contains(centre.x + x) || columns.contains(centre.x - x);
        if (is_column_near && (rows.contains(centre.y + y) || rows.contains(centre.y - y)))
            stamp_four(batch, centre, x, y);
    };
    const auto stamp_poles = [&](long long pole) {
        batch.add_if_near(centre.x, centre.y + pole);
        batch.add_if_near(centre.x, centre.y - pole);
    };
    geometry::walk_ellipse(rect, 1LL, stamp_poles, stamp);
    return batch.finish();
}

} // namespace dtk
