#include "huge_ellipse.h"

#include <cmath>

namespace zuvo {
namespace {

const int walk_limit = 1 << 20;

bool is_within(int64_t value, int64_t limit)
{
    return value >= -limit && value <= limit;
}

/// Half the width of an ellipse at a row, negative outside.
double half_width(const DFBRectangle& rect, int row)
{
    const double b = rect.h * 0.5;
    const double distance = (row + 0.5 - rect.y - b) / b;
    const double square = 1 - distance * distance;
    return square < 0 ? -1 : rect.w * 0.5 * std::sqrt(square);
}

} // namespace

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

} // namespace zuvo
