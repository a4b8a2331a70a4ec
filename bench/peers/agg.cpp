#include <agg_conv_stroke.h>
#include <agg_conv_transform.h>
#include <agg_ellipse.h>
#include <agg_image_accessors.h>
#include <agg_path_storage.h>
#include <agg_pixfmt_rgba.h>
#include <agg_rasterizer_scanline_aa.h>
#include <agg_renderer_primitives.h>
#include <agg_renderer_scanline.h>
#include <agg_rendering_buffer.h>
#include <agg_scanline_bin.h>
#include <agg_span_allocator.h>
#include <agg_span_pattern_rgba.h>

#include "geometry.h"
#include "peers.h"

namespace bench {

namespace {

using Format = agg::pixfmt_bgra32_pre;
using Base = agg::renderer_base<Format>;
using Wrap = agg::wrap_mode_repeat;
using Texture = agg::image_accessor_wrap<Format, Wrap, Wrap>;

agg::rgba8 agg_colour(Colour colour)
{
    const Colour p = premultiplied(colour);
    return {red(p), green(p), blue(p), alpha(p)};
}

agg::int8u* bytes(std::uint32_t* pixels)
{
    return reinterpret_cast<agg::int8u*>(pixels);
}

/// AGG with scanlines of whole pixels; its primitives where they know the shape.
class AggPainter : public MemoryPainter {
public:
    explicit AggPainter(const Memory& memory)
        : MemoryPainter(memory), buffer_(bytes(memory.pixels), picture_width, picture_height,
                                         static_cast<int>(memory.pitch * 4)),
          format_(buffer_), base_(format_), primitives_(base_),
          texture_buffer_(bytes(texture_pixels_), texture_size, texture_size, texture_size * 4),
          texture_format_(texture_buffer_), texture_(texture_format_)
    {
        rasterizer_.gamma(agg::gamma_threshold(0.5));
        for (int y = 0; y < texture_size; ++y) {
            for (int x = 0; x < texture_size; ++x)
                texture_pixels_[y * texture_size + x] = premultiplied(texture_pixel(x, y));
        }
    }

    Draw prepare(const Task& task) override
    {
        const Shape& shape = task.shape;
        primitives_.fill_color(agg_colour(colour_of(shape.paint)));
        primitives_.line_color(agg_colour(colour_of(shape.paint)));
        const bool is_plain = shape.paint != Paint::textured;
        if (shape.figure == Figure::ellipse && shape.style != Style::thick && is_plain)
            return plain_ellipse(task);
        if (shape.figure == Figure::rectangle && shape.style == Style::filled && is_plain)
            return [this, box = shape.box] {
                primitives_.solid_rectangle(box.x, box.y, box.x + box.w - 1, box.y + box.h - 1);
            };
        return scanlines(task);
    }

private:
    Draw plain_ellipse(const Task& task)
    {
        const WholeEllipse e = whole_ellipse(task);
        if (task.shape.style == Style::filled)
            return [this, e] { primitives_.solid_ellipse(e.cx, e.cy, e.a, e.b); };
        return [this, e] { primitives_.ellipse(e.cx, e.cy, e.a, e.b); };
    }

    Draw scanlines(const Task& task)
    {
        if (task.shape.figure == Figure::ellipse)
            return [=, axes = ellipse_axes(task)] {
                agg::ellipse ellipse(axes.cx, axes.cy, axes.a, axes.b);
                add(ellipse, task);
                render(task);
            };
        return [=] {
            agg::path_storage path;
            trace(path, task.shape);
            add(path, task);
            render(task);
        };
    }

    static void trace(agg::path_storage& path, const Shape& shape)
    {
        if (shape.figure == Figure::rectangle) {
            // Borders run through the centres of their pixels.
            const double inset = shape.style == Style::thick ? 0.5 : 0;
            const double left = shape.box.x + inset, right = shape.box.x + shape.box.w - inset;
            const double top = shape.box.y + inset, bottom = shape.box.y + shape.box.h - inset;
            path.move_to(left, top);
            path.line_to(right, top);
            path.line_to(right, bottom);
            path.line_to(left, bottom);
            path.close_polygon();
            return;
        }
        const double inset = shape.figure == Figure::line ? 0.5 : 0;
        path.move_to(shape.points[0].x + inset, shape.points[0].y + inset);
        for (std::size_t i = 1; i < shape.points.size(); ++i)
            path.line_to(shape.points[i].x + inset, shape.points[i].y + inset);
        if (shape.figure == Figure::polygon)
            path.close_polygon();
    }

    template <typename Source>
    void add(Source& source, const Task& task)
    {
        rasterizer_.reset();
        rasterizer_.filling_rule(task.shape.style == Style::thick ? agg::fill_non_zero : agg::fill_even_odd);
        if (task.shape.style == Style::filled) {
            rasterizer_.add_path(source);
            return;
        }
        agg::conv_stroke<Source> stroke(source);
        stroke.width(stroke_width(task));
        rasterizer_.add_path(stroke);
    }

    void render(const Task& task)
    {
        if (task.shape.paint != Paint::textured) {
            agg::render_scanlines_bin_solid(rasterizer_, scanline_, base_, agg_colour(colour_of(task.shape.paint)));
            return;
        }
        const auto shift = [](int origin) { return static_cast<unsigned>(texture_size - origin % texture_size); };
        agg::span_pattern_rgba<Texture> spans(texture_, shift(task.bounds.x), shift(task.bounds.y));
        agg::render_scanlines_bin(rasterizer_, scanline_, base_, allocator_, spans);
    }

    agg::rendering_buffer buffer_;
    Format format_;
    Base base_;
    agg::renderer_primitives<Base> primitives_;
    std::uint32_t texture_pixels_[texture_size * texture_size];
    agg::rendering_buffer texture_buffer_;
    Format texture_format_;
    Texture texture_;
    agg::rasterizer_scanline_aa<> rasterizer_;
    agg::scanline_bin scanline_;
    agg::span_allocator<agg::rgba8> allocator_;
};

const bool is_added = add_peer("AGG", [](const Memory& memory) -> std::unique_ptr<Painter> {
    return std::make_unique<AggPainter>(memory);
});

} // namespace

} // namespace bench
