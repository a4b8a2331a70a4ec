// The sweep of a convex pen along a path, scanline by scanline: the Minkowski sum of both, without a stamp at each point.
//
//      pen      path, one chain    covered
//      ##..     .x......           .##.....
//      ####  +  ..xx....     =     .####...
//      .##.     ....x...           ..#####.
//                                  ...#####
//                                  .....##.
//
// Row r of the sum is the union of the rows i of the path, each widened by row r - i of the pen. As long as these touch,
// the union is their hull, a first and a last column; widen_hulls sees where they do not. Then, and for a pen with two spans
// in a row, sweep_scattered joins the spans one by one.
#include "sweep.h"

#include <algorithm>

namespace zuvo {
namespace {

/// The rows of the surface that a sweep reaches.
struct ReachedRows {
    int top, bottom;
};

ReachedRows reached_rows(const RowPath& path, const PenRows& pen, Extent extent)
{
    const int top = std::max(path.top + pen.top, 0);
    const int bottom = std::min(path.bottom - 1 + pen.top + pen.row_count, extent.height);
    return {top, path.top < path.bottom ? std::max(top, bottom) : top};
}

/// The hull of what a chain covers, row by row; the columns from first up to, but without, end.
struct Hulls {
    int* first;
    int* end;
    ReachedRows rows;
};

/// Widens the hulls by one row of the pen. Returns whether it is part of their union in every row: it touches what is
/// there.
bool widen_hulls(const Hulls& hulls, const RowPath& path, const RowPath::Chain& chain, int offset, Span pen)
{
    const int top = std::max(hulls.rows.top, path.top + offset);
    const int count = std::min(hulls.rows.bottom, path.bottom + offset) - top;
    int* const hull_first = hulls.first + (top - hulls.rows.top);
    int* const hull_end = hulls.end + (top - hulls.rows.top);
    const int* const path_first = chain.first + (top - offset - path.top);
    const int* const path_last = chain.last + (top - offset - path.top);

    int apart = 0;
    for (int i = 0; i < count; ++i) {
        const int first = path_first[i] + pen.left;
        const int end = path_last[i] + pen.right;
        apart |= (hull_first[i] < hull_end[i]) & ((first > hull_end[i]) | (end < hull_first[i]));
        hull_first[i] = std::min(hull_first[i], first);
        hull_end[i] = std::max(hull_end[i], end);
    }
    return !apart;
}

bool make_hulls(const Hulls& hulls, const RowPath& path, int chain, const PenRows& pen)
{
    const int count = hulls.rows.bottom - hulls.rows.top;
    std::fill_n(hulls.first, count, 2 * far_away);
    std::fill_n(hulls.end, count, -2 * far_away);
    for (int row = 0; row < pen.row_count; ++row) {
        const Span span = pen.part(row, 0);
        if (span.left < span.right && !widen_hulls(hulls, path, path.chains[chain], pen.top + row, span))
            return false;
    }
    return true;
}

/// What of the columns from first up to end is on the surface.
Span visible(Span span, Extent extent)
{
    return {std::max(span.left, 0), std::min(span.right, extent.width)};
}

/// Makes one span of the spans of a row's two chains if they touch. No span of the left chain begins or ends right of the right
/// one's.
void join_touching(Span& left, Span& right)
{
    if (is_empty(left) || is_empty(right) || left.right < right.left)
        return;
    left.right = right.right;
    right = {0, 0};
}

/// Gives what each chain covers in each row, `hull_of(chain, row)`. Returns false without memory.
template <int ChainCount, typename HullOf>
bool give_chains(SweepMemory& memory, ReachedRows rows, Extent extent, RowSink& sink, const HullOf hull_of)
{
    const int count = rows.bottom - rows.top;
    if (!memory.spans.reserve(static_cast<size_t>(count) * ChainCount))
        return false;
    Span* spans = memory.spans.items;
    for (int row = rows.top; row < rows.bottom; ++row, spans += ChainCount) {
        Span seen[ChainCount];
        for (int chain = 0; chain < ChainCount; ++chain)
            seen[chain] = visible(hull_of(chain, row), extent);
        if (ChainCount == 2)
            join_touching(seen[0], seen[ChainCount - 1]);
        std::copy_n(seen, ChainCount, spans);
    }
    sink.take_rows(sink, {rows.top, count, memory.spans.items, ChainCount, ChainCount});
    return true;
}

template <typename HullOf>
bool give_hulls(SweepMemory& memory, int chain_count, ReachedRows rows, Extent extent, RowSink& sink,
                const HullOf& hull_of)
{
    return chain_count == 1 ? give_chains<1>(memory, rows, extent, sink, hull_of)
                            : give_chains<2>(memory, rows, extent, sink, hull_of);
}

/// What a pen whose rows are all the same covers on a path that turns once.
class BoxHulls {
public:
    BoxHulls(const RowPath& path, const PenRows& pen)
        : chains_{path.chains[0], path.chains[1]}, end_(path.bottom - path.top - 1), turn_(path.turn - path.top),
          offset_(path.top + pen.top), reach_(pen.row_count - 1), pen_(pen.part(0, 0))
    {
    }

    /// The path is furthest out in the first or the last of the rows from which the pen reaches this one, or at its
    /// turn.
    Span operator()(int chain, int row) const
    {
        const int* const first = chains_[chain].first;
        const int* const last = chains_[chain].last;
        const int a = std::max(row - offset_ - reach_, 0);
        const int b = std::min(row - offset_, end_);
        const int c = std::clamp(turn_, a, b);
        return {std::min(std::min(first[a], first[b]), first[c]) + pen_.left,
                std::max(std::max(last[a], last[b]), last[c]) + pen_.right};
    }

private:
    RowPath::Chain chains_[2];
    int end_, turn_;                ///< Rows of the path, counted from its first one.
    int offset_, reach_;
    Span pen_;
};

/// The spans of one row, in order and apart from each other.
class SpanSet {
public:
    explicit SpanSet(Span* spans) : spans_(spans), count_(0) {}

    void add(Span span)
    {
        int first = 0;
        while (first < count_ && spans_[first].right < span.left)
            ++first;
        int end = first;
        for (; end < count_ && spans_[end].left <= span.right; ++end)
            span = {std::min(span.left, spans_[end].left), std::max(span.right, spans_[end].right)};
        replace(first, end, span);
    }

    const Span* spans() const { return spans_; }
    int count() const { return count_; }

private:
    void replace(int first, int end, Span span)
    {
        if (end == first)
            std::copy_backward(spans_ + first, spans_ + count_, spans_ + count_ + 1);
        else
            std::copy(spans_ + end, spans_ + count_, spans_ + first + 1);
        count_ += 1 - (end - first);
        spans_[first] = span;
    }

    Span* spans_;
    int count_;
};

void add_run(SpanSet& set, int first, int last, const PenRows& pen, int pen_row, Extent extent)
{
    for (int part = 0; part < 2; ++part) {
        const Span pen_span = pen.part(pen_row, part);
        const Span span = visible({first + pen_span.left, last + pen_span.right}, extent);
        if (!is_empty(pen_span) && !is_empty(span))
            set.add(span);
    }
}

void collect_row(SpanSet& set, int row, const RowPath& path, const PenRows& pen, Extent extent)
{
    const int first_row = std::max(0, row - pen.top - (path.bottom - 1));
    const int end_row = std::min(pen.row_count, row - pen.top - path.top + 1);
    for (int pen_row = first_row; pen_row < end_row; ++pen_row) {
        const int i = row - pen.top - pen_row - path.top;
        for (int chain = 0; chain < path.chain_count; ++chain) {
            const RowPath::Chain& points = path.chains[chain];
            if (points.first[i] <= points.last[i])
                add_run(set, points.first[i], points.last[i], pen, pen_row, extent);
        }
    }
}

} // namespace

RowRange rows_in_reach(const PenRows& pen, Extent extent)
{
    return {int64_t(1) - pen.top - pen.row_count, int64_t(extent.height) - pen.top};
}

bool sweep(SweepMemory& memory, const RowPath& path, const PenRows& pen, Extent extent, RowSink& sink)
{
    if (pen.has_second_parts)
        return sweep_scattered(memory, path, pen, extent, sink);

    const ReachedRows rows = reached_rows(path, pen, extent);
    if (pen.is_box && path.turns_once)
        return give_hulls(memory, path.chain_count, rows, extent, sink, BoxHulls(path, pen));

    const size_t count = static_cast<size_t>(rows.bottom - rows.top);
    if (!memory.columns.reserve(4 * count))
        return false;
    Hulls hulls[2];
    for (int chain = 0; chain < path.chain_count; ++chain) {
        int* const start = memory.columns.items + 2 * static_cast<size_t>(chain) * count;
        hulls[chain] = {start, start + count, rows};
        if (!make_hulls(hulls[chain], path, chain, pen))
            return sweep_scattered(memory, path, pen, extent, sink);
    }
    return give_hulls(memory, path.chain_count, rows, extent, sink, [&hulls](int chain, int row) {
        const Hulls& hull = hulls[chain];
        return Span{hull.first[row - hull.rows.top], hull.end[row - hull.rows.top]};
    });
}

bool sweep_scattered(SweepMemory& memory, const RowPath& path, const PenRows& pen, Extent extent, RowSink& sink)
{
    if (!memory.spans.reserve(static_cast<size_t>(extent.width) / 2 + 2))
        return false;
    const ReachedRows rows = reached_rows(path, pen, extent);
    for (int row = rows.top; row < rows.bottom; ++row) {
        SpanSet set(memory.spans.items);
        collect_row(set, row, path, pen, extent);
        if (set.count())
            sink.take(sink, row, set.spans(), set.count());
    }
    return true;
}

} // namespace zuvo
