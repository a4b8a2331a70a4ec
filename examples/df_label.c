/*
 * A chapter's title over a picture: shapes by the toolkit, text by Pango, on one surface. Escape ends it.
 *
 *     cc df_label.c screen.c -o df_label $(pkg-config --cflags --libs dtkhddvd libpng pangocairo)
 *     ./df_label
 *     ./df_label --png label.png
 */
#include <pango/pangocairo.h>

#include "screen.h"

enum { width = 640, height = 360 };

static void draw_disc(DTKHDDVD *toolkit, int x, int y, int radius, DFBColor color)
{
    const DFBRectangle box = {x - radius, y - radius, 2 * radius, 2 * radius};

    check(toolkit->SetFillColor(toolkit, color.r, color.g, color.b, color.a));
    check(toolkit->Ellipse(toolkit, &box, DTKHDDVD_FILL));
}

/* The sun over the sea, its light in four translucent rings and some strokes of a flat pen. */
static void draw_picture(DTKHDDVD *toolkit)
{
    static const DTKHDDVDPenShape flat_pen = {-24, -2, 24, -2, 24, 2, -24, 2};
    static const int strokes[][2] = {{404, 226}, {452, 238}, {396, 250}, {436, 262}, {380, 274}, {470, 274}};
    const DFBRectangle sea = {0, 214, width, height - 214};
    DTKHDDVDPen *pen;
    unsigned i;

    for (i = 0; i < 4; ++i)
        draw_disc(toolkit, 430, 190, 190 - 36 * (int)i, (DFBColor){0x28, 0xFF, 0xA0, 0x60});
    draw_disc(toolkit, 430, 190, 54, (DFBColor){0xFF, 0xFF, 0xD8, 0x90});
    check(toolkit->SetFillColor(toolkit, 0x18, 0x38, 0x58, 0xE8));
    check(toolkit->Rectangle(toolkit, &sea, DTKHDDVD_FILL));

    check(toolkit->CreatePen(toolkit, &flat_pen, &pen));
    check(toolkit->SetPen(toolkit, pen));
    check(toolkit->SetStrokeColor(toolkit, 0xFF, 0xC0, 0x80, 0x70));
    for (i = 0; i < sizeof strokes / sizeof *strokes; ++i)
        check(toolkit->Line(toolkit, strokes[i][0], strokes[i][1], strokes[i][0] + 40, strokes[i][1]));
    check(toolkit->SetPen(toolkit, NULL));
    pen->Release(pen);
}

static void draw_strap(DTKHDDVD *toolkit)
{
    static const DFBPoint strap[] = {{0, 258}, {356, 258}, {316, 334}, {0, 334}};
    static const DFBPoint edge[] = {{364, 258}, {376, 258}, {336, 334}, {324, 334}};

    check(toolkit->SetFillColor(toolkit, 0x08, 0x10, 0x1C, 0xB0));
    check(toolkit->Polygon(toolkit, strap, 4, 1, DTKHDDVD_FILL));
    check(toolkit->SetFillColor(toolkit, 0xFF, 0xB0, 0x50, 0xFF));
    check(toolkit->Polygon(toolkit, edge, 4, 1, DTKHDDVD_FILL));
}

static void show_text(cairo_t *cairo, const char *font, const char *text, int x, int y)
{
    PangoLayout *layout = pango_cairo_create_layout(cairo);
    PangoFontDescription *description = pango_font_description_from_string(font);

    pango_layout_set_font_description(layout, description);
    pango_layout_set_text(layout, text, -1);
    cairo_move_to(cairo, x, y);
    pango_cairo_show_layout(cairo, layout);
    pango_font_description_free(description);
    g_object_unref(layout);
}

/* The toolkit has no text. Its surface is lent to cairo as an image for as long as it is locked. */
static void draw_text(IDirectFBSurface *screen, const char *title)
{
    cairo_surface_t *image;
    cairo_t *cairo;
    void *pixels;
    int pitch;

    check(screen->Lock(screen, DSLF_READ | DSLF_WRITE, &pixels, &pitch));
    image = cairo_image_surface_create_for_data(pixels, CAIRO_FORMAT_ARGB32, width, height, pitch);
    cairo = cairo_create(image);
    cairo_set_source_rgb(cairo, 1, 0.69, 0.31);
    show_text(cairo, "Sans Bold 12", "CHAPTER 4", 32, 268);
    cairo_set_source_rgb(cairo, 1, 1, 1);
    show_text(cairo, "Sans 22", title, 32, 288);
    cairo_destroy(cairo);
    cairo_surface_destroy(image);
    check(screen->Unlock(screen));
}

int main(int argc, char **argv)
{
    Screen screen;
    DTKHDDVD *toolkit;

    screen_open(&screen, argc, argv, "Shows a chapter's title over a picture.", width, height);
    check(screen.surface->Clear(screen.surface, 0x60, 0x38, 0x50, 0xFF));
    check(CreateDrawingToolkit_HDDVD(screen.dfb, screen.surface, 1, &toolkit));
    draw_picture(toolkit);
    draw_strap(toolkit);
    toolkit->Release(toolkit);
    draw_text(screen.surface, "The Lighthouse");

    screen_show(&screen);
    screen_await_end(&screen);
    screen_close(&screen);
    return 0;
}
