#define X_DISPLAY_MISSING
#include <Imlib2.h>

#include "geometry.h"
#include "peers.h"

namespace bench {

namespace {

/// Imlib2 without antialiasing. It has neither wide lines nor textures.
class Imlib2Painter : public MemoryPainter {
public:
    explicit Imlib2Painter(const Memory& memory)
        : MemoryPainter(memory),
          image_(imlib_create_image_using_data(picture_width, picture_height, memory.pixels))
    {
        imlib_context_set_image(image_);
        imlib_image_set_has_alpha(1);
        imlib_context_set_anti_alias(0);
        imlib_context_set_blend(1);
    }
    Imlib2Painter(const Imlib2Painter&) = delete;
    Imlib2Painter& operator=(const Imlib2Painter&) = delete;

    ~Imlib2Painter() override
    {
        imlib_context_set_image(image_);
        imlib_free_image();
    }

    Draw prepare(const Task& task) override
    {
        const Shape& shape = task.shape;
        if (shape.style == Style::thick || shape.paint == Paint::textured || memory().pitch != picture_width)
            return {};
        set_colour(colour_of(shape.paint));
        switch (shape.figure) {
        case Figure::ellipse: return ellipse(task);
        case Figure::rectangle:
            return [box = shape.box] { imlib_image_fill_rectangle(box.x, box.y, box.w, box.h); };
        case Figure::polygon: return polygon(shape);
        case Figure::line: break;
        }
        return {};
    }

private:
    void set_colour(Colour colour)
    {
        imlib_context_set_image(image_);
        imlib_context_set_color(static_cast<int>(red(colour)), static_cast<int>(green(colour)),
                                static_cast<int>(blue(colour)), static_cast<int>(alpha(colour)));
    }

    static Draw ellipse(const Task& task)
    {
        const WholeEllipse e = whole_ellipse(task);
        if (task.shape.style == Style::filled)
            return [e] { imlib_image_fill_ellipse(e.cx, e.cy, e.a, e.b); };
        return [e] { imlib_image_draw_ellipse(e.cx, e.cy, e.a, e.b); };
    }

    Draw polygon(const Shape& shape)
    {
        polygon_.reset(imlib_polygon_new());
        for (const Point& point : shape.points)
            imlib_polygon_add_point(polygon_.get(), point.x, point.y);
        return [polygon = polygon_.get()] { imlib_image_fill_polygon(polygon); };
    }

    struct PolygonFreer {
        void operator()(void* polygon) const { imlib_polygon_free(polygon); }
    };

    Imlib_Image image_;
    std::unique_ptr<void, PolygonFreer> polygon_;
};

const bool is_added = add_peer("Imlib2", [](const Memory& memory) -> std::unique_ptr<Painter> {
    return std::make_unique<Imlib2Painter>(memory);
});

} // namespace

} // namespace bench
