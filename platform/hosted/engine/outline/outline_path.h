#ifndef ZUVO_OUTLINE_PATH_H
#define ZUVO_OUTLINE_PATH_H

#include "row_path.h"
#include "engine/span.h"

#include <directfb.h>

namespace zuvo {

/// The rows from top up to, but without, bottom.
struct RowRange {
    int64_t top, bottom;
};

/// Each makes @p path the points that a pen visits and that lie in @p rows. They return false without memory.

/// Both ends of the line are visited.
bool line_path(RowPath& path, RowRange rows, DFBPoint from, DFBPoint to);

/// Cuts a line one pixel wide to the extent as DirectFB does, unless it is too long for that, and makes it go to the right.
/// Returns false when nothing of it is left.
bool cut_thin_line(Extent extent, DFBPoint& from, DFBPoint& to);

bool rectangle_path(RowPath& path, RowRange rows, const DFBRectangle& rect);

/// @p memory is memory to work in.
bool ellipse_path(RowPath& path, Buffer<int>& memory, RowRange rows, const DFBRectangle& rect);

} // namespace zuvo

#endif
