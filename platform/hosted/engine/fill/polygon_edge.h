#ifndef ZUVO_POLYGON_EDGE_H
#define ZUVO_POLYGON_EDGE_H

#include "polygon_scan.h"

#include <algorithm>

namespace zuvo {

/// Brings an edge to the next row.
inline void advance(PolygonEdge& edge)
{
    edge.x += edge.step;
    edge.x_rest += edge.step_rest;
    if (edge.x_rest >= 0) {
        ++edge.x;
        edge.x_rest -= edge.height;
    }
}

/// Beyond cairo's range of numbers an edge may leave the extent.
inline int column(const PolygonEdge& edge, int width)
{
    return static_cast<int>(std::clamp(to_pixel(edge.x), int64_t(0), int64_t(width)));
}

/// Gives rows whose only span lies between two edges, from @p row up to @p end_row, and puts the edges in order where they
/// cross.
void give_pairs(PolygonEdge** edges, int row, int end_row, int width, RowSink& sink);

} // namespace zuvo

#endif
