/* The picture that df_paint paints by itself: clicks and drags of a mouse that is not there. */
#include <math.h>

#include "df_paint.h"

enum { ink, grey, white, red, orange, yellow, green, cyan, blue, purple };
enum { round_pen, square_pen, nib, diamond };
enum { thin, medium, thick };

/*
 * A drag along a curve about (x, y) from one turn to another. With petals the curve swings to the middle and back that
 * often on its way round.
 */
typedef struct Stroke {
    int color, shape, size;
    double x, y, width, height, from, to, petals;
} Stroke;

/* A drag of a shape from one corner to the other. */
typedef struct Figure {
    int color, shape, size;
    Tool tool;
    DFBPoint from, to;
} Figure;

static const Figure figures[] = {
    {yellow, round_pen, thick, TOOL_ELLIPSE, {596, 26}, {726, 156}},
    {cyan, square_pen, thin, TOOL_ELLIPSE, {60, 36}, {210, 92}},
    {cyan, square_pen, thin, TOOL_ELLIPSE, {150, 58}, {280, 110}},
    {blue, nib, medium, TOOL_RECTANGLE, {612, 250}, {742, 380}},
    {red, diamond, medium, TOOL_LINE, {592, 254}, {677, 186}},
    {red, diamond, medium, TOOL_LINE, {677, 186}, {762, 254}},
    {orange, square_pen, thin, TOOL_RECTANGLE, {638, 284}, {672, 318}},
    {orange, square_pen, thin, TOOL_RECTANGLE, {688, 300}, {722, 380}},
};

static const Stroke strokes[] = {
    {green, nib, medium, 160, 290, -20, 90, 0, 0.5, 0},
    {green, nib, medium, 330, 270, 26, 100, 0, 0.5, 0},
    {green, nib, medium, 490, 290, 20, 90, 0, 0.5, 0},
    {green, diamond, thick, 400, 560, 560, 190, -0.2, 0.2, 0},
    {green, nib, medium, 114, 352, 36, 15, 0.25, 1.25, 0},
    {green, nib, medium, 388, 332, 36, 15, 0.75, 1.75, 0},
    {green, nib, medium, 536, 362, 36, 15, 0.75, 1.75, 0},
    {purple, nib, medium, 160, 196, 80, 80, 0, 0.5, 3},
    {red, nib, medium, 330, 164, 95, 95, 0, 0.5, 5},
    {blue, nib, medium, 490, 204, 78, 78, 0, 1, 2},
    {yellow, round_pen, thick, 160, 196, 5, 5, 0, 1, 0},
    {yellow, round_pen, thick, 330, 164, 5, 5, 0, 1, 0},
    {white, round_pen, thick, 490, 204, 5, 5, 0, 1, 0},
    {ink, nib, thin, 520, 60, 16, 9, -0.25, 0.25, 0},
    {ink, nib, thin, 552, 60, 16, 9, -0.25, 0.25, 0},
    {ink, nib, thin, 420, 40, 11, 7, -0.25, 0.25, 0},
    {ink, nib, thin, 442, 40, 11, 7, -0.25, 0.25, 0},
};

static void move(Painter *painter, double x, double y)
{
    DFBInputEvent event = {.type = DIET_AXISMOTION, .flags = DIEF_AXISABS | DIEF_FOLLOW, .axis = DIAI_X};

    event.axisabs = (int)lround(x);
    follow(painter, &event);
    event.flags = DIEF_AXISABS;
    event.axis = DIAI_Y;
    event.axisabs = (int)lround(y);
    follow(painter, &event);
}

static void press(Painter *painter, DFBInputEventType type)
{
    const DFBInputEvent event = {.type = type, .button = DIBI_LEFT};

    follow(painter, &event);
}

static void click(Painter *painter, int field)
{
    move(painter, field * field_width + field_width / 2, bar_height / 2);
    press(painter, DIET_BUTTONPRESS);
    press(painter, DIET_BUTTONRELEASE);
}

static void choose_pen(Painter *painter, int color, int shape, int size, Tool tool)
{
    click(painter, color);
    click(painter, first_shape + shape);
    click(painter, first_size + size);
    click(painter, first_tool + (int)tool);
}

static void draw_figure(Painter *painter, const Figure *figure)
{
    choose_pen(painter, figure->color, figure->shape, figure->size, figure->tool);
    move(painter, figure->from.x, figure->from.y + bar_height);
    press(painter, DIET_BUTTONPRESS);
    move(painter, figure->to.x, figure->to.y + bar_height);
    press(painter, DIET_BUTTONRELEASE);
}

static void move_along(Painter *painter, const Stroke *stroke, double turn)
{
    const double angle = 2 * 3.14159265358979323846 * turn, swing = cos(stroke->petals * angle);

    move(painter, stroke->x + stroke->width * swing * sin(angle),
         bar_height + stroke->y - stroke->height * swing * cos(angle));
}

static void draw_stroke(Painter *painter, const Stroke *stroke)
{
    const int steps = 240;
    int step;

    choose_pen(painter, stroke->color, stroke->shape, stroke->size, TOOL_BRUSH);
    move_along(painter, stroke, stroke->from);
    press(painter, DIET_BUTTONPRESS);
    for (step = 1; step <= steps; ++step)
        move_along(painter, stroke, stroke->from + (stroke->to - stroke->from) * step / steps);
    press(painter, DIET_BUTTONRELEASE);
}

void paint_by_itself(Painter *painter)
{
    size_t i;

    click(painter, fill_field);
    for (i = 0; i < sizeof figures / sizeof *figures; ++i)
        draw_figure(painter, &figures[i]);
    for (i = 0; i < sizeof strokes / sizeof *strokes; ++i)
        draw_stroke(painter, &strokes[i]);
    choose_pen(painter, red, nib, medium, TOOL_BRUSH);
}
