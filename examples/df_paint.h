/* What the parts of df_paint share: df_paint.c follows the mouse, and the other files draw. */
#ifndef DF_PAINT_H
#define DF_PAINT_H

#include "screen.h"

/* The canvas lies between the bar of tools and the line of help. In pixels. */
enum { paint_width = 800, canvas_height = 428, bar_height = 48, help_height = 24 };
enum { paint_height = bar_height + canvas_height + help_height };

enum { color_count = 10, shape_count = 4, size_count = 3, step_count = 32 };

typedef enum Tool { TOOL_BRUSH, TOOL_LINE, TOOL_RECTANGLE, TOOL_ELLIPSE, tool_count } Tool;

typedef struct Choice {
    int color, shape, size; /* Of the pen. */
    Tool tool;
    int is_filled;
} Choice;

typedef struct Painter {
    Screen screen;
    IDirectFBSurface *canvas;
    IDirectFBFont *font;                 /* NULL where there is none. */
    DTKHDDVD *on_screen, *on_canvas;
    IDirectFBSurface *steps[step_count]; /* The canvas as it was before each of the last steps. */
    int kept_steps;
    Choice choice;
    DFBPoint mouse, start, last; /* Where the mouse is, on the screen; where a drag began and got to, on the canvas. */
    int held_buttons;
    char help[128];
} Painter;

static const DFBColor paper = {0xFF, 0xFA, 0xF7, 0xEE};
extern const DFBColor colors[color_count];

/* ---- df_paint_canvas.c ---- */

void open_canvas(Painter *painter);
void close_canvas(Painter *painter);

/* Keeps the canvas as it is, to be undone to. The oldest step makes room for the newest. */
void keep_step(Painter *painter);
void undo_step(Painter *painter);
void clear_canvas(Painter *painter);

/* Writes painting-1.png, or with the first number that is free: nothing is overwritten. */
void save_canvas(Painter *painter);

/* ---- df_paint_marks.c ---- */

/* Draws what a drag from one point to another leaves. A brush leaves the last part of its way. */
void draw_mark(DTKHDDVD *toolkit, const Choice *choice, DFBPoint from, DFBPoint to);

/* Wipes along a line. */
void wipe(DTKHDDVD *toolkit, DFBPoint from, DFBPoint to);

/* ---- df_paint_bar.c ---- */

/* What the fields of the bar are for: first a colour each, and so on. */
enum {
    first_shape = color_count, first_size = first_shape + shape_count, first_tool = first_size + size_count,
    fill_field = first_tool + tool_count, undo_field, clear_field, save_field, field_count,
    field_width = paint_width / field_count
};

void draw_bar(const Painter *painter);

/* ---- df_paint_self.c ---- */

/* Paints a picture, by events of a mouse that is not there. */
void paint_by_itself(Painter *painter);

/* ---- df_paint.c ---- */

void follow(Painter *painter, const DFBInputEvent *event);

#endif
