#include "box.h"

#include <algorithm>

namespace zuvo {

void give_box(const Box& box, Extent extent, RowSink& sink)
{
    const int64_t top = std::max(box.top, int64_t(0)), bottom = std::min(box.bottom, int64_t(extent.height));
    const int64_t left = std::max(box.left, int64_t(0)), right = std::min(box.right, int64_t(extent.width));
    if (top >= bottom || left >= right)
        return;
    const Span span = {static_cast<int>(left), static_cast<int>(right)};
    sink.take_rows(sink, {static_cast<int>(top), static_cast<int>(bottom - top), &span, 0});
}

void give_border(const DFBRectangle& rect, const PenRows& pen, Extent extent, RowSink& sink)
{
    const Span span = pen.part(0, 0);
    const int64_t first_row = int64_t(rect.y) + pen.top, last_row = first_row + rect.h - 1;
    const Box outer = {int64_t(rect.x) + span.left, first_row, int64_t(rect.x) + rect.w - 1 + span.right,
                       last_row + pen.row_count};
    const Box inner = {int64_t(rect.x) + span.right, first_row + pen.row_count,
                       int64_t(rect.x) + rect.w - 1 + span.left, last_row};
    if (inner.left >= inner.right || inner.top >= inner.bottom)
        return give_box(outer, extent, sink);

    give_box({outer.left, outer.top, outer.right, inner.top}, extent, sink);
    give_box({outer.left, inner.top, inner.left, inner.bottom}, extent, sink);
    give_box({inner.right, inner.top, outer.right, inner.bottom}, extent, sink);
    give_box({outer.left, inner.bottom, outer.right, outer.bottom}, extent, sink);
}

} // namespace zuvo
