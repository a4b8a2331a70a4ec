#include <pixman.h>

#include "peers.h"

namespace bench {

namespace {

struct Unreferencer {
    void operator()(pixman_image_t* image) const { pixman_image_unref(image); }
};

using Image = std::unique_ptr<pixman_image_t, Unreferencer>;

pixman_color_t pixman_colour(Colour colour)
{
    const Colour p = premultiplied(colour);
    const auto widen = [](unsigned component) { return static_cast<std::uint16_t>(component * 257); };
    return {widen(red(p)), widen(green(p)), widen(blue(p)), widen(alpha(p))};
}

/// Pixman knows no ellipses and no lines. It gets the rows of every shape as boxes, computed beforehand.
std::vector<pixman_box32_t> boxes(const std::vector<Run>& runs)
{
    std::vector<pixman_box32_t> list;
    for (const Run& run : runs)
        list.push_back({run.left, run.row, run.left + run.width, run.row + 1});
    return list;
}

class PixmanPainter : public MemoryPainter {
public:
    explicit PixmanPainter(const Memory& memory)
        : MemoryPainter(memory), image_(pixman_image_create_bits(PIXMAN_a8r8g8b8, picture_width, picture_height,
                                                                 memory.pixels, static_cast<int>(memory.pitch * 4))),
          texture_(create_texture())
    {
    }

    Draw prepare(const Task& task) override
    {
        const bool is_box = task.shape.figure == Figure::rectangle && task.shape.style == Style::filled;
        const Box& box = task.bounds;
        const auto area = is_box ? std::vector<pixman_box32_t>{{box.x, box.y, box.x + box.w, box.y + box.h}}
                                 : boxes(task.runs);
        if (task.shape.paint == Paint::textured)
            return textured(area, box);
        return [area, image = image_.get(), colour = pixman_colour(colour_of(task.shape.paint))] {
            pixman_image_fill_boxes(PIXMAN_OP_OVER, image, &colour, static_cast<int>(area.size()), area.data());
        };
    }

private:
    static Image create_texture()
    {
        Image texture(pixman_image_create_bits(PIXMAN_a8r8g8b8, texture_size, texture_size, nullptr, 0));
        std::uint32_t* pixels = pixman_image_get_data(texture.get());
        const int pitch = pixman_image_get_stride(texture.get()) / 4;
        for (int y = 0; y < texture_size; ++y) {
            for (int x = 0; x < texture_size; ++x)
                pixels[y * pitch + x] = premultiplied(texture_pixel(x, y));
        }
        pixman_image_set_repeat(texture.get(), PIXMAN_REPEAT_NORMAL);
        return texture;
    }

    Draw textured(const std::vector<pixman_box32_t>& area, const Box& box) const
    {
        return [=, image = image_.get(), texture = texture_.get()] {
            pixman_region32_t region;
            pixman_region32_init_rects(&region, area.data(), static_cast<int>(area.size()));
            pixman_image_set_clip_region32(image, &region);
            pixman_image_composite32(PIXMAN_OP_OVER, texture, nullptr, image, 0, 0, 0, 0, box.x, box.y, box.w, box.h);
            pixman_image_set_clip_region32(image, nullptr);
            pixman_region32_fini(&region);
        };
    }

    Image image_;
    Image texture_;
};

const bool is_added = add_peer("pixman", [](const Memory& memory) -> std::unique_ptr<Painter> {
    return std::make_unique<PixmanPainter>(memory);
});

} // namespace

} // namespace bench
