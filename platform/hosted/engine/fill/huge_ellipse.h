#ifndef ZUVO_HUGE_ELLIPSE_H
#define ZUVO_HUGE_ELLIPSE_H

#include "engine/span.h"

#include <directfb.h>

namespace zuvo {

/// Whether an ellipse is too large to be walked step by step. It is then worked out row by row, where it can be seen.
bool is_huge(const DFBRectangle& rect);

/// The columns of a huge ellipse in one row, cut to what is far away; empty outside.
Span huge_span(const DFBRectangle& rect, int row);

} // namespace zuvo

#endif
