#ifndef ZUVO_ENGINE_H
#define ZUVO_ENGINE_H

#include "engine/outline/outline_path.h"
#include "engine/paint/painter.h"
#include "engine/outline/pen_rows.h"
#include "engine/fill/polygon_scan.h"
#include "engine/outline/sweep.h"
#include "zuvo.h"

namespace zuvo {

enum class Fill { none, colour, pattern };

/// The one drawing engine. Everything is drawn when a call returns.
struct Engine {
    unsigned int output;        ///< A surface handle, 0 when none is set.
    Fill fill;
    uint32_t fill_colour;
    unsigned int pattern;
    bool has_pen;
    bool is_pen_rendered;       ///< pen_rows holds the shape in pen, current or not.
    zuvo_dtk_pen pen;
    PenRows pen_rows;

    PolygonScan polygon;
    RowPath path;
    Buffer<int> quarter;        ///< Memory for walking an ellipse.
    SweepMemory sweep_memory;
    Buffer<Span> rows;
};

extern Engine engine;

/// Tells whether @p handle is the engine's and the engine is there.
bool is_engine(unsigned int handle);

} // namespace zuvo

#endif
