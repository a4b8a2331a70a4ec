#ifndef ZUVO_ELLIPSE_ROWS_H
#define ZUVO_ELLIPSE_ROWS_H

#include "buffer.h"
#include "row_path.h"
#include "span.h"

#include <directfb.h>

namespace zuvo {

/// The box one pixel inside of @p rect: where the software back end draws plain fills and outlines one pixel wide.
DFBRectangle inner_box(const DFBRectangle& rect);

/// Whether an ellipse's box is so small that it has no inner box. What is filled can then lie beside the box; the
/// software back end, when it blends, blends the box only.
bool has_no_inside(const DFBRectangle& rect);

/// Whether an ellipse is too large to be walked step by step. It is then worked out row by row, where it can be seen.
bool is_huge(const DFBRectangle& rect);

/// Adds the outline of a huge ellipse on the rows that the path keeps.
void add_huge_outline(RowPath& path, const DFBRectangle& rect);

/// Fills the ellipse inside a box, as the software back end does in @p box, exactly: with spans that are entered in the
/// walk over the flat and the steep part of the outline, and a block in the middle. @p rows is memory to work in.
/// Answers false without memory.
bool fill_ellipse(Buffer<Span>& rows, Extent extent, const DFBRectangle& rect, RowSink& sink);

} // namespace zuvo

#endif
