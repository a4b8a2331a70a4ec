#include "ellipse_rows.h"

#include "raster/ellipse_walk.h"

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

    void add(int row, Span span)
    {
        if (row < top_ || row >= bottom_ || is_empty(span))
            return;
        Span& kept = rows_[static_cast<size_t>(row - top_)];
        kept = {std::min(kept.left, span.left), std::max(kept.right, span.right)};
    }

    void add_block(int top, int bottom, Span span)
    {
        for (int row = std::max(top, top_); row < std::min(bottom, bottom_); ++row)
            add(row, span);
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

/// Enters a filled ellipse into rows, from the walk over a quarter of its outline that the software back end takes.
///
/// Where the outline is flat a row is as wide as the outline is where it enters the row. Where it is steep a row has a
/// part on each side of the block, which is as wide as the outline is where it becomes steep.
class EllipseFill {
public:
    EllipseFill(FilledRows& rows, const DFBRectangle& box) : rows_(rows), box_(box) {}

    void enter()
    {
        const long long height = box_.h + 1LL;
        dtk::walk_quarter({box_.w, height, height},
                          [this](long long x, long long rows, bool turned) { enter_cap(x, rows, turned); },
                          [this](long long x, long long rows) { enter_sides(x, rows); });

        const int top = static_cast<int>(box_.y + block_rows_);
        const Span block = {column(block_), column(block_) + static_cast<int>(2 * block_)};
        rows_.add_block(top, top + static_cast<int>(height - 2 * block_rows_), block);
    }

private:
    void enter_cap(long long x, long long rows, bool turned)
    {
        block_ = x;
        block_rows_ = rows;
        if (turned)
            add_mirrored(rows, {column(x), column(x) + static_cast<int>(2 * x)});
    }

    void enter_sides(long long x, long long rows)
    {
        if (x > block_)
            add_mirrored(rows, {column(x), column(-block_) + static_cast<int>(x - block_)});
    }

    void add_mirrored(long long rows, Span span)
    {
        rows_.add(static_cast<int>(box_.y + box_.h - rows), span);
        rows_.add(static_cast<int>(box_.y - 1 + rows), span);
    }

    /// The column at the distance x left of the centre, cut towards zero: what lies left of column 0 may differ from
    /// what would be the same shape further right.
    int column(long long x) const { return static_cast<int>((2LL * box_.x + box_.w - 2 * x) / 2); }

    FilledRows& rows_;
    DFBRectangle box_;
    long long block_ = 0;           ///< Half the width of the block.
    long long block_rows_ = 0;      ///< How many rows of each half lie beyond it.
};

/// The same where nothing is cut off, around column 0: every row is as wide to the left of the middle as to its right, and
/// the last span that is entered into a row is the widest.
class WholeEllipseFill {
public:
    /// @p rows has room for each row from one above the box to one below it.
    WholeEllipseFill(Span* rows, int width, int height) : rows_(rows), width_(width), height_(height + 1) {}

    /// Returns how far the rows reach to each side; beyond everything when this is no such ellipse.
    int enter()
    {
        int block = 0, block_rows = 0, reach = 0;
        rows_[height_] = {0, 0};
        dtk::walk_quarter(
            {width_, height_, height_},
            [&](long long x, long long rows, bool turned) {
                reach = block = static_cast<int>(x);
                block_rows = static_cast<int>(rows);
                if (turned)
                    enter_mirrored(block_rows, block);
            },
            [&](long long x, long long rows) {
                reach = static_cast<int>(x);
                enter_mirrored(static_cast<int>(rows), reach);
            });
        if (2 * block_rows + 1 < height_)
            rows_[height_ - block_rows] = {-block, block};
        return 2 * block_rows + 1 != height_ ? reach : far_away;
    }

private:
    void enter_mirrored(int rows, int x)
    {
        rows_[rows] = {-x, x};
        rows_[height_ - rows] = {-x, x};
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

} // namespace

DFBRectangle inner_box(const DFBRectangle& rect)
{
    return {rect.x + 1, rect.y + 1, rect.w - 2, rect.h - 2};
}

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
        EllipseFill(rows, rect).enter();
    rows.give(sink);
    return true;
}

} // namespace zuvo
