// Scanline conversion with an active edge list (C. Wylie and others, 1967) and the winding rule.
//
// Edges wait in the order of their first row. While a row is scanned the active ones are those that cross it, each with
// the column where it does; in scan_few they are in the order of these columns. Few edges stay in order from row to row.
// Many would be sorted anew in each, so scan_many adds them to a row of winding numbers instead.
#include "polygon_edge.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <utility>

namespace zuvo {
namespace {

/// More edges than these are not kept in order from row to row: with as many in each row that takes longer than to look
/// at its columns.
const size_t crowd = 256;

/// Products of an edge's width and height stay exact up to here, which is beyond the range of cairo's numbers.
const int64_t exact_limit = int64_t(1) << 31;

/// Divides by a positive number, rounding down.
Quotient divide(int64_t dividend, int64_t divisor)
{
    Quotient quotient = {dividend / divisor, dividend % divisor};
    if (quotient.rest < 0) {
        --quotient.value;
        quotient.rest += divisor;
    }
    return quotient;
}

PolygonEdge make_edge(FixedPoint top, FixedPoint bottom, int first_row, int end_row, int direction)
{
    const int64_t width = bottom.x - top.x;
    const int64_t height = bottom.y - top.y;
    const Quotient start = along_slope(first_row * fixed_one + below_half - top.y, width, height);
    const Quotient step = divide(width * fixed_one, height);
    return {first_row, end_row, direction, top.x + start.value, start.rest - height, step.value, step.rest, height};
}

/// Puts @p edge where it belongs among the sorted edges before @p place.
void insert_by_x(PolygonEdge** edges, size_t place, PolygonEdge* edge)
{
    for (; place > 0 && edges[place - 1]->x > edge->x; --place)
        edges[place] = edges[place - 1];
    edges[place] = edge;
}

/// Keeps the edges in the order in which they are.
void put_last(PolygonEdge** edges, size_t place, PolygonEdge* edge)
{
    edges[place] = edge;
}

/// Brings edges to the next row and drops those that end there; `put(edges, place, edge)` puts each of the others behind
/// those before. Returns how many are left.
template <typename Put>
size_t advance_all(PolygonEdge** edges, size_t count, int row, Put&& put)
{
    size_t kept = 0;
    for (size_t i = 0; i < count; ++i) {
        PolygonEdge* const edge = edges[i];
        if (edge->end_row <= row)
            continue;
        advance(*edge);
        put(edges, kept++, edge);
    }
    return kept;
}

/// Stores the spans of a row and returns their number. The edges are in order of their columns:
///
///     edge         +1       -1   +1     -1         +1 goes down, -1 up
///     winding   0   1  1  1  0 0  1  1   0         of what lies right of an edge
///     span          ##########    ########         a gap of up to `closed_gap` columns makes one span of both
int collect_spans(PolygonEdge* const* edges, size_t count, int width, int closed_gap, Span* spans)
{
    int span_count = 0, winding = 0, start = -1;
    int end = count ? column(*edges[0], width) : 0;
    for (size_t i = 0; i < count; ++i) {
        const int next = i + 1 < count ? column(*edges[i + 1], width) : INT_MAX;
        winding += edges[i]->direction;
        if (winding != 0) {
            if (start < 0)
                start = end;
        } else if (next > end + closed_gap) {
            if (start >= 0 && end > start)
                spans[span_count++] = {start, end};
            start = -1;
        }
        end = next;
    }
    return span_count;
}

size_t drop_ended(PolygonEdge** edges, size_t count, int row)
{
    const auto ends = [row](const PolygonEdge* edge) { return edge->end_row <= row; };
    return static_cast<size_t>(std::remove_if(edges, edges + count, ends) - edges);
}

/// How the winding number changes along a row, column by column. Edges that begin in the same column need no order.
class RowOfEdges {
public:
    /// Returns false without memory.
    bool prepare(Buffer<int>& windings, Buffer<uint64_t>& touched, int width)
    {
        const size_t columns = static_cast<size_t>(width) + 1;
        word_count_ = columns / 64 + 1;
        if (!windings.reserve(columns) || !touched.reserve(word_count_))
            return false;
        windings_ = windings.items;
        touched_ = touched.items;
        std::fill_n(windings_, columns, 0);
        std::fill_n(touched_, word_count_, 0);
        return true;
    }

    void add(int column, int direction)
    {
        windings_[column] += direction;
        touched_[column / 64] |= uint64_t(1) << column % 64;
    }

    /// Stores the row's spans, returns their number and forgets the edges.
    int take_spans(int closed_gap, Span* spans)
    {
        int span_count = 0, winding = 0, start = -1, end = 0;
        const auto close = [&] {
            if (start >= 0 && end > start)
                spans[span_count++] = {start, end};
            start = -1;
        };
        for (size_t word = 0; word < word_count_; ++word) {
            for (uint64_t rest = std::exchange(touched_[word], 0); rest; rest &= rest - 1) {
                const int column = static_cast<int>(word) * 64 + __builtin_ctzll(rest);
                if (winding == 0 && column > end + closed_gap)
                    close();
                if (start < 0)
                    start = column;
                winding += std::exchange(windings_[column], 0);
                end = column;
            }
        }
        close();
        return span_count;
    }

private:
    int* windings_;
    uint64_t* touched_;
    size_t word_count_;
};

} // namespace

Quotient along_slope(int64_t distance, int64_t slope_width, int64_t slope_height)
{
    if (slope_height < exact_limit && slope_width < exact_limit && slope_width > -exact_limit)
        return divide(distance * slope_width, slope_height);
    const double slope = static_cast<double>(slope_width) / static_cast<double>(slope_height);
    return {static_cast<int64_t>(std::floor(static_cast<double>(distance) * slope)), 0};
}

void PolygonScan::begin(Extent new_extent)
{
    extent = new_extent;
    has_slanted_edge = false;
    out_of_memory = false;
    edge_count = 0;
}

void PolygonScan::add_piece(FixedPoint line_top, FixedPoint line_bottom, int64_t top, int64_t bottom, int direction)
{
    const int first_row = static_cast<int>(to_pixel(top));
    const int end_row = std::min(static_cast<int>(to_pixel(bottom)), extent.height);
    if (first_row >= end_row)
        return;
    if (!edges.reserve(edge_count + 1)) {
        out_of_memory = true;
        return;
    }
    edges[edge_count++] = make_edge(line_top, line_bottom, first_row, end_row, direction);
}

bool PolygonScan::scan(RowSink& sink)
{
    if (out_of_memory || !active.reserve(edge_count) || !spans.reserve(edge_count))
        return false;
    std::sort(edges.items, edges.items + edge_count,
              [](const PolygonEdge& one, const PolygonEdge& other) { return one.first_row < other.first_row; });
    return edge_count <= crowd ? scan_few(sink) : scan_many(sink);
}

bool PolygonScan::scan_few(RowSink& sink)
{
    size_t waiting = 0, active_count = 0;
    for (int row = 0; waiting < edge_count || active_count;) {
        if (!active_count)
            row = edges[waiting].first_row;
        for (; waiting < edge_count && edges[waiting].first_row == row; ++waiting)
            insert_by_x(active.items, active_count++, &edges[waiting]);

        if (active_count == 2 && active[0]->direction != active[1]->direction) {
            const int next_row = waiting < edge_count ? edges[waiting].first_row : INT_MAX;
            const int end_row = std::min({active[0]->end_row, active[1]->end_row, next_row});
            give_pairs(active.items, row, end_row, extent.width, sink);
            row = end_row;
            active_count = drop_ended(active.items, active_count, row);
            continue;
        }
        give_row(row, active_count, sink);
        active_count = advance_all(active.items, active_count, ++row, insert_by_x);
    }
    return true;
}

void PolygonScan::give_row(int row, size_t active_count, RowSink& sink)
{
    const int closed_gap = has_slanted_edge ? 1 : 0;
    const int count = collect_spans(active.items, active_count, extent.width, closed_gap, spans.items);
    if (count)
        sink.take(sink, row, spans.items, count);
}

bool PolygonScan::scan_many(RowSink& sink)
{
    const int closed_gap = has_slanted_edge ? 1 : 0;
    RowOfEdges edges_by_column = {};
    if (!edges_by_column.prepare(windings, touched, extent.width))
        return false;

    size_t waiting = 0, active_count = 0;
    for (int row = 0; waiting < edge_count || active_count; ++row) {
        if (!active_count)
            row = edges[waiting].first_row;
        for (; waiting < edge_count && edges[waiting].first_row == row; ++waiting)
            active[active_count++] = &edges[waiting];

        for (size_t i = 0; i < active_count; ++i)
            edges_by_column.add(column(*active[i], extent.width), active[i]->direction);
        const int count = edges_by_column.take_spans(closed_gap, spans.items);
        if (count)
            sink.take(sink, row, spans.items, count);

        active_count = advance_all(active.items, active_count, row + 1, put_last);
    }
    return true;
}

} // namespace zuvo
