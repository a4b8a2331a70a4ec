#include "thin_outline.h"

#include "pixels/blending.h"
#include "geometry/ellipse_walk.h"

#include <cstdlib>

namespace zuvo {
namespace {

/// Calls `draw(plot)` with what brings a single pixel its colour.
template <typename Draw>
void draw_pixels(const Painter& painter, const Draw& draw)
{
    const uint32_t colour = painter.colour;
    switch (painter.paint) {
    case Paint::stored:
        return draw([colour](uint32_t* pixel) { *pixel = colour; });
    case Paint::blended:
        return draw([source = ConstantSource(colour)](uint32_t* pixel) {
            store<Single>(pixel, source.blended<Single>(load<Single>(pixel)));
        });
    case Paint::blended_without_alpha:
        return draw([source = Single::Pixels{} + colour](uint32_t* pixel) {
            store<Single>(pixel, blended_rgb32<Single>(source, load<Single>(pixel)));
        });
    }
}

/// A line of steps along its longer direction; the shorter one moves when its error, which begins at half the longer
/// one, reaches the whole.
struct PixelSteps {
    ptrdiff_t along, across;
    unsigned int longer, shorter;
};

PixelSteps make_steps(const Pixels& target, DFBPoint from, DFBPoint to)
{
    const auto width = static_cast<unsigned int>(std::abs(to.x - from.x));
    const auto height = static_cast<unsigned int>(std::abs(to.y - from.y));
    const auto row_words = static_cast<ptrdiff_t>(target.row_words);
    const ptrdiff_t x_step = from.x < to.x ? 1 : -1;
    const ptrdiff_t y_step = from.y < to.y ? row_words : -row_words;
    if (width < height)
        return {y_step, x_step, height, width};
    return {x_step, y_step, width, height};
}

template <typename Plot>
void plot_steps(uint32_t* pixel, const PixelSteps& steps, const Plot& plot)
{
    plot(pixel);
    unsigned int error = steps.longer / 2;
    for (unsigned int i = 0; i < steps.longer; ++i) {
        error += steps.shorter;
        const bool moves_both = error >= steps.longer;
        error -= moves_both ? steps.longer : 0;
        pixel += steps.along + (moves_both ? steps.across : 0);
        plot(pixel);
    }
}

/// Plots the four mirrored pixels of each step; fewer where they lie on an axis.
template <typename Plot>
void plot_ellipse(const Pixels& target, const DFBRectangle& rect, const Plot& plot)
{
    uint32_t* const centre = target.row(rect.y + rect.h / 2) + rect.x + rect.w / 2;
    const auto row_words = static_cast<ptrdiff_t>(target.row_words);

    const auto plot_pair = [&plot](uint32_t* middle, ptrdiff_t x) {
        plot(middle + x);
        if (x)
            plot(middle - x);
    };
    const auto plot_mirrored = [&](ptrdiff_t x, ptrdiff_t y) {
        plot_pair(centre + y, x);
        if (y)
            plot_pair(centre - y, x);
    };
    dtk::walk_ellipse(rect, row_words, [&](ptrdiff_t pole) { plot_mirrored(0, pole); }, plot_mirrored);
}

bool is_inside(DFBPoint point, Extent extent)
{
    return point.x >= 0 && point.x < extent.width && point.y >= 0 && point.y < extent.height;
}

/// Whether the pixels from the middle of a length as far as its half to both sides lie from 0 up to @p size.
bool fits(int origin, int length, int size)
{
    const int half = length / 2;
    return length >= 0 && length < size && origin >= 0 && origin <= size && origin + 2 * half < size;
}

} // namespace

bool draw_thin_line(const Painter& painter, DFBPoint from, DFBPoint to)
{
    const Pixels& target = painter.target;
    if (!is_inside(from, target.extent) || !is_inside(to, target.extent))
        return false;

    const PixelSteps steps = make_steps(target, from, to);
    draw_pixels(painter, [&](const auto& plot) { plot_steps(target.row(from.y) + from.x, steps, plot); });
    return true;
}

bool draw_thin_ellipse(const Painter& painter, const DFBRectangle& rect)
{
    const Extent extent = painter.target.extent;
    // The walk may end one column beyond the half width.
    const DFBRectangle reach = {rect.x - 1, rect.y, rect.w + 2, rect.h};
    if (rect.w < 0 || !fits(reach.x, reach.w, extent.width) || !fits(reach.y, reach.h, extent.height))
        return false;

    draw_pixels(painter, [&](const auto& plot) { plot_ellipse(painter.target, rect, plot); });
    return true;
}

} // namespace zuvo
