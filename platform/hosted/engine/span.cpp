#include "span.h"

namespace zuvo {

void take_each_row(RowSink& sink, const SpanRows& rows)
{
    const Span* span = rows.spans;
    for (int i = 0; i < rows.count; ++i, span += rows.step) {
        if (!is_empty(*span))
            sink.take(sink, rows.top + i, span, 1);
    }
}

} // namespace zuvo
