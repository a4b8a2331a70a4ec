#include "shapes.h"

#include <cmath>

namespace board {
namespace {

/// Where an edge crosses the middle of a row, and which way it goes.
struct Crossing {
    double x;
    int direction;
};

void add_crossing(std::vector<Crossing>& crossings, const DFBPoint& from, const DFBPoint& to, double y)
{
    if ((from.y <= y) == (to.y <= y))
        return;
    const double share = (y - from.y) / (double(to.y) - from.y);
    crossings.push_back({from.x + share * (double(to.x) - from.x), to.y > from.y ? 1 : -1});
}

std::vector<Crossing> crossings_at(const std::vector<DFBPoint>& points, double y)
{
    std::vector<Crossing> crossings;
    for (std::size_t i = 0; i < points.size(); ++i)
        add_crossing(crossings, points[i], points[(i + 1) % points.size()], y);
    std::sort(crossings.begin(), crossings.end(), [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
    return crossings;
}

/// The first pixel whose centre is not left of x.
int64_t first_pixel(double x)
{
    return static_cast<int64_t>(std::ceil(x - 0.5));
}

void cover_row(Coverage& coverage, int row, const std::vector<Crossing>& crossings)
{
    int winding = 0;
    for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
        winding += crossings[i].direction;
        if (winding != 0)
            coverage.cover(row, first_pixel(crossings[i].x), first_pixel(crossings[i + 1].x));
    }
}

/// The rows of a coverage that a span of rows has in common with it.
struct Rows {
    Rows(const Coverage& coverage, int64_t top, int64_t bottom)
        : first(static_cast<int>(std::clamp<int64_t>(top, 0, coverage.height))),
          end(static_cast<int>(std::clamp<int64_t>(bottom, 0, coverage.height)))
    {
    }

    int first, end;
};

} // namespace

void cover_rectangle(Coverage& coverage, const DFBRectangle& box)
{
    const Rows rows(coverage, box.y, int64_t{box.y} + box.h);
    for (int row = rows.first; row < rows.end; ++row)
        coverage.cover(row, box.x, int64_t{box.x} + box.w);
}

/// One pixel further in than its box, as the toolkit fills ellipses in software.
void cover_ellipse(Coverage& coverage, const DFBRectangle& box)
{
    const double a = box.w / 2.0 - 1, b = box.h / 2.0 - 1;
    if (a <= 0 || b <= 0)
        return;
    const Rows rows(coverage, int64_t{box.y} + 1, int64_t{box.y} + box.h - 1);
    for (int row = rows.first; row < rows.end; ++row) {
        const double v = (row + 0.5 - box.y - box.h / 2.0) / b;
        const double half = a * std::sqrt(std::max(0.0, 1 - v * v)), middle = box.x + box.w / 2.0;
        coverage.cover(row, first_pixel(middle - half), first_pixel(middle + half));
    }
}

void cover_polygon(Coverage& coverage, const std::vector<DFBPoint>& points)
{
    const auto is_higher = [](const DFBPoint& a, const DFBPoint& b) { return a.y < b.y; };
    const auto [top, bottom] = std::minmax_element(points.begin(), points.end(), is_higher);
    const Rows rows(coverage, top->y, bottom->y);
    for (int row = rows.first; row < rows.end; ++row)
        cover_row(coverage, row, crossings_at(points, row + 0.5));
}

} // namespace board
