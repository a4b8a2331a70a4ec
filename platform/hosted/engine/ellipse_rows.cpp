#include "ellipse_rows.h"

#include <algorithm>
#include <cmath>

namespace zuvo {
namespace {

const int walk_limit = 1 << 20;

bool is_within(int64_t value, int64_t limit)
{
    return value >= -limit && value <= limit;
}

/// One span a row. All spans of a row touch, so that their hull is their union.
class FilledRows {
public:
    FilledRows(Buffer<Span>& rows, Extent extent, int64_t top, int64_t bottom)
        : rows_(rows), width_(extent.width),
          top_(static_cast<int>(std::clamp(top, int64_t(0), int64_t(extent.height)))),
          bottom_(static_cast<int>(std::clamp(bottom, int64_t(top_), int64_t(extent.height))))
    {
    }

    int top() const { return top_; }
    int bottom() const { return bottom_; }

    bool begin()
    {
        const size_t count = static_cast<size_t>(bottom_ - top_);
        if (!rows_.reserve(count))
            return false;
        std::fill_n(rows_.items, count, Span{far_away, -far_away});
        return true;
    }

    void add(int row, int left, int width)
    {
        if (row < top_ || row >= bottom_ || width <= 0)
            return;
        Span& span = rows_[static_cast<size_t>(row - top_)];
        span.left = std::min(span.left, left);
        span.right = std::max(span.right, left + width);
    }

    void give(RowSink& sink) const
    {
        for (int row = top_; row < bottom_; ++row) {
            const Span& span = rows_[static_cast<size_t>(row - top_)];
            const Span seen = {std::max(span.left, 0), std::min(span.right, width_)};
            if (seen.left < seen.right)
                sink.take(sink, row, &seen, 1);
        }
    }

private:
    Buffer<Span>& rows_;
    int width_, top_, bottom_;
};

/// The walk along one quarter of the outline. All real numbers, as in the software back end: rounding towards zero
/// makes what lies left of column 0 or above row 0 differ from what would be the same shape further right or down.
struct FillWalk {
    FillWalk(const DFBRectangle& rect)
        : left(rect.x), top(rect.y), a(rect.w * 0.5), b((rect.h + 1) * 0.5), cx(rect.x + a), cy((rect.y - 1) + b),
          a2(a * a), b2(b * b), x(0), y(b)
    {
    }

    double left, top;
    double a, b, cx, cy;
    double a2, b2;
    double x, y;
};

void add_mirrored(FilledRows& rows, const FillWalk& walk, int left, int width)
{
    rows.add(static_cast<int>(walk.cy + walk.y), left, width);
    rows.add(static_cast<int>(walk.cy - walk.y), left, width);
}

/// The flat part: a row is as wide as the outline where it enters the row.
void add_caps(FilledRows& rows, FillWalk& walk)
{
    double d = walk.b2 - walk.a2 * walk.b + walk.a2 * 0.25;
    while ((walk.y - 0.5) * walk.a2 > (walk.x + 1) * walk.b2) {
        const double next_x = walk.x + 1;
        if (d < 0) {
            d += (2 * walk.x + 3) * walk.b2;
        } else {
            d += (2 * walk.x + 3) * walk.b2 + (-2 * walk.y + 2) * walk.a2;
            walk.y -= 1;
            add_mirrored(rows, walk, static_cast<int>(walk.cx - next_x), static_cast<int>(next_x + next_x));
        }
        walk.x = next_x;
    }
}

/// The steep part: what a row has on both sides of the block.
void add_sides(FilledRows& rows, FillWalk walk)
{
    if (!(walk.y > 0))
        return;
    const double block = walk.x;
    double d = (block + 0.5) * ((block + 0.5) * walk.b2) + (walk.y - 1) * ((walk.y - 1) * walk.a2) - walk.a2 * walk.b2;
    do {
        if (d < 0) {
            d += (2 * walk.x + 2) * walk.b2 + (-2 * walk.y + 3) * walk.a2;
            walk.x += 1;
        } else {
            d += (-2 * walk.y + 3) * walk.a2;
        }
        walk.y -= 1;
        const int width = static_cast<int>(walk.x - block);
        add_mirrored(rows, walk, static_cast<int>(walk.cx - walk.x), width);
        add_mirrored(rows, walk, static_cast<int>(block + walk.cx), width);
    } while (walk.y > 0);
}

void add_block(FilledRows& rows, const FillWalk& walk)
{
    const int left = static_cast<int>(walk.left + (walk.a - walk.x));
    const int top = static_cast<int>(walk.top + (walk.b - walk.y));
    const int bottom = top + static_cast<int>(walk.y + walk.y);
    for (int row = std::max(top, rows.top()); row < std::min(bottom, rows.bottom()); ++row)
        rows.add(row, left, static_cast<int>(walk.x + walk.x));
}

/// Half the width of an ellipse at a row, negative outside.
double half_width(const DFBRectangle& rect, int row)
{
    const double b = rect.h * 0.5;
    const double distance = (row + 0.5 - rect.y - b) / b;
    const double square = 1 - distance * distance;
    return square < 0 ? -1 : rect.w * 0.5 * std::sqrt(square);
}

/// The columns of a huge ellipse in one row, cut to what is far away; empty outside.
Span huge_span(const DFBRectangle& rect, int row)
{
    if (rect.w <= 0 || rect.h <= 0)
        return {0, 0};
    const double half = half_width(rect, row);
    const double middle = rect.x + rect.w * 0.5;
    if (half < 0)
        return {0, 0};
    return {cut_to_far(static_cast<int64_t>(middle - half)), cut_to_far(static_cast<int64_t>(middle + half))};
}

void add_huge_fill(FilledRows& rows, const DFBRectangle& rect)
{
    for (int row = rows.top(); row < rows.bottom(); ++row) {
        const Span span = huge_span(rect, row);
        rows.add(row, span.left, span.right - span.left);
    }
}

} // namespace

DFBRectangle inner_box(const DFBRectangle& rect)
{
    return {rect.x + 1, rect.y + 1, rect.w - 2, rect.h - 2};
}

bool has_no_inside(const DFBRectangle& rect)
{
    return rect.w < 2 || rect.h < 2;
}

bool is_huge(const DFBRectangle& rect)
{
    return !(is_within(rect.x, walk_limit) && is_within(rect.y, walk_limit) && is_within(rect.w, walk_limit)
             && is_within(rect.h, walk_limit));
}

void add_huge_outline(RowPath& path, const DFBRectangle& rect)
{
    for (int row = path.top; row < path.bottom; ++row) {
        const Span here = huge_span(rect, row);
        const Span outer = huge_span(rect, row < rect.y + rect.h / 2 ? row - 1 : row + 1);
        if (here.left >= here.right)
            continue;
        const bool is_pole = outer.left >= outer.right;
        const int middle = here.left + (here.right - here.left) / 2;
        path.add_run(0, row, here.left, is_pole ? middle : outer.left);
        path.add_run(1, row, is_pole ? middle : outer.right - 1, here.right - 1);
    }
}

bool fill_ellipse(Buffer<Span>& buffer, Extent extent, const DFBRectangle& rect, RowSink& sink)
{
    FilledRows rows(buffer, extent, int64_t(rect.y) - 1, int64_t(rect.y) + rect.h + 2);
    if (!rows.begin())
        return false;
    if (is_huge(rect)) {
        add_huge_fill(rows, rect);
    } else {
        FillWalk walk(rect);
        add_caps(rows, walk);
        const FillWalk flat_end = walk;
        add_sides(rows, walk);
        add_block(rows, flat_end);
    }
    rows.give(sink);
    return true;
}

} // namespace zuvo
