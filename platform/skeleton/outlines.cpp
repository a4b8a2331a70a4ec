#include "outlines.h"

#include <cmath>

#include "shapes.h"

namespace board {
namespace {

/// The steps of a walk from `from` by `step` that come within reach of `size` pixels.
struct Steps {
    Steps(double from, double step, int64_t count, int size, int reach) : first(0), last(count)
    {
        if (step == 0) {
            if (from < -reach || from >= size + reach)
                last = -1;
            return;
        }
        const auto [low, high] = std::minmax({(-reach - from) / step, (size + reach - from) / step});
        first = std::max(first, static_cast<int64_t>(std::floor(low)));
        last = std::min(last, static_cast<int64_t>(std::ceil(high)));
    }

    int64_t first, last;
};

int64_t nearest(double number)
{
    return static_cast<int64_t>(std::floor(number + 0.5));
}

/// One half of an ellipse's outline, walked along one axis: at each whole number of it, the two points across. `stamp`
/// takes the place along the axis and the one across.
template <typename Stamp>
void walk_ellipse(int64_t begin, int64_t length, int64_t across_begin, int64_t across, int size, int reach,
                  const Stamp& stamp)
{
    const double a = (static_cast<double>(length) - 1) / 2, b = (static_cast<double>(across) - 1) / 2;
    const double middle = static_cast<double>(begin) + a, across_middle = static_cast<double>(across_begin) + b;
    const int64_t end = std::min<int64_t>(begin + length, size + reach);
    for (int64_t place = std::max<int64_t>(begin, -reach); place < end; ++place) {
        const double u = a > 0 ? (static_cast<double>(place) - middle) / a : 0;
        const double half = b * std::sqrt(std::max(0.0, 1 - u * u));
        stamp(place, nearest(across_middle - half));
        stamp(place, nearest(across_middle + half));
    }
}

} // namespace

/// The corners enclose W x H pixels, W / 2 and H / 2 to the upper left of the point.
Pen::Pen(const zuvo_dtk_pen& pen)
{
    const auto [left, right] = std::minmax({pen.x0, pen.x1, pen.x2, pen.x3});
    const auto [top, bottom] = std::minmax({pen.y0, pen.y1, pen.y2, pen.y3});
    const int width = right - left, height = bottom - top;
    reach_ = std::max(width, height) + 1;
    Coverage shape(std::max(width, 1), std::max(height, 1));
    if (width == 0 || height == 0)
        cover_rectangle(shape, {0, 0, shape.width, shape.height});
    else
        cover_polygon(shape, {{pen.x0 - left, pen.y0 - top}, {pen.x1 - left, pen.y1 - top},
                              {pen.x2 - left, pen.y2 - top}, {pen.x3 - left, pen.y3 - top}});
    for (int y = 0; y < shape.height; ++y)
        add_rows(shape, y, width / 2, height / 2);
}

/// Adds what is covered of one row of the shape, seen from the point at (x, y) in it.
void Pen::add_rows(const Coverage& shape, int row, int x, int y)
{
    for (int end = 0; end < shape.width; ++end) {
        const int begin = end;
        while (end < shape.width && shape.has(end, row))
            ++end;
        if (end > begin)
            rows_.push_back({row - y, begin - x, end - x});
    }
}

void Pen::stamp(Coverage& coverage, int64_t x, int64_t y) const
{
    for (const Row& row : rows_)
        coverage.cover(y + row.y, x + row.left, x + row.right);
}

/// Steps along the longer axis, both ends included.
void cover_line(Coverage& coverage, const Pen& pen, DFBPoint from, DFBPoint to)
{
    const int64_t dx = int64_t{to.x} - from.x, dy = int64_t{to.y} - from.y;
    const int64_t count = std::max(std::abs(dx), std::abs(dy));
    const double length = static_cast<double>(std::max<int64_t>(count, 1));
    const double step_x = static_cast<double>(dx) / length, step_y = static_cast<double>(dy) / length;
    const Steps in_columns(from.x, step_x, count, coverage.width, pen.reach());
    const Steps in_rows(from.y, step_y, count, coverage.height, pen.reach());
    const int64_t last = std::min(in_columns.last, in_rows.last);
    for (int64_t i = std::max(in_columns.first, in_rows.first); i <= last; ++i)
        pen.stamp(coverage, nearest(from.x + static_cast<double>(i) * step_x),
                  nearest(from.y + static_cast<double>(i) * step_y));
}

void cover_rectangle_border(Coverage& coverage, const Pen& pen, const DFBRectangle& box)
{
    const auto far_side = [](int begin, int length) {
        return static_cast<int>(std::min<int64_t>(int64_t{begin} + length - 1, INT32_MAX));
    };
    const int right = far_side(box.x, box.w), bottom = far_side(box.y, box.h);
    cover_line(coverage, pen, {box.x, box.y}, {right, box.y});
    cover_line(coverage, pen, {right, box.y}, {right, bottom});
    cover_line(coverage, pen, {right, bottom}, {box.x, bottom});
    cover_line(coverage, pen, {box.x, bottom}, {box.x, box.y});
}

void cover_ellipse_border(Coverage& coverage, const Pen& pen, const DFBRectangle& box)
{
    if (box.w <= 0 || box.h <= 0)
        return;
    walk_ellipse(box.x, box.w, box.y, box.h, coverage.width, pen.reach(),
                 [&](int64_t x, int64_t y) { pen.stamp(coverage, x, y); });
    walk_ellipse(box.y, box.h, box.x, box.w, coverage.height, pen.reach(),
                 [&](int64_t y, int64_t x) { pen.stamp(coverage, x, y); });
}

} // namespace board
