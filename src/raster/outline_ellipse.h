#ifndef DTK_RASTER_OUTLINE_ELLIPSE_H
#define DTK_RASTER_OUTLINE_ELLIPSE_H

#include "dtkhddvd.h"

namespace dtk {

/// Does what outline_ellipse_argb does, and leaves out the pixels that lie outside a surface of this size.
DFBResult outline_ellipse_inside(IDirectFBSurface* dest, const DFBRectangle& rect, DFBDimension size, u32 color);

} // namespace dtk

#endif
