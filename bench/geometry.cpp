#include "geometry.h"

#include <cmath>

namespace bench {

namespace {

/// Ramanujan's approximation.
double ellipse_perimeter(double a, double b)
{
    return M_PI * (3 * (a + b) - std::sqrt((3 * a + b) * (a + 3 * b)));
}

double length(const Shape& shape)
{
    const Box& box = shape.box;
    if (shape.figure == Figure::ellipse)
        return ellipse_perimeter(box.w / 2.0, box.h / 2.0);
    if (shape.figure == Figure::rectangle)
        return 2.0 * (box.w - 1 + box.h - 1);
    return std::hypot(shape.points[1].x - shape.points[0].x, shape.points[1].y - shape.points[0].y);
}

} // namespace

EllipseAxes ellipse_axes(const Task& task)
{
    const Box& box = task.bounds;
    const double cx = box.x + box.w / 2.0;
    const double cy = box.y + box.h / 2.0;
    switch (task.shape.style) {
    case Style::filled: return {cx, cy, box.w / 2.0, box.h / 2.0};
    case Style::thin: return {cx, cy, (box.w - 1) / 2.0, (box.h - 1) / 2.0};
    case Style::thick: break;
    }
    return {cx, cy, task.shape.box.w / 2.0, task.shape.box.h / 2.0};
}

WholeEllipse whole_ellipse(const Task& task)
{
    const EllipseAxes axes = ellipse_axes(task);
    const int shrink = task.shape.style == Style::filled ? 1 : 0;
    return {static_cast<int>(axes.cx), static_cast<int>(axes.cy), static_cast<int>(axes.a) - shrink,
            static_cast<int>(axes.b) - shrink};
}

double stroke_width(const Task& task)
{
    return static_cast<double>(task.pixels) / length(task.shape);
}

} // namespace bench
