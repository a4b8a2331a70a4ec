#include "prescribed.h"

#include "cairo_pixels.h"

namespace bench {

namespace {

void set_source(cairo_t* context, Paint paint)
{
    const Colour colour = colour_of(paint);
    const double r = red(colour) / 255.0, g = green(colour) / 255.0, b = blue(colour) / 255.0;
    if (paint == Paint::opaque)
        cairo_set_source_rgb(context, r, g, b);
    else
        cairo_set_source_rgba(context, r, g, b, alpha(colour) / 255.0);
}

DFBRectangle covering(const std::vector<Point>& points)
{
    const auto [left, right] =
        std::minmax_element(points.begin(), points.end(), [](const Point& a, const Point& b) { return a.x < b.x; });
    const auto [top, bottom] =
        std::minmax_element(points.begin(), points.end(), [](const Point& a, const Point& b) { return a.y < b.y; });
    return {left->x, top->y, right->x - left->x + 1, bottom->y - top->y + 1};
}

} // namespace

void Prescribed::set_pattern_origin(cairo_t* context, int x, int y) const
{
    cairo_matrix_t matrix;
    cairo_matrix_init_translate(&matrix, -x, -y);
    cairo_pattern_set_matrix(pattern_.get(), &matrix);
    cairo_set_source(context, pattern_.get());
}

/// Cairo's back end keeps surfaces locked until they are flushed.
void Prescribed::fill_path(const Canvas& canvas, cairo_pattern_t* pattern) const
{
    const CairoPixels pixels(canvas.surface), texels(pattern ? texture_.get() : nullptr);
    cairo_fill(canvas.context);
    cairo_surface_flush(cairo_get_target(canvas.context));
    cairo_surface_t* texture = nullptr;
    if (pattern && cairo_pattern_get_surface(pattern, &texture) == CAIRO_STATUS_SUCCESS)
        cairo_surface_flush(texture);
    cairo_status(canvas.context);
}

Draw Prescribed::filled_polygon(const Task& task) const
{
    const Paint paint = task.shape.paint;
    const Canvas drawn_on = canvas(paint);
    cairo_t* context = drawn_on.context;
    cairo_pattern_t* pattern = paint == Paint::textured ? pattern_.get() : nullptr;
    const std::vector<Point> points = task.shape.points;
    const DFBRectangle box = covering(points);
    const Draw draw = [=] {
        cairo_move_to(context, points[0].x, points[0].y);
        for (std::size_t i = 1; i < points.size(); ++i)
            cairo_line_to(context, points[i].x, points[i].y);
        if (pattern)
            set_pattern_origin(context, box.x, box.y);
        else
            set_source(context, paint);
        fill_path(drawn_on, pattern);
    };
    return blended(draw, paint, box);
}

Draw Prescribed::textured_rectangle(const Task& task) const
{
    const Canvas pad = canvas(Paint::textured);
    cairo_t* context = pad.context;
    const Box box = task.shape.box;
    const Draw draw = [=] {
        set_pattern_origin(context, box.x, box.y);
        cairo_rectangle(context, box.x, box.y, box.w, box.h);
        fill_path(pad, pattern_.get());
    };
    return blended(draw, Paint::textured, to_rectangle(box));
}

Draw Prescribed::textured_ellipse(const Task& task) const
{
    const Canvas pad = canvas(Paint::textured);
    cairo_t* context = pad.context;
    IDirectFBSurface* scratch = pad.surface;
    const Box box = task.shape.box;
    const int a = box.w / 2, b = box.h / 2;
    const Draw draw = [=] {
        DFBSurfacePixelFormat format;
        scratch->GetPixelFormat(scratch, &format);
        cairo_save(context);
        cairo_translate(context, box.x + a, box.y + b);
        cairo_scale(context, a, b);
        cairo_arc(context, 0, 0, 1.0, 0, 6.283185307179586);
        cairo_restore(context);
        set_pattern_origin(context, box.x, box.y);
        fill_path(pad, pattern_.get());
    };
    return blended(draw, Paint::textured, to_rectangle(box));
}

} // namespace bench
