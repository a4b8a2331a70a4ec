#include <SDL.h>
#include <SDL2_gfxPrimitives.h>

#include <cmath>

#include "geometry.h"
#include "peers.h"

namespace bench {

namespace {

Sint16 coordinate(int value)
{
    return static_cast<Sint16>(value);
}

/// SDL2_gfx takes colours as bytes in memory order R, G, B, A.
Uint32 gfx_colour(Colour colour)
{
    return alpha(colour) << 24 | blue(colour) << 16 | green(colour) << 8 | red(colour);
}

struct Destroyer {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
    void operator()(SDL_Renderer* renderer) const { SDL_DestroyRenderer(renderer); }
};

/// SDL2_gfx on SDL's software renderer. Its only wide figure is the line; it does not blend textures.
class Sdl2GfxPainter : public MemoryPainter {
public:
    explicit Sdl2GfxPainter(const Memory& memory)
        : MemoryPainter(memory), surface_(SDL_CreateRGBSurfaceWithFormatFrom(
                                     memory.pixels, picture_width, picture_height, 32,
                                     static_cast<int>(memory.pitch * 4), SDL_PIXELFORMAT_ARGB8888)),
          renderer_(SDL_CreateSoftwareRenderer(surface_.get()))
    {
    }

    Draw prepare(const Task& task) override
    {
        const Shape& shape = task.shape;
        if (shape.paint == Paint::textured)
            return {};
        const Draw draw = figure(task);
        if (!draw)
            return {};
        return [draw, renderer = renderer_.get()] {
            draw();
            SDL_RenderFlush(renderer);
        };
    }

private:
    Draw figure(const Task& task) const
    {
        const Shape& shape = task.shape;
        const bool is_thick = shape.style == Style::thick;
        switch (shape.figure) {
        case Figure::ellipse: return is_thick ? Draw() : ellipse(task);
        case Figure::rectangle: return is_thick ? Draw() : rectangle(shape);
        case Figure::polygon: return polygon(shape);
        case Figure::line: break;
        }
        return [=, renderer = renderer_.get(), from = shape.points[0], to = shape.points[1],
                width = static_cast<Uint8>(std::lround(stroke_width(task)))] {
            thickLineColor(renderer, coordinate(from.x), coordinate(from.y), coordinate(to.x), coordinate(to.y), width,
                           gfx_colour(opaque_colour));
        };
    }

    Draw ellipse(const Task& task) const
    {
        const WholeEllipse e = whole_ellipse(task);
        const auto draw = task.shape.style == Style::filled ? filledEllipseColor : ellipseColor;
        return [=, renderer = renderer_.get(), colour = gfx_colour(colour_of(task.shape.paint))] {
            draw(renderer, coordinate(e.cx), coordinate(e.cy), coordinate(e.a), coordinate(e.b), colour);
        };
    }

    Draw rectangle(const Shape& shape) const
    {
        return [=, renderer = renderer_.get(), box = shape.box, colour = gfx_colour(colour_of(shape.paint))] {
            boxColor(renderer, coordinate(box.x), coordinate(box.y), coordinate(box.x + box.w - 1),
                     coordinate(box.y + box.h - 1), colour);
        };
    }

    Draw polygon(const Shape& shape) const
    {
        std::vector<Sint16> xs, ys;
        for (const Point& point : shape.points) {
            xs.push_back(coordinate(point.x));
            ys.push_back(coordinate(point.y));
        }
        return [=, renderer = renderer_.get(), colour = gfx_colour(colour_of(shape.paint))] {
            filledPolygonColor(renderer, xs.data(), ys.data(), static_cast<int>(xs.size()), colour);
        };
    }

    std::unique_ptr<SDL_Surface, Destroyer> surface_;
    std::unique_ptr<SDL_Renderer, Destroyer> renderer_;
};

const bool is_added = add_peer("SDL2_gfx", [](const Memory& memory) -> std::unique_ptr<Painter> {
    return std::make_unique<Sdl2GfxPainter>(memory);
});

} // namespace

} // namespace bench
