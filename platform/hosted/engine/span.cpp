#include "span.h"

namespace zuvo {

void take_each_row(RowSink& sink, const SpanRows& rows)
{
    const Span* span = rows.spans;
    for (int i = 0; i < rows.count; ++i, span += rows.step) {
        for (const Span* part = span; part < span + rows.parts; ++part) {
            const Span moved = {rows.origin + part->left, rows.origin + part->right};
            if (!is_empty(moved))
                sink.take(sink, rows.top + i, &moved, 1);
        }
    }
}

} // namespace zuvo
