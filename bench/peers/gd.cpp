#include <gd.h>

#include <cmath>

#include "geometry.h"
#include "peers.h"

namespace bench {

namespace {

/// gd's alpha has 7 bits, 0 being opaque.
int gd_colour(Colour colour)
{
    const auto transparency = static_cast<int>((255 - alpha(colour)) / 2);
    return gdTrueColorAlpha(static_cast<int>(red(colour)), static_cast<int>(green(colour)),
                            static_cast<int>(blue(colour)), transparency);
}

struct Destroyer {
    void operator()(gdImage* image) const { gdImageDestroy(image); }
};

/// gd on an image of its own.
class GdPainter : public Painter {
public:
    GdPainter()
        : image_(gdImageCreateTrueColor(picture_width, picture_height)),
          texture_(gdImageCreateTrueColor(texture_size, texture_size))
    {
        gdImageAlphaBlending(texture_.get(), 0);
        for (int y = 0; y < texture_size; ++y) {
            for (int x = 0; x < texture_size; ++x)
                gdImageSetPixel(texture_.get(), x, y, gd_colour(texture_pixel(x, y)));
        }
        gdImageSetTile(image_.get(), texture_.get());
        gdImageAlphaBlending(image_.get(), 1);
    }

    void clear() override
    {
        gdImageFilledRectangle(image_.get(), 0, 0, picture_width - 1, picture_height - 1, gd_colour(background));
    }

    Picture picture() override
    {
        Picture picture;
        for (int y = 0; y < picture_height; ++y) {
            for (int x = 0; x < picture_width; ++x)
                picture.push_back(static_cast<std::uint32_t>(gdImageGetTrueColorPixel(image_.get(), x, y)) & 0xffffff);
        }
        return picture;
    }

    Draw prepare(const Task& task) override
    {
        const Shape& shape = task.shape;
        const int colour = shape.paint == Paint::textured ? gdTiled : gd_colour(colour_of(shape.paint));
        gdImageSetThickness(image_.get(),
                            shape.style == Style::thick ? static_cast<int>(std::lround(stroke_width(task))) : 1);
        switch (shape.figure) {
        case Figure::ellipse: return ellipse(task, colour);
        case Figure::rectangle: return rectangle(shape, colour);
        case Figure::polygon: return polygon(shape, colour);
        case Figure::line: break;
        }
        return [image = image_.get(), from = shape.points[0], to = shape.points[1], colour] {
            gdImageLine(image, from.x, from.y, to.x, to.y, colour);
        };
    }

private:
    Draw ellipse(const Task& task, int colour) const
    {
        const WholeEllipse e = whole_ellipse(task);
        gdImage* image = image_.get();
        switch (task.shape.style) {
        case Style::filled: return [=] { gdImageFilledEllipse(image, e.cx, e.cy, 2 * e.a, 2 * e.b, colour); };
        case Style::thin: return [=] { gdImageEllipse(image, e.cx, e.cy, 2 * e.a, 2 * e.b, colour); };
        case Style::thick: break;
        }
        return [=] { gdImageArc(image, e.cx, e.cy, 2 * e.a, 2 * e.b, 0, 360, colour); };
    }

    Draw rectangle(const Shape& shape, int colour) const
    {
        const Box& box = shape.box;
        const auto draw = shape.style == Style::filled ? gdImageFilledRectangle : gdImageRectangle;
        return [=, image = image_.get(), right = box.x + box.w - 1, bottom = box.y + box.h - 1] {
            draw(image, box.x, box.y, right, bottom, colour);
        };
    }

    Draw polygon(const Shape& shape, int colour) const
    {
        std::vector<gdPoint> points;
        for (const Point& point : shape.points)
            points.push_back({point.x, point.y});
        return [=, image = image_.get()]() mutable {
            gdImageFilledPolygon(image, points.data(), static_cast<int>(points.size()), colour);
        };
    }

    std::unique_ptr<gdImage, Destroyer> image_;
    std::unique_ptr<gdImage, Destroyer> texture_;
};

const bool is_added = add_peer("gd", [](const Memory&) -> std::unique_ptr<Painter> {
    return std::make_unique<GdPainter>();
});

} // namespace

} // namespace bench
