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

/// Widens the hulls by one row of the pen. Answers whether it is part of their union in every row: it touches what is
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
Span visible(int first, int end, Extent extent)
{
    return {std::max(first, 0), std::min(end, extent.width)};
}

bool is_empty(Span span)
{
    return span.left >= span.right;
}

void give_single(const Hulls& hulls, Extent extent, RowSink& sink)
{
    for (int row = hulls.rows.top; row < hulls.rows.bottom; ++row) {
        const int i = row - hulls.rows.top;
        const Span span = visible(hulls.first[i], hulls.end[i], extent);
        if (!is_empty(span))
            sink.take(sink, row, &span, 1);
    }
}

/// No hull of the first chain begins or ends right of the second one's.
void give_pair(const Hulls& left, const Hulls& right, Extent extent, RowSink& sink)
{
    for (int row = left.rows.top; row < left.rows.bottom; ++row) {
        const int i = row - left.rows.top;
        Span spans[2] = {visible(left.first[i], left.end[i], extent), visible(right.first[i], right.end[i], extent)};
        if (!is_empty(spans[0]) && !is_empty(spans[1])) {
            const bool are_apart = spans[0].right < spans[1].left;
            if (!are_apart)
                spans[0].right = spans[1].right;
            sink.take(sink, row, spans, are_apart ? 2 : 1);
        } else if (!is_empty(spans[0])) {
            sink.take(sink, row, &spans[0], 1);
        } else if (!is_empty(spans[1])) {
            sink.take(sink, row, &spans[1], 1);
        }
    }
}

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
        const Span span = visible(first + pen_span.left, last + pen_span.right, extent);
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
    if (path.chain_count == 1)
        give_single(hulls[0], extent, sink);
    else
        give_pair(hulls[0], hulls[1], extent, sink);
    return true;
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
