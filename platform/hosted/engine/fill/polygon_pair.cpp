#include "polygon_edge.h"

#include <utility>

namespace zuvo {
namespace {

/// Collects the spans between two edges from row to row, @p limit at most or up to where they cross. Returns their number.
int collect_pairs(PolygonEdge& left, PolygonEdge& right, int width, int limit, Span* spans)
{
    PolygonEdge one = left, other = right;
    int count = 0;
    for (; count < limit && one.x <= other.x; ++count) {
        spans[count] = {column(one, width), column(other, width)};
        advance(one);
        advance(other);
    }
    left = one;
    right = other;
    return count;
}

} // namespace

void give_pairs(PolygonEdge** edges, int row, int end_row, int width, RowSink& sink)
{
    const int limit = 64; // Their memory stays in the nearest cache.
    Span spans[limit];
    while (row < end_row) {
        const int count = collect_pairs(*edges[0], *edges[1], width, std::min(end_row - row, limit), spans);
        sink.take_rows(sink, {row, count, spans, 1});
        row += count;
        if (edges[0]->x > edges[1]->x)
            std::swap(edges[0], edges[1]);
    }
}

} // namespace zuvo
