#include <allegro5/allegro.h>
#include <allegro5/allegro_primitives.h>

#include <stdexcept>

#include "geometry.h"
#include "peers.h"

namespace bench {

namespace {

ALLEGRO_COLOR allegro_colour(Colour colour)
{
    const auto component = [](unsigned value) { return static_cast<unsigned char>(value); };
    return al_premul_rgba(component(red(colour)), component(green(colour)), component(blue(colour)),
                          component(alpha(colour)));
}

float real(double value)
{
    return static_cast<float>(value);
}

struct Destroyer {
    void operator()(ALLEGRO_BITMAP* bitmap) const { al_destroy_bitmap(bitmap); }
};

/// Allegro on a memory bitmap of its own, which it blends premultiplied. Textures of shapes need its vertices, and are
/// left out.
class AllegroPainter : public Painter {
public:
    AllegroPainter()
    {
        if (!al_install_system(ALLEGRO_VERSION_INT, nullptr) || !al_init_primitives_addon())
            throw std::runtime_error("Allegro does not start");
        al_set_new_bitmap_flags(ALLEGRO_MEMORY_BITMAP);
        al_set_new_bitmap_format(ALLEGRO_PIXEL_FORMAT_ARGB_8888);
        bitmap_.reset(al_create_bitmap(picture_width, picture_height));
        al_set_target_bitmap(bitmap_.get());
    }

    void clear() override { al_clear_to_color(allegro_colour(background)); }

    Picture picture() override
    {
        const ALLEGRO_LOCKED_REGION* region =
            al_lock_bitmap(bitmap_.get(), ALLEGRO_PIXEL_FORMAT_ARGB_8888, ALLEGRO_LOCK_READONLY);
        Picture picture = read({static_cast<std::uint32_t*>(region->data), region->pitch / 4});
        al_unlock_bitmap(bitmap_.get());
        return picture;
    }

    Draw prepare(const Task& task) override
    {
        const Shape& shape = task.shape;
        if (shape.paint == Paint::textured)
            return {};
        switch (shape.figure) {
        case Figure::ellipse: return ellipse(task);
        case Figure::rectangle: return rectangle(task);
        case Figure::polygon: return polygon(shape);
        case Figure::line: break;
        }
        return [from = shape.points[0], to = shape.points[1], colour = allegro_colour(colour_of(shape.paint)),
                width = real(stroke_width(task))] {
            al_draw_line(real(from.x + 0.5), real(from.y + 0.5), real(to.x + 0.5), real(to.y + 0.5), colour, width);
        };
    }

private:
    static Draw ellipse(const Task& task)
    {
        const EllipseAxes e = ellipse_axes(task);
        const ALLEGRO_COLOR colour = allegro_colour(colour_of(task.shape.paint));
        if (task.shape.style == Style::filled)
            return [=] { al_draw_filled_ellipse(real(e.cx), real(e.cy), real(e.a), real(e.b), colour); };
        const float width = task.shape.style == Style::thin ? 0 : real(stroke_width(task));
        return [=] { al_draw_ellipse(real(e.cx), real(e.cy), real(e.a), real(e.b), colour, width); };
    }

    static Draw rectangle(const Task& task)
    {
        const Box& box = task.shape.box;
        const ALLEGRO_COLOR colour = allegro_colour(colour_of(task.shape.paint));
        const float left = real(box.x), top = real(box.y), right = real(box.x + box.w), bottom = real(box.y + box.h);
        if (task.shape.style == Style::filled)
            return [=] { al_draw_filled_rectangle(left, top, right, bottom, colour); };
        return [=, width = real(stroke_width(task))] {
            al_draw_rectangle(left + 0.5f, top + 0.5f, right - 0.5f, bottom - 0.5f, colour, width);
        };
    }

    /// Allegro wants the corners anticlockwise.
    static Draw polygon(const Shape& shape)
    {
        std::vector<float> vertices;
        for (auto point = shape.points.rbegin(); point != shape.points.rend(); ++point) {
            vertices.push_back(real(point->x));
            vertices.push_back(real(point->y));
        }
        return [vertices, colour = allegro_colour(colour_of(shape.paint))] {
            al_draw_filled_polygon(vertices.data(), static_cast<int>(vertices.size() / 2), colour);
        };
    }

    std::unique_ptr<ALLEGRO_BITMAP, Destroyer> bitmap_;
};

const bool is_added = add_peer("Allegro 5", [](const Memory&) -> std::unique_ptr<Painter> {
    return std::make_unique<AllegroPainter>();
});

} // namespace

} // namespace bench
