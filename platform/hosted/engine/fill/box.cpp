#include "box.h"

#include <algorithm>

namespace zuvo {

namespace {

/// Those of the numbers from @p first up to, but without, @p end that lie from 0 up to @p size.
Span cut(int64_t first, int64_t end, int size)
{
    return {static_cast<int>(std::clamp(first, int64_t(0), int64_t(size))),
            static_cast<int>(std::clamp(end, int64_t(0), int64_t(size)))};
}

/// Gives the same spans in each of the rows; empty spans do no harm.
void give_rows(Span rows, const Span* spans, int parts, RowSink& sink)
{
    if (!is_empty(rows))
        sink.take_rows(sink, {rows.left, rows.right - rows.left, spans, 0, parts});
}

} // namespace

void give_box(const Box& box, Extent extent, RowSink& sink)
{
    const Span span = cut(box.left, box.right, extent.width);
    give_rows(cut(box.top, box.bottom, extent.height), &span, 1, sink);
}

void give_frame(const Box& outer, const Box& inner, Extent extent, RowSink& sink)
{
    if (inner.left >= inner.right || inner.top >= inner.bottom)
        return give_box(outer, extent, sink);

    give_box({outer.left, outer.top, outer.right, inner.top}, extent, sink);
    const Span sides[] = {cut(outer.left, inner.left, extent.width), cut(inner.right, outer.right, extent.width)};
    give_rows(cut(inner.top, inner.bottom, extent.height), sides, 2, sink);
    give_box({outer.left, inner.bottom, outer.right, outer.bottom}, extent, sink);
}

} // namespace zuvo
