#ifndef ZUVO_THIN_OUTLINE_H
#define ZUVO_THIN_OUTLINE_H

#include "engine/paint/painter.h"

#include <directfb.h>

namespace zuvo {

/// Each writes an outline that is one pixel wide straight onto the target of a painter of one colour, pixel by pixel,
/// each pixel once. They return false, and have drawn nothing, when not all of the outline is sure to be on the target.

bool draw_thin_line(const Painter& painter, DFBPoint from, DFBPoint to);

bool draw_thin_ellipse(const Painter& painter, const DFBRectangle& rect);

} // namespace zuvo

#endif
