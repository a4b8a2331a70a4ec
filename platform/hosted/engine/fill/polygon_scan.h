#ifndef ZUVO_POLYGON_SCAN_H
#define ZUVO_POLYGON_SCAN_H

#include "engine/buffer.h"
#include "engine/span.h"

#include <cstdint>

namespace zuvo {

/// A point in 1/256 of a pixel. Whole numbers of pixels are corners of pixels, not their middles.
struct FixedPoint {
    int64_t x, y;
};

const int fixed_bits = 8;
const int64_t fixed_one = 1 << fixed_bits;

/// An edge that goes down, with its place in the row that is being scanned.
struct PolygonEdge {
    int first_row, end_row;
    int direction;
    int64_t x;              ///< In 1/256 of a pixel, rounded down; the rest, x_rest - height, is in 1 / height of that.
    int64_t x_rest;
    int64_t step, step_rest;
    int64_t height;
};

/// Finds the pixels inside a polygon by the winding rule, without antialiasing and exactly as cairo does.
///
/// A pixel row is looked at 127/256 below its upper edge, and a column begins where the polygon reaches 127/256 of it.
/// Where the polygon leaves a gap of one pixel between two spans, cairo closes it, unless every edge is horizontal or
/// vertical.
///
/// cairo cuts edges to the surface and puts what lies beyond its sides onto them, with some rounding of its own.
///
/// A plain record with buffers that are kept from one polygon to the next.
struct PolygonScan {
    /// Starts a polygon; only what lies inside @p extent matters.
    void begin(Extent extent);

    /// Adds an edge. The caller closes the polygon.
    void add_edge(FixedPoint from, FixedPoint to);

    /// Adds the part between two heights of a line that goes down, without cutting it.
    void add_piece(FixedPoint line_top, FixedPoint line_bottom, int64_t top, int64_t bottom, int direction);

    /// Gives every row of the polygon to @p sink. Returns false without memory.
    bool scan(RowSink& sink);

    /// The same for polygons of few edges, which are kept in order, and of many.
    bool scan_few(RowSink& sink);
    bool scan_many(RowSink& sink);

    /// Gives one row, between the active edges.
    void give_row(int row, size_t active_count, RowSink& sink);

    Extent extent;
    bool has_slanted_edge;
    bool out_of_memory;
    size_t edge_count;
    Buffer<PolygonEdge> edges;
    Buffer<PolygonEdge*> active;
    Buffer<Span> spans;
    Buffer<int> windings;
    Buffer<uint64_t> touched;
};

/// What cairo rounds with: just under half a pixel.
const int64_t below_half = fixed_one / 2 - 1;

/// The row of a height, or the column of a distance to the right.
inline int64_t to_pixel(int64_t fixed)
{
    return (fixed + below_half) >> fixed_bits;
}

/// A quotient rounded down and what remains.
struct Quotient {
    int64_t value, rest;
};

/// distance * slope_width / slope_height for a positive height: exact in the range of cairo's numbers, close beyond it.
Quotient along_slope(int64_t distance, int64_t slope_width, int64_t slope_height);

} // namespace zuvo

#endif
