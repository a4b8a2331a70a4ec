#include "pen_rows.h"

#include "row_path.h"

#include <algorithm>

namespace zuvo {
namespace {

const Span empty_span = {1, 0};

/// Such a pen never touches the point that is drawn.
bool is_far(int coordinate)
{
    return coordinate > far_away / 4 || coordinate < -far_away / 4;
}

/// Stores the rows of a rendered pen.
struct PenSink : RowSink {
    PenRows* rows;
    int shift;
};

void store_row(RowSink& self, int row, const Span* spans, int count)
{
    const PenSink& sink = static_cast<const PenSink&>(self);
    for (int i = 0; i < count; ++i)
        sink.rows->spans[2 * static_cast<size_t>(row) + static_cast<size_t>(i)] = {spans[i].left - sink.shift,
                                                                                   spans[i].right - sink.shift};
    sink.rows->has_second_parts = sink.rows->has_second_parts || count > 1;
}

bool clear_rows(PenRows& pen, int count)
{
    const size_t span_count = 2 * static_cast<size_t>(count);
    if (!pen.spans.reserve(span_count))
        return false;
    pen.row_count = count;
    pen.is_single_pixel = false;
    pen.has_second_parts = false;
    pen.is_box = false;
    std::fill_n(pen.spans.items, span_count, empty_span);
    return true;
}

bool fill_all_rows(PenRows& pen, int top, int count, Span span)
{
    if (!clear_rows(pen, count))
        return false;
    pen.top = top;
    for (int row = 0; row < count; ++row)
        pen.spans[2 * static_cast<size_t>(row)] = span;
    return true;
}

bool has_equal_rows(const PenRows& pen)
{
    const Span& first = pen.part(0, 0);
    for (int row = 0; row < pen.row_count; ++row) {
        const Span& span = pen.part(row, 0);
        if (is_empty(span) || span.left != first.left || span.right != first.right)
            return false;
    }
    return !pen.has_second_parts;
}

bool render_quadrilateral(PenRows& pen, PolygonScan& polygon, const FixedPoint (&corners)[4], Extent extent)
{
    if (!clear_rows(pen, extent.height))
        return false;
    pen.top = -(extent.height / 2);

    const FixedPoint shift = {extent.width / 2 * fixed_one, extent.height / 2 * fixed_one};
    polygon.begin(extent);
    for (int i = 0; i < 4; ++i) {
        const FixedPoint& from = corners[i];
        const FixedPoint& to = corners[(i + 1) % 4];
        polygon.add_edge({from.x + shift.x, from.y + shift.y}, {to.x + shift.x, to.y + shift.y});
    }
    PenSink sink = {{store_row}, &pen, extent.width / 2};
    return polygon.scan(sink);
}

} // namespace

int PenRows::render(PolygonScan& polygon, const zuvo_dtk_pen& pen)
{
    const auto [left, right] = std::minmax({pen.x0, pen.x1, pen.x2, pen.x3});
    const auto [upper, lower] = std::minmax({pen.y0, pen.y1, pen.y2, pen.y3});
    const int64_t width = int64_t(right) - left;
    const int64_t height = int64_t(lower) - upper;
    if (width > pen_limit || height > pen_limit || is_far(left) || is_far(upper))
        return ZUVO_PEN_TOO_LARGE;

    const Extent extent = {static_cast<int>(width), static_cast<int>(height)};
    bool has_memory = true;
    if (width == 0 || height == 0) {
        has_memory = fill_all_rows(*this, upper, extent.height + 1, {left, right + 1});
    } else if (width == 1 && height == 1) {
        has_memory = fill_all_rows(*this, 0, 1, {0, 1});
        is_single_pixel = true;
    } else {
        const FixedPoint corners[] = {
            {pen.x0 * fixed_one, pen.y0 * fixed_one}, {pen.x1 * fixed_one, pen.y1 * fixed_one},
            {pen.x2 * fixed_one, pen.y2 * fixed_one}, {pen.x3 * fixed_one, pen.y3 * fixed_one}};
        has_memory = render_quadrilateral(*this, polygon, corners, extent);
    }
    if (!has_memory)
        return ZUVO_NO_MEMORY;
    is_box = has_equal_rows(*this);
    return ZUVO_OK;
}

} // namespace zuvo
