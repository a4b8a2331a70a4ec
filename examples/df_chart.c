/*
 * The same five numbers as bars and as a pie, told apart by patterns. Escape ends it.
 *
 *     cc df_chart.c screen.c -o df_chart $(pkg-config --cflags --libs dtkhddvd libpng) -lm
 *     ./df_chart
 *     ./df_chart --png chart.png
 */
#include <math.h>

#include "screen.h"

enum { width = 800, height = 440, tile = 12, value_count = 5, arc_points = 48 };

static const int values[value_count] = {34, 21, 55, 13, 42};

/* A pattern is a tile of the first colour with a drawing of the second one. */
typedef struct Pattern {
    u32 ground, figure;
    void (*draw)(IDirectFBSurface *texture);
} Pattern;

static void draw_diagonals(IDirectFBSurface *texture)
{
    int i;

    /* Lines beside the diagonal continue in the neighbouring tiles. */
    for (i = -1; i <= 1; ++i)
        check(texture->DrawLine(texture, i, tile - 1, tile - 1 + i, 0));
    check(texture->FillRectangle(texture, 0, 0, 1, 1));
}

static void draw_dots(IDirectFBSurface *texture)
{
    check(texture->FillRectangle(texture, 1, 1, 4, 4));
    check(texture->FillRectangle(texture, 7, 7, 4, 4));
}

static void draw_stripes(IDirectFBSurface *texture)
{
    check(texture->FillRectangle(texture, 0, 0, tile, 4));
}

static void draw_grid(IDirectFBSurface *texture)
{
    check(texture->DrawRectangle(texture, 0, 0, tile + 1, tile + 1));
}

static void draw_checks(IDirectFBSurface *texture)
{
    check(texture->FillRectangle(texture, 0, 0, tile / 2, tile / 2));
    check(texture->FillRectangle(texture, tile / 2, tile / 2, tile / 2, tile / 2));
}

static const Pattern patterns[value_count] = {
    {0x2E6FB7, 0x8FC1F2, draw_diagonals},
    {0xC2483C, 0xF4B8A8, draw_dots},
    {0x2F8A57, 0x9BDDB4, draw_stripes},
    {0x6B4FA0, 0xC9B5F0, draw_grid},
    {0xD89A28, 0xF8DFA0, draw_checks},
};

static IDirectFBSurface *create_texture(IDirectFB *dfb, const Pattern *pattern)
{
    const DFBSurfaceDescription description = {
        .flags = DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT,
        .width = tile, .height = tile, .pixelformat = DSPF_ARGB};
    const u32 ground = pattern->ground, figure = pattern->figure;
    IDirectFBSurface *texture;

    check(dfb->CreateSurface(dfb, &description, &texture));
    check(texture->Clear(texture, (u8)(ground >> 16), (u8)(ground >> 8), (u8)ground, 0xFF));
    check(texture->SetColor(texture, (u8)(figure >> 16), (u8)(figure >> 8), (u8)figure, 0xFF));
    pattern->draw(texture);
    return texture;
}

static void draw_bar(DTKHDDVD *toolkit, int index, IDirectFBSurface *texture)
{
    const int bar_height = values[index] * 6;
    const DFBRectangle bar = {54 + index * 64, 380 - bar_height, 44, bar_height};
    const DFBRectangle shadow = {bar.x + 7, bar.y + 7, bar.w, bar.h - 7};

    check(toolkit->SetFillColor(toolkit, 0, 0, 0, 0x40));
    check(toolkit->Rectangle(toolkit, &shadow, DTKHDDVD_FILL));
    check(toolkit->SetFillPattern(toolkit, texture));
    check(toolkit->Rectangle(toolkit, &bar, DTKHDDVD_FILL | DTKHDDVD_STROKE));
}

/* The slice between two turns of the pie, counted from twelve, pulled out of the middle by some pixels. */
static void draw_slice(DTKHDDVD *toolkit, double from, double to)
{
    const double full = 2 * 3.14159265358979323846, middle = full * (from + to) / 2;
    const int radius = 160, pull = 8;
    const int x = 594 + (int)lround(pull * sin(middle)), y = 224 - (int)lround(pull * cos(middle));
    DFBPoint corners[arc_points + 1] = {{x, y}};
    int i;

    for (i = 0; i < arc_points; ++i) {
        const double angle = full * (from + (to - from) * i / (arc_points - 1));

        corners[i + 1].x = x + (int)lround(radius * sin(angle));
        corners[i + 1].y = y - (int)lround(radius * cos(angle));
    }
    check(toolkit->Polygon(toolkit, corners, arc_points + 1, 1, DTKHDDVD_FILL | DTKHDDVD_STROKE));
}

static int sum_of_values(int count)
{
    int i, sum = 0;

    for (i = 0; i < count; ++i)
        sum += values[i];
    return sum;
}

static void draw_axes(DTKHDDVD *toolkit)
{
    int y;

    check(toolkit->SetStrokeColor(toolkit, 0xC8, 0xCC, 0xD4, 0xFF));
    for (y = 80; y < 380; y += 60)
        check(toolkit->Line(toolkit, 40, y, 370, y));
    check(toolkit->SetStrokeColor(toolkit, 0x30, 0x34, 0x3C, 0xFF));
    check(toolkit->Line(toolkit, 40, 40, 40, 380));
    check(toolkit->Line(toolkit, 40, 380, 370, 380));
}

static void draw_chart(IDirectFB *dfb, DTKHDDVD *toolkit)
{
    const DTKHDDVDPenShape round = {-1, -1, 2, -1, 2, 2, -1, 2};
    const double total = sum_of_values(value_count);
    DTKHDDVDPen *pen;
    int i;

    draw_axes(toolkit);
    check(toolkit->CreatePen(toolkit, &round, &pen));
    check(toolkit->SetPen(toolkit, pen));
    for (i = 0; i < value_count; ++i) {
        IDirectFBSurface *texture = create_texture(dfb, &patterns[i]);

        draw_bar(toolkit, i, texture);
        draw_slice(toolkit, sum_of_values(i) / total, sum_of_values(i + 1) / total);
        check(toolkit->SetFillPattern(toolkit, NULL));
        texture->Release(texture);
    }
    check(toolkit->SetPen(toolkit, NULL));
    pen->Release(pen);
}

int main(int argc, char **argv)
{
    Screen screen;
    DTKHDDVD *toolkit;

    screen_open(&screen, argc, argv, "Shows five numbers as bars and as a pie.", width, height);
    check(screen.surface->Clear(screen.surface, 0xF4, 0xF5, 0xF8, 0xFF));
    check(CreateDrawingToolkit_HDDVD(screen.dfb, screen.surface, 1, &toolkit));
    draw_chart(screen.dfb, toolkit);
    toolkit->Release(toolkit);

    screen_show(&screen);
    screen_await_end(&screen);
    screen_close(&screen);
    return 0;
}
