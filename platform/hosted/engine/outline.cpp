#include "engine/draw.h"
#include "engine.h"

#include "engine/fill/box.h"
#include "engine/outline/box_border.h"
#include "engine/fill/ellipse_rows.h"
#include "engine/paint/painter.h"
#include "engine/surface/surface.h"
#include "engine/outline/thin_outline.h"
#include "geometry/box.h"

using zuvo::engine;
using zuvo::Extent;
using zuvo::OpenSurface;
using zuvo::Painter;
using zuvo::RowRange;

namespace {

/// Draws an outline with the engine's pen: `draw(painter, target)` returns false without memory.
template <typename Draw>
int draw_outline(bool blend, const Draw& draw)
{
    if (!engine.output)
        return ZUVO_NO_OUTPUT;
    if (!engine.has_pen)
        return ZUVO_NO_PEN;
    return zuvo::draw_colour(engine.pen.color, blend, draw);
}

/// Draws what the pen covers on a path: `make_path(rows)` fills the engine's path with what the pen visits on these
/// rows and returns false without memory.
template <typename MakePath>
bool draw_path(Painter& painter, const MakePath& make_path)
{
    const Extent extent = painter.target.extent;
    return make_path(zuvo::rows_in_reach(engine.pen_rows, extent))
        && zuvo::sweep(engine.sweep_memory, engine.path, engine.pen_rows, extent, painter);
}

/// Where a pen of one pixel leaves it.
DFBPoint pixel_at(DFBPoint point)
{
    const auto moved = [](int coordinate, int distance) { return zuvo::cut_to_far(int64_t(coordinate) + distance); };
    return {moved(point.x, engine.pen_rows.part(0, 0).left), moved(point.y, engine.pen_rows.top)};
}

bool draw_line(Painter& painter, DFBPoint from, DFBPoint to)
{
    if (engine.pen_rows.is_single_pixel && !zuvo::cut_thin_line(painter.target.extent, from, to))
        return true;
    if (engine.pen_rows.covers_one_pixel() && zuvo::draw_thin_line(painter, pixel_at(from), pixel_at(to)))
        return true;
    return draw_path(painter, [from, to](RowRange rows) { return zuvo::line_path(engine.path, rows, from, to); });
}

bool draw_rectangle(Painter& painter, const DFBRectangle& rect)
{
    if (engine.pen_rows.is_box && !zuvo::is_empty(rect)) {
        zuvo::give_border(rect, engine.pen_rows, painter.target.extent, painter);
        return true;
    }
    return draw_path(painter, [&rect](RowRange rows) { return zuvo::rectangle_path(engine.path, rows, rect); });
}

bool draw_ellipse(Painter& painter, const DFBRectangle& rect)
{
    const DFBRectangle box = engine.pen_rows.is_single_pixel ? geometry::inner_box(rect) : rect;
    if (engine.pen_rows.covers_one_pixel()) {
        const DFBPoint corner = pixel_at({box.x, box.y});
        if (zuvo::draw_thin_ellipse(painter, {corner.x, corner.y, box.w, box.h}))
            return true;
    }
    return draw_path(painter, [&box](RowRange rows) {
        return zuvo::ellipse_path(engine.path, engine.quarter, rows, box);
    });
}

} // namespace

int zuvo_dtk_draw_line(unsigned int dtk, int x1, int y1, int x2, int y2, unsigned int flags)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;

    return draw_outline(flags & ZUVO_DTK_BLEND, [=](Painter& painter, const OpenSurface& target) {
        return draw_line(painter, target.at(x1, y1), target.at(x2, y2));
    });
}

int zuvo_dtk_draw_rectangle_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    if (!rect)
        return ZUVO_NULL_ARGUMENT;
    if (engine.has_pen && engine.pen_rows.is_single_pixel && zuvo::is_empty(*rect))
        return ZUVO_EMPTY_RECTANGLE;

    return draw_outline(flags & ZUVO_DTK_BLEND, [rect](Painter& painter, const OpenSurface& target) {
        return draw_rectangle(painter, target.at(*rect));
    });
}

int zuvo_dtk_draw_ellipse_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    if (!rect)
        return ZUVO_NULL_ARGUMENT;

    return draw_outline(flags & ZUVO_DTK_BLEND, [rect](Painter& painter, const OpenSurface& target) {
        return draw_ellipse(painter, target.at(*rect));
    });
}
