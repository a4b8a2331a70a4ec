#ifndef ZUVO_ELLIPSE_ROWS_H
#define ZUVO_ELLIPSE_ROWS_H

#include "engine/buffer.h"
#include "huge_ellipse.h"
#include "engine/span.h"

#include <directfb.h>

namespace zuvo {

/// Whether an ellipse's box is so small that it has no inner box. What is filled can then lie beside the box; the
/// software back end, when it blends, blends the box only.
bool has_no_inside(const DFBRectangle& rect);

/// Fills the ellipse inside a box, as the software back end does in @p box, exactly: with spans that are entered in the
/// walk over the flat and the steep part of the outline, and a block in the middle. @p buffer is memory to work in.
/// Returns false without memory.
bool fill_ellipse(Buffer<Span>& buffer, Extent extent, const DFBRectangle& rect, RowSink& sink);

/// The same, also for ellipses that are partly or wholly outside.
bool fill_cut_ellipse(Buffer<Span>& buffer, Extent extent, const DFBRectangle& rect, RowSink& sink);

} // namespace zuvo

#endif
