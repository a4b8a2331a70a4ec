#include "thin_outline.h"

#include "geometry/box.h"
#include "geometry/ellipse_walk.h"
#include "geometry/line_walk.h"
#include "pixels/blending.h"

#include <cstdlib>

namespace zuvo {
namespace {

/// Calls `draw(plot)` with what brings a single pixel its colour: the way of painting is chosen once, and `draw` is
/// compiled for each of them, so that there is no choice at a pixel.
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

/// Plots a line pixel by pixel from an address in memory.
template <typename Plot>
void plot_line(const Pixels& target, DFBPoint from, DFBPoint to, const Plot& plot)
{
    const auto row_words = static_cast<ptrdiff_t>(target.row_words);
    const ptrdiff_t x_step = from.x < to.x ? 1 : -1;
    const ptrdiff_t y_step = from.y < to.y ? row_words : -row_words;
    const int width = std::abs(to.x - from.x), height = std::abs(to.y - from.y);
    const bool is_steep = width < height;
    const ptrdiff_t along = is_steep ? y_step : x_step, across = is_steep ? x_step : y_step;

    uint32_t* pixel = target.row(from.y) + from.x;
    plot(pixel);
    geometry::walk_line(is_steep ? height : width, is_steep ? width : height, [&](bool moves_both) {
        pixel += along + (moves_both ? across : 0);
        plot(pixel);
    });
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
    geometry::walk_ellipse(rect, row_words, [&](ptrdiff_t pole) { plot_mirrored(0, pole); }, plot_mirrored);
}

bool is_inside(DFBPoint point, Extent extent)
{
    return point.x >= 0 && point.x < extent.width && point.y >= 0 && point.y < extent.height;
}

} // namespace

bool draw_thin_line(const Painter& painter, DFBPoint from, DFBPoint to)
{
    const Pixels& target = painter.target;
    if (!is_inside(from, target.extent) || !is_inside(to, target.extent))
        return false;

    draw_pixels(painter, [&](const auto& plot) { plot_line(target, from, to, plot); });
    return true;
}

bool draw_thin_ellipse(const Painter& painter, const DFBRectangle& rect)
{
    const Extent extent = painter.target.extent;
    if (!geometry::outline_fits(rect, extent.width, extent.height))
        return false;

    draw_pixels(painter, [&](const auto& plot) { plot_ellipse(painter.target, rect, plot); });
    return true;
}

} // namespace zuvo
