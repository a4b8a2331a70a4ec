#ifndef ZUVO_FILL_MEMORY_H
#define ZUVO_FILL_MEMORY_H

#include "polygon_scan.h"

namespace zuvo {

/// What making spans of a filled shape keeps from one call to the next. A plain record: an empty one has no memory yet.
struct FillMemory {
    PolygonScan polygon;
    Buffer<Span> rows;          ///< Of an ellipse.
};

} // namespace zuvo

#endif
