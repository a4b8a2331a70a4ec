#ifndef ZUVO_HUGE_ELLIPSE_H
#define ZUVO_HUGE_ELLIPSE_H

#include "engine/outline/row_path.h"
#include "engine/span.h"

#include <directfb.h>

namespace zuvo {

/// Whether an ellipse is too large to be walked step by step. It is then worked out row by row, where it can be seen.
bool is_huge(const DFBRectangle& rect);

/// Adds the outline of a huge ellipse on the rows that the path keeps.
void add_huge_outline(RowPath& path, const DFBRectangle& rect);

/// The columns of a huge ellipse in one row, cut to what is far away; empty outside.
Span huge_span(const DFBRectangle& rect, int row);

} // namespace zuvo

#endif
