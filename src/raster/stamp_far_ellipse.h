#ifndef DTK_RASTER_STAMP_FAR_ELLIPSE_H
#define DTK_RASTER_STAMP_FAR_ELLIPSE_H

#include "pen/batch.h"

namespace dtk {

struct Centre {
    long long x, y;
};

/// Stamps those points of an ellipse's outline whose stamps may be seen, and finishes the batch. It takes a copy: one whose
/// address is known would have to lie in memory.
DFBResult stamp_far_ellipse(const DFBRectangle& rect, const Centre& centre, StampBatch batch);

} // namespace dtk

#endif
