#include <cairo.h>

#include <cmath>
#include <memory>

#include "geometry.h"
#include "peers.h"

namespace bench {

namespace {

struct Destroyer {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};

void trace_ellipse(cairo_t* context, const EllipseAxes& axes)
{
    cairo_save(context);
    cairo_translate(context, axes.cx, axes.cy);
    cairo_scale(context, axes.a, axes.b);
    cairo_new_sub_path(context);
    cairo_arc(context, 0, 0, 1, 0, 2 * M_PI);
    cairo_close_path(context);
    cairo_restore(context);
}

/// Lines and borders run through the centres of their pixels.
void trace_centres(cairo_t* context, const Shape& shape)
{
    if (shape.figure == Figure::rectangle) {
        cairo_rectangle(context, shape.box.x + 0.5, shape.box.y + 0.5, shape.box.w - 1, shape.box.h - 1);
        return;
    }
    cairo_move_to(context, shape.points[0].x + 0.5, shape.points[0].y + 0.5);
    cairo_line_to(context, shape.points[1].x + 0.5, shape.points[1].y + 0.5);
}

void trace_area(cairo_t* context, const Shape& shape)
{
    if (shape.figure == Figure::rectangle) {
        cairo_rectangle(context, shape.box.x, shape.box.y, shape.box.w, shape.box.h);
        return;
    }
    for (const Point& point : shape.points)
        cairo_line_to(context, point.x, point.y);
}

/// Cairo's image surface, without antialiasing.
class CairoPainter : public MemoryPainter {
public:
    explicit CairoPainter(const Memory& memory)
        : MemoryPainter(memory), surface_(cairo_image_surface_create_for_data(
                                     reinterpret_cast<unsigned char*>(memory.pixels), CAIRO_FORMAT_ARGB32,
                                     picture_width, picture_height, static_cast<int>(memory.pitch * 4))),
          context_(cairo_create(surface_.get()))
    {
        cairo_set_antialias(context_.get(), CAIRO_ANTIALIAS_NONE);
        draw_texture();
    }

    Draw prepare(const Task& task) override
    {
        const Shape& shape = task.shape;
        set_source(task);
        cairo_t* context = context_.get();
        if (shape.style != Style::filled)
            cairo_set_line_width(context, shape.style == Style::thin ? 1 : stroke_width(task));
        const auto paint = shape.style == Style::filled ? cairo_fill : cairo_stroke;
        if (shape.figure == Figure::ellipse)
            return [=, axes = ellipse_axes(task)] {
                trace_ellipse(context, axes);
                paint(context);
            };
        const auto trace = shape.style == Style::filled ? trace_area : trace_centres;
        return [=] {
            trace(context, shape);
            paint(context);
        };
    }

private:
    void draw_texture()
    {
        texture_.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, texture_size, texture_size));
        auto* pixels = reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(texture_.get()));
        const int pitch = cairo_image_surface_get_stride(texture_.get()) / 4;
        for (int y = 0; y < texture_size; ++y) {
            for (int x = 0; x < texture_size; ++x)
                pixels[y * pitch + x] = premultiplied(texture_pixel(x, y));
        }
        cairo_surface_mark_dirty(texture_.get());
    }

    void set_source(const Task& task)
    {
        if (task.shape.paint != Paint::textured) {
            const Colour colour = colour_of(task.shape.paint);
            cairo_set_source_rgba(context_.get(), red(colour) / 255.0, green(colour) / 255.0, blue(colour) / 255.0,
                                  alpha(colour) / 255.0);
            return;
        }
        const std::unique_ptr<cairo_pattern_t, Destroyer> pattern(cairo_pattern_create_for_surface(texture_.get()));
        cairo_matrix_t matrix;
        cairo_matrix_init_translate(&matrix, -task.bounds.x, -task.bounds.y);
        cairo_pattern_set_matrix(pattern.get(), &matrix);
        cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_REPEAT);
        cairo_pattern_set_filter(pattern.get(), CAIRO_FILTER_NEAREST);
        cairo_set_source(context_.get(), pattern.get());
    }

    std::unique_ptr<cairo_surface_t, Destroyer> surface_;
    std::unique_ptr<cairo_surface_t, Destroyer> texture_;
    std::unique_ptr<cairo_t, Destroyer> context_;
};

const bool is_added = add_peer("cairo", [](const Memory& memory) -> std::unique_ptr<Painter> {
    return std::make_unique<CairoPainter>(memory);
});

} // namespace

} // namespace bench
