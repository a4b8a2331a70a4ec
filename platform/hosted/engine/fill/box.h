#ifndef ZUVO_BOX_H
#define ZUVO_BOX_H

#include "engine/span.h"

#include <cstdint>
#include <directfb.h>

namespace zuvo {

/// The pixels from left and top up to, but without, right and bottom; none when these are not greater.
struct Box {
    int64_t left, top, right, bottom;
};

/// Whether DirectFB would refuse to draw a rectangle.
inline bool is_empty(const DFBRectangle& rect)
{
    return rect.w <= 0 || rect.h <= 0;
}

/// Gives @p sink what of a box lies inside the extent.
void give_box(const Box& box, Extent extent, RowSink& sink);

/// Gives @p sink what of the outer box lies inside the extent and outside the inner box, which may have no pixels.
void give_frame(const Box& outer, const Box& inner, Extent extent, RowSink& sink);

} // namespace zuvo

#endif
