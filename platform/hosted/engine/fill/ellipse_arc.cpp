// cairo's circle: cubic Bezier curves for arcs, halved by de Casteljau's algorithm until they are flat.
#include "ellipse_arc.h"

#include <algorithm>
#include <cmath>

namespace zuvo {
namespace {

const double pi = 3.14159265358979323846;

/// How far, in pixels, cairo lets a line be from the curve that it stands for.
const double tolerance = 0.1;

/// Each half circle becomes a number of Bezier curves. They miss the circle by this part of its radius.
double arc_error(int arcs)
{
    const double quarter = pi / arcs / 4;
    return 2.0 / 27.0 * std::pow(std::sin(quarter), 6) / std::pow(std::cos(quarter), 2);
}

int count_arcs(double radius)
{
    const double allowed = tolerance / radius;
    int arcs = 1;
    while (arc_error(arcs) >= allowed)
        ++arcs;

    // cairo divides the half circle by the angle of an arc, and a quotient that comes out above the whole number by
    // rounding costs it one arc more.
    return static_cast<int>(std::ceil(pi / (pi / arcs)));
}

struct Bezier {
    FixedPoint a, b, c, d;
};

FixedPoint middle(FixedPoint from, FixedPoint to)
{
    return {from.x + ((to.x - from.x) >> 1), from.y + ((to.y - from.y) >> 1)};
}

/// Cuts @p curve in the middle: it becomes its first half, the second one is returned.
Bezier split(Bezier& curve)
{
    const FixedPoint ab = middle(curve.a, curve.b);
    const FixedPoint bc = middle(curve.b, curve.c);
    const FixedPoint cd = middle(curve.c, curve.d);
    const FixedPoint abbc = middle(ab, bc);
    const FixedPoint bccd = middle(bc, cd);
    const FixedPoint centre = middle(abbc, bccd);
    const Bezier second = {centre, bccd, cd, curve.d};
    curve = {curve.a, ab, abbc, centre};
    return second;
}

struct Vector {
    double x, y;
};

Vector difference(FixedPoint from, FixedPoint to)
{
    const double unit = static_cast<double>(fixed_one);
    return {static_cast<double>(to.x - from.x) / unit, static_cast<double>(to.y - from.y) / unit};
}

/// The squared distance of a point from the line between the origin and @p end.
double squared_distance(Vector point, Vector end)
{
    const double length = end.x * end.x + end.y * end.y;
    const double along = point.x * end.x + point.y * end.y;
    if (along >= length) {
        point = {point.x - end.x, point.y - end.y};
    } else if (along > 0) {
        point = {point.x - along / length * end.x, point.y - along / length * end.y};
    }
    return point.x * point.x + point.y * point.y;
}

bool is_flat(const Bezier& curve)
{
    const Vector end = difference(curve.a, curve.d);
    return std::max(squared_distance(difference(curve.a, curve.b), end),
                    squared_distance(difference(curve.a, curve.c), end)) < tolerance * tolerance;
}

/// Draws lines through points, leaving out those that do not move.
struct LinePen {
    PolygonScan& polygon;
    FixedPoint at;

    void line_to(FixedPoint point)
    {
        polygon.add_edge(at, point);
        at = point;
    }
};

void add_curve(LinePen& pen, Bezier curve)
{
    if (is_flat(curve)) {
        pen.line_to(curve.a);
        return;
    }
    const Bezier second = split(curve);
    add_curve(pen, curve);
    add_curve(pen, second);
}

/// cairo does not bend a curve of which nothing can be seen.
bool is_visible(const Bezier& curve, Extent extent)
{
    const auto [left, right] = std::minmax({curve.a.x, curve.b.x, curve.c.x, curve.d.x});
    const auto [top, bottom] = std::minmax({curve.a.y, curve.b.y, curve.c.y, curve.d.y});
    return right > 0 && left < extent.width * fixed_one && bottom > 0 && top < extent.height * fixed_one;
}

/// A circle of radius 1 about the origin, brought onto the surface.
struct Placement {
    double x, y;
    double half_width, half_height;

    FixedPoint operator()(double circle_x, double circle_y) const
    {
        const double unit = static_cast<double>(fixed_one);
        return {static_cast<int64_t>(std::nearbyint((half_width * circle_x + x) * unit)),
                static_cast<int64_t>(std::nearbyint((half_height * circle_y + y) * unit))};
    }
};

void add_arc(LinePen& pen, const Placement& place, double from, double to)
{
    const double handle = 4.0 / 3.0 * std::tan((to - from) / 4.0);
    const double from_x = std::cos(from), from_y = std::sin(from);
    const double to_x = std::cos(to), to_y = std::sin(to);
    const Bezier curve = {pen.at, place(from_x - handle * from_y, from_y + handle * from_x),
                          place(to_x + handle * to_y, to_y - handle * to_x), place(to_x, to_y)};
    if (is_visible(curve, pen.polygon.extent))
        add_curve(pen, curve);
    pen.line_to(curve.d);
}

void add_half(LinePen& pen, const Placement& place, double from, double to, int arcs)
{
    const double step = (to - from) / arcs;
    pen.line_to(place(std::cos(from), std::sin(from)));
    for (int i = 1; i < arcs; ++i, from += step)
        add_arc(pen, place, from, from + step);
    add_arc(pen, place, from, to);
}

} // namespace

void add_ellipse(PolygonScan& polygon, const DFBRectangle& rect)
{
    const int half_width = rect.w / 2;
    const int half_height = rect.h / 2;
    const Placement place = {double(rect.x) + half_width, double(rect.y) + half_height, double(half_width),
                             double(half_height)};
    const int arcs = count_arcs(std::max(std::abs(place.half_width), std::abs(place.half_height)));

    const FixedPoint start = place(1, 0);
    LinePen pen = {polygon, start};
    add_half(pen, place, 0, pi, arcs);
    add_half(pen, place, pi, 2 * pi, arcs);
    pen.line_to(start);
}

} // namespace zuvo
