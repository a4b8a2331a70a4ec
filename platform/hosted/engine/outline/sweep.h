#ifndef ZUVO_SWEEP_H
#define ZUVO_SWEEP_H

#include "outline_path.h"
#include "pen_rows.h"

namespace zuvo {

/// Memory for sweeps, kept from one to the next. A plain record.
struct SweepMemory {
    Buffer<int> columns;
    Buffer<Span> spans;
};

/// Returns the rows on which a pen's points matter.
RowRange rows_in_reach(const PenRows& pen, Extent extent);

/// Gives @p sink every pixel that the pen covers at any point of the path, once. Returns false without memory.
bool sweep(SweepMemory& memory, const RowPath& path, const PenRows& pen, Extent extent, RowSink& sink);

/// The same, row by row and span by span: for pens and paths whose pixels in a row do not make one span a chain.
bool sweep_scattered(SweepMemory& memory, const RowPath& path, const PenRows& pen, Extent extent, RowSink& sink);

} // namespace zuvo

#endif
