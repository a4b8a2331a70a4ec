/*
 * Paints with the mouse: choose a colour, a pen, its size and a tool above, and drag. The right button wipes.
 *
 *     cc df_paint*.c screen.c -o df_paint $(pkg-config --cflags --libs dtkhddvd libpng) -lm
 *     ./df_paint
 *     ./df_paint --png paint.png      paints by itself
 */
#include <string.h>
#include <unistd.h>

#include "df_paint.h"

#ifndef PAINT_FONT
#define PAINT_FONT "/usr/share/directfb-1.7.7/decker.dgiff"
#endif

static const char usual_help[] = "drag: draw    right button: wipe    U: undo    C: clear    F: fill    S: save    Esc: end";

/* ---- the mouse ---- */

static int limit(int value, int end)
{
    return value < 0 ? 0 : value < end ? value : end - 1;
}

static DFBPoint on_canvas(const Painter *painter)
{
    const DFBPoint point = {painter->mouse.x, limit(painter->mouse.y - bar_height, canvas_height)};

    return point;
}

static int draws_as_it_goes(const Painter *painter)
{
    return painter->choice.tool == TOOL_BRUSH || painter->held_buttons & DIBM_RIGHT;
}

static void draw_last_part(Painter *painter)
{
    const DFBPoint to = on_canvas(painter);

    if (painter->held_buttons & DIBM_RIGHT)
        wipe(painter->on_canvas, painter->last, to);
    else
        draw_mark(painter->on_canvas, &painter->choice, painter->last, to);
    painter->last = to;
}

static void begin_drag(Painter *painter, int button)
{
    keep_step(painter);
    painter->held_buttons = button;
    painter->start = painter->last = on_canvas(painter);
    if (draws_as_it_goes(painter))
        draw_last_part(painter);
}

static void end_drag(Painter *painter)
{
    if (painter->held_buttons && !draws_as_it_goes(painter))
        draw_mark(painter->on_canvas, &painter->choice, painter->start, on_canvas(painter));
    painter->held_buttons = 0;
}

static void choose(Painter *painter, int field)
{
    Choice *choice = &painter->choice;

    if (field < first_shape)
        choice->color = field;
    else if (field < first_size)
        choice->shape = field - first_shape;
    else if (field < first_tool)
        choice->size = field - first_size;
    else if (field < fill_field)
        choice->tool = (Tool)(field - first_tool);
    else if (field == fill_field)
        choice->is_filled = !choice->is_filled;
    else if (field == undo_field)
        undo_step(painter);
    else if (field == clear_field)
        clear_canvas(painter);
    else if (field == save_field)
        save_canvas(painter);
}

static void press_button(Painter *painter, DFBInputDeviceButtonIdentifier button)
{
    strcpy(painter->help, usual_help);
    if (painter->held_buttons || (button != DIBI_LEFT && button != DIBI_RIGHT))
        return;
    if (painter->mouse.y >= bar_height)
        begin_drag(painter, button == DIBI_LEFT ? DIBM_LEFT : DIBM_RIGHT);
    else if (button == DIBI_LEFT)
        choose(painter, painter->mouse.x / field_width);
}

/* Mice tell how far they moved, touch screens and windows where they are. */
static void move_mouse(Painter *painter, const DFBInputEvent *event)
{
    const int is_absolute = (event->flags & DIEF_AXISABS) != 0;
    DFBPoint *mouse = &painter->mouse;

    if (event->axis == DIAI_X)
        mouse->x = limit(is_absolute ? event->axisabs : mouse->x + event->axisrel, paint_width);
    if (event->axis == DIAI_Y)
        mouse->y = limit(is_absolute ? event->axisabs : mouse->y + event->axisrel, paint_height);
    /* The other axis of the same movement comes at once. */
    if (!(event->flags & DIEF_FOLLOW) && painter->held_buttons && draws_as_it_goes(painter))
        draw_last_part(painter);
}

static void press_key(Painter *painter, DFBInputDeviceKeySymbol key)
{
    if (painter->held_buttons)
        return;
    if (key == DIKS_SMALL_U)
        choose(painter, undo_field);
    else if (key == DIKS_SMALL_C)
        choose(painter, clear_field);
    else if (key == DIKS_SMALL_F)
        choose(painter, fill_field);
    else if (key == DIKS_SMALL_S)
        choose(painter, save_field);
}

void follow(Painter *painter, const DFBInputEvent *event)
{
    if (event->type == DIET_AXISMOTION)
        move_mouse(painter, event);
    else if (event->type == DIET_BUTTONPRESS)
        press_button(painter, event->button);
    else if (event->type == DIET_BUTTONRELEASE)
        end_drag(painter);
    else if (event->type == DIET_KEYPRESS)
        press_key(painter, event->key_symbol);
}

/* ---- the program ---- */

/* A shape that is being dragged is shown, and not yet drawn on the canvas. */
static void show(Painter *painter)
{
    const DFBPoint from = {painter->start.x, painter->start.y + bar_height};
    const DFBPoint to = {painter->mouse.x, on_canvas(painter).y + bar_height};
    IDirectFBSurface *surface = painter->screen.surface;

    check(surface->SetBlittingFlags(surface, DSBLIT_NOFX));
    check(surface->Blit(surface, painter->canvas, NULL, 0, bar_height));
    if (painter->held_buttons && !draws_as_it_goes(painter))
        draw_mark(painter->on_screen, &painter->choice, from, to);
    draw_bar(painter);
    screen_show(&painter->screen);
}

static void paint(Painter *painter)
{
    DFBInputEvent event;

    show(painter);
    while (!painter->screen.has_ended) {
        if (!screen_next_event(&painter->screen, 200, &event))
            continue;
        follow(painter, &event);
        if (painter->screen.events->HasEvent(painter->screen.events))
            show(painter);
    }
}

static void open_painter(Painter *painter, int argc, char **argv)
{
    const DFBFontDescription font = {.flags = DFDESC_HEIGHT, .height = 14};
    IDirectFB *dfb;

    screen_open(&painter->screen, argc, argv, "Paints with the mouse.", paint_width, paint_height);
    dfb = painter->screen.dfb;
    open_canvas(painter);
    check(CreateDrawingToolkit_HDDVD(dfb, painter->screen.surface, 1, &painter->on_screen));
    check(CreateDrawingToolkit_HDDVD(dfb, painter->canvas, 1, &painter->on_canvas));
    if (access(PAINT_FONT, R_OK) || dfb->CreateFont(dfb, PAINT_FONT, &font, &painter->font))
        painter->font = NULL;
    painter->choice.size = 1;
    strcpy(painter->help, usual_help);
}

static void close_painter(Painter *painter)
{
    if (painter->font)
        painter->font->Release(painter->font);
    painter->on_canvas->Release(painter->on_canvas);
    painter->on_screen->Release(painter->on_screen);
    close_canvas(painter);
    screen_close(&painter->screen);
}

int main(int argc, char **argv)
{
    static Painter painter;

    open_painter(&painter, argc, argv);
    if (painter.screen.png)
        paint_by_itself(&painter);
    paint(&painter);
    close_painter(&painter);
    return 0;
}
