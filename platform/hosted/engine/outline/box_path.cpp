#include "outline_path.h"

#include "engine/fill/huge_ellipse.h"
#include "geometry/ellipse_walk.h"

#include <algorithm>

namespace zuvo {
namespace {

const int left_chain = 0;
const int right_chain = 1;

void add_both(RowPath& path, int64_t row, int64_t first, int64_t last)
{
    path.add_run(left_chain, row, first, last);
    path.add_run(right_chain, row, first, last);
}

/// One quarter of an ellipse's outline: the first and the last column of each row, counted from the centre.
struct Quarter {
    int* first;
    int* last;
    int height;             ///< Rows are 0 up to, but without, this.

    void add(int column, int row) const
    {
        if (row >= height)
            return;
        first[row] = std::min(first[row], column);
        last[row] = column;
    }
};

/// Mirrors a quarter into the rows that the path keeps.
void add_quarters(RowPath& path, const Quarter& quarter, int cx, int cy)
{
    path.turns_once = true;
    path.turn = cy;
    for (int row = path.top; row < path.bottom; ++row) {
        const int i = std::abs(row - cy);
        path.set_run(left_chain, row, cx - quarter.last[i], cx - quarter.first[i]);
        path.set_run(right_chain, row, cx + quarter.first[i], cx + quarter.last[i]);
    }
}

bool walk_quarter(RowPath& path, Buffer<int>& memory, const DFBRectangle& rect)
{
    const int height = rect.h / 2 + 1;
    if (!memory.reserve(2 * static_cast<size_t>(height)))
        return false;
    const Quarter quarter = {memory.items, memory.items + height, height};
    std::fill_n(quarter.first, height, far_away);

    geometry::walk_ellipse(
        rect, 1, [&quarter](int pole) { quarter.add(0, pole); }, [&quarter](int x, int y) { quarter.add(x, y); });
    add_quarters(path, quarter, rect.x + rect.w / 2, rect.y + rect.h / 2);
    return true;
}

/// Adds the outline of a huge ellipse on the rows that the path keeps.
void add_huge_outline(RowPath& path, const DFBRectangle& rect)
{
    for (int row = path.top; row < path.bottom; ++row) {
        const Span here = huge_span(rect, row);
        const Span outer = huge_span(rect, row < rect.y + rect.h / 2 ? row - 1 : row + 1);
        if (here.left >= here.right)
            continue;
        const bool is_pole = outer.left >= outer.right;
        const int middle = here.left + (here.right - here.left) / 2;
        path.add_run(left_chain, row, here.left, is_pole ? middle : outer.left);
        path.add_run(right_chain, row, is_pole ? middle : outer.right - 1, here.right - 1);
    }
}

/// An ellipse of negative height is its two poles, if it is not walked at all.
void add_poles(RowPath& path, const DFBRectangle& rect)
{
    const int cx = rect.x + rect.w / 2;
    const int cy = rect.y + rect.h / 2;
    add_both(path, cy + rect.h / 2, cx, cx);
    add_both(path, cy - rect.h / 2, cx, cx);
}

} // namespace

bool rectangle_path(RowPath& path, RowRange rows, const DFBRectangle& rect)
{
    const int64_t left = rect.x, right = int64_t(rect.x) + rect.w - 1;
    const int64_t top = rect.y, bottom = int64_t(rect.y) + rect.h - 1;
    if (!path.begin(2, std::max(rows.top, std::min(top, bottom)), std::min(rows.bottom, std::max(top, bottom) + 1)))
        return false;

    if (rect.h > 0) {
        path.set_column(left_chain, std::min(left, right));
        path.set_column(right_chain, std::max(left, right));
    }
    if (rect.w > 0) {
        add_both(path, top, left, right);
        add_both(path, bottom, left, right);
    }
    return true;
}

bool ellipse_path(RowPath& path, Buffer<int>& memory, RowRange rows, const DFBRectangle& rect)
{
    const int64_t centre = int64_t(rect.y) + rect.h / 2;
    const int64_t reach = std::abs(int64_t(rect.h / 2));
    if (!path.begin(2, std::max(rows.top, centre - reach), std::min(rows.bottom, centre + reach + 1)))
        return false;

    if (is_huge(rect))
        add_huge_outline(path, rect);
    else if (rect.h < 0)
        add_poles(path, rect);
    else
        return walk_quarter(path, memory, rect);
    return true;
}

} // namespace zuvo
