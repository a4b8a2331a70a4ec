#include "box_border.h"

#include "engine/fill/box.h"

namespace zuvo {

void give_border(const DFBRectangle& rect, const PenRows& pen, Extent extent, RowSink& sink)
{
    const Span span = pen.part(0, 0);
    const int64_t first_row = int64_t(rect.y) + pen.top, last_row = first_row + rect.h - 1;
    const int64_t last_column = int64_t(rect.x) + rect.w - 1;
    const Box outer = {int64_t(rect.x) + span.left, first_row, last_column + span.right, last_row + pen.row_count};
    const Box inner = {int64_t(rect.x) + span.right, first_row + pen.row_count, last_column + span.left, last_row};
    give_frame(outer, inner, extent, sink);
}

} // namespace zuvo
