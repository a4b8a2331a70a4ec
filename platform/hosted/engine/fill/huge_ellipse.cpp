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
