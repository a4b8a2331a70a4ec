#ifndef ZUVO_SPAN_H
#define ZUVO_SPAN_H

#include "pixels/rows.h"

#include <algorithm>
#include <cstdint>

namespace zuvo {

/// Neighbouring pixels of one row: the columns from left up to, but without, right.
using Span = RowSpan;

inline bool is_empty(const Span& span)
{
    return span.left >= span.right;
}

/// The size in pixels of what is drawn on; every coordinate from 0 up to it is inside.
struct Extent {
    int width, height;
};

/// Beyond every surface and pen; coordinates are cut to it.
const int far_away = 1 << 28;

inline int cut_to_far(int64_t coordinate)
{
    return static_cast<int>(std::clamp(coordinate, int64_t(-far_away), int64_t(far_away)));
}

struct RowSink;

/// Spans in each of neighbouring rows, from left to right; they may be empty.
struct SpanRows {
    int top;
    int count;
    const Span* spans;
    int step;               ///< From a row's first span to the next row's; 0 when all rows have the same ones.
    int parts = 1;          ///< Spans of one row.
    int origin = 0;         ///< The column that the spans are counted from.
};

/// Gives spans to a sink row by row.
void take_each_row(RowSink& sink, const SpanRows& rows);

/// Takes the coverage of a shape: spans inside the extent, no pixel of which is given twice.
struct RowSink {
    /// Takes spans of one row, from left to right, which neither overlap nor touch.
    void (*take)(RowSink& self, int row, const Span* spans, int count);

    void (*take_rows)(RowSink& self, const SpanRows& rows) = take_each_row;
};

} // namespace zuvo

#endif
