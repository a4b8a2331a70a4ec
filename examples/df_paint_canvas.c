/* The canvas, its steps, and the files that it is saved in. */
#include <stdio.h>
#include <string.h>
#include <unistd.h>

#include "df_paint.h"

static IDirectFBSurface *create_canvas(IDirectFB *dfb)
{
    const DFBSurfaceDescription description = {
        .flags = DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT,
        .width = paint_width, .height = canvas_height, .pixelformat = DSPF_ARGB};
    IDirectFBSurface *canvas;

    check(dfb->CreateSurface(dfb, &description, &canvas));
    check(canvas->Clear(canvas, paper.r, paper.g, paper.b, paper.a));
    return canvas;
}

void open_canvas(Painter *painter)
{
    int i;

    painter->canvas = create_canvas(painter->screen.dfb);
    for (i = 0; i < step_count; ++i)
        painter->steps[i] = create_canvas(painter->screen.dfb);
}

void close_canvas(Painter *painter)
{
    int i;

    for (i = 0; i < step_count; ++i)
        painter->steps[i]->Release(painter->steps[i]);
    painter->canvas->Release(painter->canvas);
}

static void copy(IDirectFBSurface *to, IDirectFBSurface *from)
{
    check(to->SetBlittingFlags(to, DSBLIT_NOFX));
    check(to->Blit(to, from, NULL, 0, 0));
}

void keep_step(Painter *painter)
{
    IDirectFBSurface *oldest = painter->steps[0];

    if (painter->kept_steps == step_count) {
        memmove(painter->steps, painter->steps + 1, (step_count - 1) * sizeof *painter->steps);
        painter->steps[--painter->kept_steps] = oldest;
    }
    copy(painter->steps[painter->kept_steps++], painter->canvas);
}

void undo_step(Painter *painter)
{
    if (painter->kept_steps > 0)
        copy(painter->canvas, painter->steps[--painter->kept_steps]);
}

void clear_canvas(Painter *painter)
{
    keep_step(painter);
    check(painter->canvas->Clear(painter->canvas, paper.r, paper.g, paper.b, paper.a));
}

void save_canvas(Painter *painter)
{
    Screen canvas = painter->screen;
    char file[32];
    int number = 0;

    do
        snprintf(file, sizeof file, "painting-%d.png", ++number);
    while (!access(file, F_OK));
    canvas.surface = painter->canvas;
    snprintf(painter->help, sizeof painter->help, screen_save(&canvas, file) ? "saved as %s" : "%s cannot be written", file);
}
