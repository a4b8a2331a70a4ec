#include "engine.h"

#include "ellipse_rows.h"
#include "surface.h"

using zuvo::engine;
using zuvo::Extent;
using zuvo::RowRange;

namespace {

/// Draws an outline with the engine's pen. `make_path(rows, extent)` fills the engine's path with what the pen visits
/// on these rows and answers false without memory.
template <typename MakePath>
int draw_outline(bool blend, const MakePath& make_path)
{
    if (!engine.output)
        return ZUVO_NO_OUTPUT;
    if (!engine.has_pen)
        return ZUVO_NO_PEN;

    zuvo::OpenSurface target(DIRECTFB_CORE_TARGET);
    if (int error = target.open(engine.output))
        return error;

    const Extent extent = target.pixels().extent;
    zuvo::Painter painter = zuvo::paint_colour(target.pixels(), engine.pen.color, blend);
    const bool is_drawn = make_path(zuvo::rows_in_reach(engine.pen_rows, extent), extent)
        && zuvo::sweep(engine.sweep_memory, engine.path, engine.pen_rows, extent, painter);
    return is_drawn ? ZUVO_OK : ZUVO_NO_MEMORY;
}

} // namespace

int zuvo_dtk_draw_line(unsigned int dtk, int x1, int y1, int x2, int y2, unsigned int flags)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;

    const DFBPoint from = {x1, y1}, to = {x2, y2};
    return draw_outline(flags & ZUVO_DTK_BLEND, [from, to](RowRange rows, Extent extent) {
        return engine.pen_rows.is_single_pixel ? zuvo::thin_line_path(engine.path, extent, from, to)
                                               : zuvo::line_path(engine.path, rows, from, to);
    });
}

int zuvo_dtk_draw_rectangle_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    if (!rect)
        return ZUVO_NULL_ARGUMENT;

    return draw_outline(flags & ZUVO_DTK_BLEND,
                        [rect](RowRange rows, Extent) { return zuvo::rectangle_path(engine.path, rows, *rect); });
}

int zuvo_dtk_draw_ellipse_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    if (!rect)
        return ZUVO_NULL_ARGUMENT;

    return draw_outline(flags & ZUVO_DTK_BLEND, [rect](RowRange rows, Extent) {
        const DFBRectangle box = engine.pen_rows.is_single_pixel ? zuvo::inner_box(*rect) : *rect;
        return zuvo::ellipse_path(engine.path, engine.quarter, rows, box);
    });
}
