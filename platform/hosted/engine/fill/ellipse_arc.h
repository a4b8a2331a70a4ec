#ifndef ZUVO_ELLIPSE_ARC_H
#define ZUVO_ELLIPSE_ARC_H

#include "polygon_scan.h"

#include <directfb.h>

namespace zuvo {

/// Adds the ellipse inside a box as edges, in the straight lines that cairo breaks a circle into which is moved to the
/// box's middle and scaled to half its size, both in whole pixels. The box lies within a million pixels.
void add_ellipse(PolygonScan& polygon, const DFBRectangle& rect);

} // namespace zuvo

#endif
