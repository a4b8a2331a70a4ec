#ifndef DTK_SOFTWARE_THIN_LINE_H
#define DTK_SOFTWARE_THIN_LINE_H

#include <directfb.h>

namespace dtk {

/// Draws a line one pixel wide in the surface's drawing colour, of any length.
DFBResult draw_thin_line(IDirectFBSurface* surface, const DFBPoint& from, const DFBPoint& to);

} // namespace dtk

#endif
