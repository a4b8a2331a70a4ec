#include "raster/stamp_far_ellipse.h"

#include "geometry/ellipse_walk.h"

#include <cstdlib>

namespace {

/// Whether all stamps may be seen. The walk may end one column beyond the half axis.
bool is_near(const DFBRectangle& rect, const dtk::Centre& centre, const dtk::StampBatch& batch)
{
    const long long a = std::abs(rect.w / 2LL) + 1, b = std::abs(rect.h / 2LL) + 1;
    return batch.is_near(centre.x - a, centre.y - b, centre.x + a, centre.y + b);
}

} // namespace

DFBResult stamp_ellipse(IDirectFBSurface* dest, const DFBRectangle* rect, IDirectFBSurface* pen_surface)
{
    const dtk::Centre centre = {0LL + rect->x + rect->w / 2, 0LL + rect->y + rect->h / 2};
    dtk::StampBatch batch(dest, pen_surface);
    if (!is_near(*rect, centre, batch))
        return dtk::stamp_far_ellipse(*rect, centre, batch);

    const int cx = static_cast<int>(centre.x);
    const int cy = static_cast<int>(centre.y);
    geometry::walk_ellipse(
        *rect, 1, [&](int pole) { batch.add_pair(cx, cy + pole, cx, cy - pole); },
        [&](int x, int y) {
            batch.add_pair(cx + x, cy + y, cx - x, cy + y);
            batch.add_pair(cx + x, cy - y, cx - x, cy - y);
        });
    return batch.finish();
}
