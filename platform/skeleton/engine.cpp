#include "command.h"
#include "platform.h"

#include <algorithm>

/// The engine's state, and its calls as zuvo.h declares them: each draws with what is set when it is called.

namespace {

using board::Command;
using board::Shape;

constexpr unsigned int engine_handle = 1;
constexpr int largest_pen = 4096;

enum class Fill { none, color, pattern };

struct {
    unsigned int output;
    Fill fill;
    u32 fill_color;
    unsigned int pattern;
    bool has_pen;
    zuvo_dtk_pen pen;
} state;

bool is_there()
{
    return board::is_started();
}

bool is_engine(unsigned int dtk)
{
    return dtk == engine_handle && is_there();
}

/// Names a surface in a field of the state, which forgets the one before even if that fails.
int set_surface(unsigned int& field, unsigned int surface)
{
    field = 0;
    if (int error = surface_check(surface))
        return error;
    field = surface;
    return ZUVO_OK;
}

bool is_too_large(const zuvo_dtk_pen& pen)
{
    const auto [left, right] = std::minmax({pen.x0, pen.x1, pen.x2, pen.x3});
    const auto [top, bottom] = std::minmax({pen.y0, pen.y1, pen.y2, pen.y3});
    return long{right} - left > largest_pen || long{bottom} - top > largest_pen;
}

bool needs_pen(Shape shape)
{
    return shape == Shape::line || shape == Shape::rectangle_border || shape == Shape::ellipse_border;
}

int check_state(Shape shape)
{
    if (!state.output)
        return ZUVO_NO_OUTPUT;
    if (needs_pen(shape))
        return state.has_pen ? ZUVO_OK : ZUVO_NO_PEN;
    if (state.fill == Fill::none)
        return ZUVO_NO_FILL;
    return state.fill == Fill::pattern && state.pattern == state.output ? ZUVO_PATTERN_IS_OUTPUT : ZUVO_OK;
}

int submit_with_pattern(Command& command)
{
    if (!command.has_pattern) {
        board::submit(command);
        return ZUVO_OK;
    }
    if (int error = surface_open(SURFACE_PATTERN, state.pattern, &command.pattern))
        return error;
    board::submit(command);
    surface_close(SURFACE_PATTERN);
    return ZUVO_OK;
}

/// Completes a command with the state and submits it.
int submit(Command command)
{
    if (int error = check_state(command.shape))
        return error;
    command.pen = state.pen;
    command.color = needs_pen(command.shape) ? state.pen.color : state.fill_color;
    command.has_pattern = !needs_pen(command.shape) && state.fill == Fill::pattern;
    if (int error = surface_open(SURFACE_TARGET, state.output, &command.target))
        return error;
    const int error = submit_with_pattern(command);
    surface_close(SURFACE_TARGET);
    return error;
}

int submit_box(unsigned int dtk, Shape shape, const DFBRectangle* rect, unsigned int flags)
{
    if (!is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    if (!rect)
        return ZUVO_NULL_ARGUMENT;
    return submit({shape, *rect, {}, {}, (flags & ZUVO_DTK_BLEND) != 0, 0, false, {}, {}});
}

/// A polygon's pattern begins at the upper left corner of all points.
DFBRectangle corner_of(const DFBPoint* points, unsigned int count)
{
    DFBRectangle corner = {points[0].x, points[0].y, 0, 0};
    for (unsigned int i = 1; i < count; ++i)
        corner = {std::min(corner.x, points[i].x), std::min(corner.y, points[i].y), 0, 0};
    return corner;
}

} // namespace

void board::reset_engine()
{
    state = {};
}

unsigned int zuvo_dtk_get_handle(void)
{
    return is_there() ? engine_handle : 0;
}

int zuvo_dtk_sync(unsigned int dtk)
{
    if (!is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    board::wait_until_drawn();
    return ZUVO_OK;
}

int zuvo_dtk_set_output_surface(unsigned int dtk, unsigned int surface)
{
    return is_engine(dtk) ? set_surface(state.output, surface) : ZUVO_NO_SUCH_ENGINE;
}

int zuvo_dtk_set_fill_color(unsigned int dtk, u8 r, u8 g, u8 b, u8 a)
{
    if (!is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    state.fill = Fill::color;
    state.fill_color = u32{a} << 24 | u32{r} << 16 | u32{g} << 8 | b;
    return ZUVO_OK;
}

int zuvo_dtk_set_fill_pattern(unsigned int dtk, unsigned int surface)
{
    if (!is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    const int error = set_surface(state.pattern, surface);
    state.fill = error ? Fill::none : Fill::pattern;
    return error;
}

int zuvo_dtk_set_pen(unsigned int dtk, const zuvo_dtk_pen* pen)
{
    if (!is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    state.has_pen = false;
    if (!pen)
        return ZUVO_NULL_ARGUMENT;
    if (is_too_large(*pen))
        return ZUVO_PEN_TOO_LARGE;
    state.pen = *pen;
    state.has_pen = true;
    return ZUVO_OK;
}

int zuvo_dtk_draw_line(unsigned int dtk, int x1, int y1, int x2, int y2, unsigned int flags)
{
    if (!is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    return submit({Shape::line, {}, {{x1, y1}, {x2, y2}}, {}, (flags & ZUVO_DTK_BLEND) != 0, 0, false, {}, {}});
}

int zuvo_dtk_draw_rectangle(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    if (is_engine(dtk) && rect && (rect->w <= 0 || rect->h <= 0))
        return ZUVO_EMPTY_RECTANGLE;
    return submit_box(dtk, Shape::rectangle, rect, flags);
}

int zuvo_dtk_draw_rectangle_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    return submit_box(dtk, Shape::rectangle_border, rect, flags);
}

int zuvo_dtk_draw_ellipse(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    return submit_box(dtk, Shape::ellipse, rect, flags);
}

int zuvo_dtk_draw_ellipse_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    return submit_box(dtk, Shape::ellipse_border, rect, flags);
}

int zuvo_dtk_draw_polygon(unsigned int dtk, const DFBPoint* points, unsigned int num_points, unsigned int)
{
    if (!is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;
    if (!points)
        return ZUVO_NULL_ARGUMENT;
    if (num_points == 0)
        return ZUVO_OK;
    const DFBRectangle corner = corner_of(points, num_points);
    return submit({Shape::polygon, corner, {points, points + num_points}, {}, true, 0, false, {}, {}});
}
