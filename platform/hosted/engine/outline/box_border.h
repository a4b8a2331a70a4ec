#ifndef ZUVO_BOX_BORDER_H
#define ZUVO_BOX_BORDER_H

#include "pen_rows.h"

#include <directfb.h>

namespace zuvo {

/// Gives @p sink, once, every pixel that a pen whose rows are all the same covers on the border of a box, which has at
/// least one pixel.
void give_border(const DFBRectangle& rect, const PenRows& pen, Extent extent, RowSink& sink);

} // namespace zuvo

#endif
