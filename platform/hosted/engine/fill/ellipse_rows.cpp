// The software back end's filled ellipse (geometry/ellipse_filler.h), kept as one span a row.
#include "ellipse_rows.h"

#include "geometry/ellipse_filler.h"

#include <algorithm>

namespace zuvo {
namespace {

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

    /// The same columns of two rows.
    void add_mirrored(long long lower, long long upper, long long left, long long right)
    {
        const Span span = {static_cast<int>(left), static_cast<int>(right)};
        add(static_cast<int>(lower), span);
        add(static_cast<int>(upper), span);
    }

    void add(int row, Span span)
    {
        if (row < top_ || row >= bottom_ || is_empty(span))
            return;
        Span& kept = rows_[static_cast<size_t>(row - top_)];
        kept = {std::min(kept.left, span.left), std::max(kept.right, span.right)};
    }

    void add_block(const DFBRegion& block)
    {
        for (int row = std::max(block.y1, top_); row < std::min(block.y2, bottom_); ++row)
            add(row, {block.x1, block.x2});
    }

    void give(RowSink& sink)
    {
        const int count = bottom_ - top_;
        for (int i = 0; i < count; ++i) {
            Span& span = rows_.items[i];
            span = {std::max(span.left, 0), std::min(span.right, width_)};
        }
        sink.take_rows(sink, {top_, count, rows_.items, 1});
    }

private:
    Buffer<Span>& rows_;
    int width_, top_, bottom_;
};

/// The rows of a filled ellipse of which nothing is cut off, around column 0: each is as wide to the left of the middle as
/// to its right, and the last span that is entered into a row is the widest.
class WholeEllipseFill {
public:
    /// @p rows has room for each row from one above the box to one below it.
    WholeEllipseFill(Span* rows, int width, int height) : rows_(rows), width_(width), height_(height) {}

    /// Returns how far the rows reach to each side; beyond everything when this is no such ellipse.
    int enter()
    {
        int reach = 0;
        rows_[height_ + 1] = {0, 0};
        const auto [block, block_rows] = geometry::walk_quarter(
            geometry::filled_quarter(width_, height_),
            [this](long long x, long long rows, bool turned) {
                if (turned)
                    enter_mirrored(rows, x);
            },
            [&](long long x, long long rows, long long) {
                reach = static_cast<int>(x);
                enter_mirrored(rows, x);
            });
        const int half_width = static_cast<int>(block);
        if (2 * block_rows < height_)
            rows_[height_ + 1 - block_rows] = {-half_width, half_width};
        return 2 * block_rows != height_ ? std::max(reach, half_width) : far_away;
    }

private:
    void enter_mirrored(long long rows, long long x)
    {
        const Span span = {static_cast<int>(-x), static_cast<int>(x)};
        rows_[rows] = span;
        rows_[height_ + 1 - rows] = span;
    }

    Span* rows_;
    int width_, height_;
};

/// The rows of an ellipse from one above its box to one below it, around column 0, and how far they reach to each side.
struct WholeEllipse {
    const Span* rows;
    int reach;
};

/// A small ellipse, kept because it is drawn sooner than walked.
struct SmallEllipse {
    static constexpr int limit = 32;

    int width, height;          ///< Of its box; 0 for none.
    int reach;
    Span rows[limit + 2];
};

bool is_small(int width, int height)
{
    return width <= SmallEllipse::limit && height <= SmallEllipse::limit;
}

WholeEllipse small_ellipse(int width, int height)
{
    static SmallEllipse kept[64];
    SmallEllipse& ellipse = kept[static_cast<unsigned int>(width + 5 * height) % 64];
    if (ellipse.width != width || ellipse.height != height) {
        ellipse.width = width;
        ellipse.height = height;
        ellipse.reach = WholeEllipseFill(ellipse.rows, width, height).enter();
    }
    return {ellipse.rows, ellipse.reach};
}

/// Without rows when there is no memory.
WholeEllipse whole_ellipse(Buffer<Span>& buffer, int width, int height)
{
    if (is_small(width, height))
        return small_ellipse(width, height);
    if (!buffer.reserve(static_cast<size_t>(height) + 2))
        return {nullptr, 0};
    return {buffer.items, WholeEllipseFill(buffer.items, width, height).enter()};
}

bool is_inside(const DFBRectangle& rect, Extent extent)
{
    return rect.x >= 0 && rect.y >= 0 && rect.w > 0 && rect.h > 0 && rect.x <= extent.width - rect.w
        && rect.y < extent.height - rect.h;
}

void add_huge_fill(FilledRows& rows, const DFBRectangle& rect)
{
    for (int row = rows.top(); row < rows.bottom(); ++row) {
        const Span span = huge_span(rect, row);
        rows.add(row, span);
    }
}

/// What lies between the sides of a row is the block, which touches them.
void add_fill(FilledRows& rows, const DFBRectangle& rect)
{
    using Number = long long;
    const DFBRegion block = geometry::EllipseFiller(rect).fill(
        [&rows](Number lower, Number upper, Number left, Number width) {
            rows.add_mirrored(lower, upper, left, left + width);
        },
        [&rows](Number lower, Number upper, Number left, Number right, Number width) {
            rows.add_mirrored(lower, upper, left, right + width);
        });
    rows.add_block(block);
}

} // namespace

bool has_no_inside(const DFBRectangle& rect)
{
    return rect.w < 2 || rect.h < 2;
}

bool fill_ellipse(Buffer<Span>& buffer, Extent extent, const DFBRectangle& rect, RowSink& sink)
{
    if (!is_inside(rect, extent) || (!is_small(rect.w, rect.h) && is_huge(rect)))
        return fill_cut_ellipse(buffer, extent, rect, sink);
    const WholeEllipse ellipse = whole_ellipse(buffer, rect.w, rect.h);
    if (!ellipse.rows)
        return false;
    const int middle = rect.x + rect.w / 2;
    if (ellipse.reach > std::min(middle, extent.width - middle))
        return fill_cut_ellipse(buffer, extent, rect, sink);
    sink.take_rows(sink, {rect.y, rect.h + 1, ellipse.rows + 1, 1, 1, middle});
    return true;
}

bool fill_cut_ellipse(Buffer<Span>& buffer, Extent extent, const DFBRectangle& rect, RowSink& sink)
{
    FilledRows rows(buffer, extent, int64_t(rect.y) - 1, int64_t(rect.y) + rect.h + 2);
    if (!rows.begin())
        return false;
    if (is_huge(rect))
        add_huge_fill(rows, rect);
    else
        add_fill(rows, rect);
    rows.give(sink);
    return true;
}

} // namespace zuvo
