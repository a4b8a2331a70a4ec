#ifndef ZUVO_OUTLINE_MEMORY_H
#define ZUVO_OUTLINE_MEMORY_H

#include "outline_path.h"
#include "pen_rows.h"
#include "sweep.h"

namespace zuvo {

/// What making spans of an outline keeps from one call to the next. A plain record: an empty one has no memory yet.
struct OutlineMemory {
    /// Works out the pixels of a pen, unless they are those of the pen before. Returns a zuvo_error.
    int render_pen(const zuvo_dtk_pen& pen);

    PenRows pen_rows;
    zuvo_dtk_pen rendered_pen;
    bool is_pen_rendered;       ///< pen_rows holds the shape of rendered_pen.
    PolygonScan pen_polygon;
    RowPath path;
    Buffer<int> quarter;        ///< Of an ellipse that is walked.
    SweepMemory sweep_memory;
};

} // namespace zuvo

#endif
