#include "engine/draw.h"
#include "engine.h"

#include "engine/fill/box.h"
#include "engine/fill/box_clip.h"
#include "engine/fill/ellipse_arc.h"
#include "engine/fill/ellipse_rows.h"
#include "engine/paint/painter.h"
#include "engine/surface/surface.h"
#include "geometry/box.h"

#include <algorithm>

using zuvo::engine;
using zuvo::OpenSurface;
using zuvo::Painter;

namespace {

/// Draws a shape with the engine's pattern, which begins at (x, y). Kept apart, as colours are drawn much faster.
template <typename Draw>
[[gnu::noinline]] int draw_pattern(int x, int y, bool blend, const Draw& draw)
{
    if (zuvo::share_pixels(engine.pattern, engine.output))
        return ZUVO_PATTERN_IS_OUTPUT;
    OpenSurface target(DIRECTFB_CORE_TARGET), pattern(DIRECTFB_CORE_PATTERN);
    if (int error = target.open(engine.output))
        return error;
    if (int error = pattern.open(engine.pattern))
        return error;

    const DFBPoint origin = target.at(x, y);
    Painter painter = zuvo::paint_pattern(target.pixels(), pattern.pixels(), origin.x, origin.y, blend);
    return draw(painter, target) ? ZUVO_OK : ZUVO_NO_MEMORY;
}

/// Draws a shape with the engine's fill; a pattern begins at (x, y). `draw(painter, target)` gives the shape's rows to the
/// painter and returns false without memory.
template <typename Draw>
int draw_filled(int x, int y, bool blend, const Draw& draw)
{
    if (!engine.output)
        return ZUVO_NO_OUTPUT;
    if (engine.fill == zuvo::Fill::none)
        return ZUVO_NO_FILL;
    return engine.fill == zuvo::Fill::pattern ? draw_pattern(x, y, blend, draw)
                                              : zuvo::draw_colour(engine.fill_colour, blend, draw);
}

bool fill_clipped_ellipse(const DFBRectangle& rect, Painter& painter)
{
    zuvo::BoxClip clip(painter, rect);
    return zuvo::fill_ellipse(engine.rows, painter.target.extent, geometry::inner_box(rect), clip);
}

bool fill_plain_ellipse(const DFBRectangle& rect, bool blend, Painter& painter)
{
    if (blend && zuvo::has_no_inside(rect))
        return fill_clipped_ellipse(rect, painter);
    return zuvo::fill_ellipse(engine.rows, painter.target.extent, geometry::inner_box(rect), painter);
}

bool fill_patterned_ellipse(const DFBRectangle& rect, Painter& painter)
{
    if (rect.w / 2 == 0 || rect.h / 2 == 0)
        return true;
    if (zuvo::is_huge(rect))
        return zuvo::fill_ellipse(engine.rows, painter.target.extent, rect, painter);

    engine.polygon.begin(painter.target.extent);
    zuvo::add_ellipse(engine.polygon, rect);
    return engine.polygon.scan(painter);
}

bool fill_polygon(const DFBPoint* points, unsigned int count, const OpenSurface& target, Painter& painter)
{
    const auto fixed = [&target](DFBPoint corner) {
        const DFBPoint point = target.at(corner.x, corner.y);
        return zuvo::FixedPoint{point.x * zuvo::fixed_one, point.y * zuvo::fixed_one};
    };
    engine.polygon.begin(painter.target.extent);
    for (unsigned int i = 0; i < count; ++i)
        engine.polygon.add_edge(fixed(points[i]), fixed(points[i + 1 < count ? i + 1 : 0]));
    return engine.polygon.scan(painter);
}

DFBPoint upper_left(const DFBPoint* points, unsigned int count)
{
    DFBPoint corner = points[0];
    for (unsigned int i = 1; i < count; ++i)
        corner = {std::min(corner.x, points[i].x), std::min(corner.y, points[i].y)};
    return corner;
}

} // namespace

int zuvo_dtk_draw_rectangle(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    if (!rect)
        return ZUVO_NULL_ARGUMENT;

    if (zuvo::is_empty(*rect))
        return ZUVO_EMPTY_RECTANGLE;

    return draw_filled(rect->x, rect->y, flags & ZUVO_DTK_BLEND, [rect](Painter& painter, const OpenSurface& target) {
        const DFBRectangle box = target.at(*rect);
        const int64_t right = int64_t(box.x) + box.w, bottom = int64_t(box.y) + box.h;
        zuvo::give_box({box.x, box.y, right, bottom}, painter.target.extent, painter);
        return true;
    });
}

int zuvo_dtk_draw_ellipse(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    if (!rect)
        return ZUVO_NULL_ARGUMENT;

    const bool blend = flags & ZUVO_DTK_BLEND;
    return draw_filled(rect->x, rect->y, blend, [rect, blend](Painter& painter, const OpenSurface& target) {
        const DFBRectangle box = target.at(*rect);
        return engine.fill == zuvo::Fill::pattern ? fill_patterned_ellipse(box, painter)
                                                  : fill_plain_ellipse(box, blend, painter);
    });
}

int zuvo_dtk_draw_polygon(unsigned int dtk, const DFBPoint* points, unsigned int num_points, unsigned int)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    if (!points)
        return ZUVO_NULL_ARGUMENT;
    if (num_points == 0)
        return ZUVO_OK;

    const DFBPoint corner = upper_left(points, num_points);
    return draw_filled(corner.x, corner.y, true, [points, num_points](Painter& painter, const OpenSurface& target) {
        return fill_polygon(points, num_points, target, painter);
    });
}
