#include <math.h>

#include "df_menu.h"

static const DFBColor gold = {0xFF, 0xF4, 0xC0, 0x50};
static const DFBColor chapter_colors[chapter_count] = {
    {0xFF, 0x30, 0x58, 0x88}, {0xFF, 0x88, 0x48, 0x38}, {0xFF, 0x38, 0x78, 0x58}, {0xFF, 0x70, 0x50, 0x90},
    {0xFF, 0x90, 0x78, 0x38}, {0xFF, 0x38, 0x70, 0x88}, {0xFF, 0x88, 0x40, 0x60}};

static void fill_with(DTKHDDVD *toolkit, DFBColor color)
{
    check(toolkit->SetFillColor(toolkit, color.r, color.g, color.b, color.a));
}

static void stroke_with(DTKHDDVD *toolkit, DFBColor color)
{
    check(toolkit->SetStrokeColor(toolkit, color.r, color.g, color.b, color.a));
}

/* The toolkit says so when a translucent shape lies wholly outside. What slides in begins there. */
static int is_outside(int x, int y, int w, int h)
{
    return x >= width || y >= height || x + w <= 0 || y + h <= 0;
}

static void draw_box(DTKHDDVD *toolkit, int x, int y, int w, int h, DFBColor color)
{
    const DFBRectangle box = {x, y, w, h};

    if (is_outside(x, y, w, h))
        return;
    fill_with(toolkit, color);
    check(toolkit->Rectangle(toolkit, &box, DTKHDDVD_FILL));
}

static void draw_disc(DTKHDDVD *toolkit, int x, int y, int radius, DFBColor color)
{
    const DFBRectangle box = {x - radius, y - radius, 2 * radius, 2 * radius};

    if (is_outside(box.x, box.y, box.w, box.h))
        return;
    fill_with(toolkit, color);
    check(toolkit->Ellipse(toolkit, &box, DTKHDDVD_FILL));
}

/* ---- the film beneath, which goes on ---- */

void draw_film(const Menu *menu)
{
    const DFBColor sun = {0xFF, 0xE8, 0x90, 0x48}, hill = {0xFF, 0x1C, 0x30, 0x34}, glow = {0x28, 0xFF, 0xC0, 0x80};
    const int x = 900 + (int)lround(60 * sin(menu->frame * 0.01));
    const DFBPoint hills[] = {{0, 520}, {180, 400}, {380, 500}, {640, 360}, {900, 490}, {1090, 420}, {1280, 520}, {1280, 720}, {0, 720}};

    draw_disc(menu->toolkit, x, 260, 190, glow);
    draw_disc(menu->toolkit, x, 260, 130, glow);
    draw_disc(menu->toolkit, x, 260, 84, sun);
    fill_with(menu->toolkit, hill);
    check(menu->toolkit->Polygon(menu->toolkit, hills, 9, 1, DTKHDDVD_FILL));
}

/* ---- chapters ---- */

int chapter_left(const Menu *menu, int chapter)
{
    return 60 + chapter * (chapter_width + 24) - (int)lround(menu->scroll);
}

void draw_chapter(const Menu *menu, int chapter)
{
    const int left = chapter_left(menu, chapter), top = chapter_top - (int)lround(menu->slide);
    const DFBColor shadow = {0x60, 0, 0, 0}, light = {0x50, 0xFF, 0xFF, 0xFF};
    const DFBPoint peak[] = {{left + 30, top + 100}, {left + 90, top + 30}, {left + 150, top + 100}};

    draw_box(menu->toolkit, left + 6, top + 6, chapter_width, chapter_height, shadow);
    draw_box(menu->toolkit, left, top, chapter_width, chapter_height, chapter_colors[chapter]);
    draw_disc(menu->toolkit, left + 160, top + 36, 18, light);
    if (is_outside(left + 30, top + 30, 120, 70))
        return;
    check(menu->toolkit->SetFillPattern(menu->toolkit, menu->stripes));
    check(menu->toolkit->Polygon(menu->toolkit, peak, 3, 1, DTKHDDVD_FILL));
}

/* ---- buttons ---- */

int button_left(int button)
{
    return 100 + button * (button_width + 66);
}

static void draw_star(DTKHDDVD *toolkit, int x, int y)
{
    DFBPoint points[10];
    int i;

    for (i = 0; i < 10; ++i) {
        const double angle = 3.14159265358979323846 * i / 5, radius = i % 2 ? 12 : 30;

        points[i].x = x + (int)lround(radius * sin(angle));
        points[i].y = y - (int)lround(radius * cos(angle));
    }
    check(toolkit->Polygon(toolkit, points, 10, 1, DTKHDDVD_FILL));
}

static void draw_icon(const Menu *menu, int button, int x, int y)
{
    const DFBPoint play[] = {{x - 18, y - 26}, {x + 28, y}, {x - 18, y + 26}};
    const DFBPoint horn[] = {{x - 26, y - 10}, {x - 10, y - 10}, {x + 6, y - 26}, {x + 6, y + 26}, {x - 10, y + 10}, {x - 26, y + 10}};
    const DFBRectangle wave = {x - 4, y - 17, 34, 34};
    const DFBColor ink = {0xFF, 0xE8, 0xEC, 0xF4};
    int i;

    if (is_outside(x - 34, y - 30, 68, 60))
        return;
    fill_with(menu->toolkit, ink);
    if (button == 0)
        check(menu->toolkit->Polygon(menu->toolkit, play, 3, 1, DTKHDDVD_FILL));
    for (i = 0; button == 1 && i < 6; ++i)
        draw_box(menu->toolkit, x - 34 + i % 3 * 24, y - 20 + i / 3 * 22, 20, 18, ink);
    if (button == 2) {
        check(menu->toolkit->SetPen(menu->toolkit, menu->icon_pen));
        stroke_with(menu->toolkit, ink);
        check(menu->toolkit->Ellipse(menu->toolkit, &wave, DTKHDDVD_STROKE));
        check(menu->toolkit->Polygon(menu->toolkit, horn, 6, 1, DTKHDDVD_FILL));
        check(menu->toolkit->SetPen(menu->toolkit, NULL));
    }
    if (button == 3)
        draw_star(menu->toolkit, x, y);
}

void draw_buttons(const Menu *menu)
{
    const DFBColor panel = {0xA0, 0x08, 0x0A, 0x10}, face = {0xC0, 0x28, 0x34, 0x4C}, edge = {0xFF, 0x60, 0x70, 0x90};
    const int drop = (int)lround(menu->slide);
    int i;

    draw_box(menu->toolkit, 0, button_top - 26 + drop, width, height - button_top + 26, panel);
    draw_box(menu->toolkit, 0, button_top - 28 + drop, width, 2, edge);
    for (i = 0; i < button_count; ++i) {
        draw_box(menu->toolkit, button_left(i), button_top + drop, button_width, button_height, face);
        draw_icon(menu, i, button_left(i) + button_width / 2, button_top + button_height / 2 + drop);
    }
}

/* ---- the highlight ---- */

void draw_highlight(const Menu *menu)
{
    const int on = menu->is_on_chapters, drop = (int)lround(menu->slide);
    const DFBRectangle box = {(int)lround(menu->highlight_x), on ? chapter_top - drop : button_top + drop,
                              on ? chapter_width : button_width, on ? chapter_height : button_height};
    const u8 beat = (u8)(0x30 + lround(0x20 * sin(menu->frame * 0.2)));

    if (is_outside(box.x, box.y, box.w, box.h))
        return;
    check(menu->toolkit->SetPen(menu->toolkit, menu->frame_pen));
    check(menu->toolkit->SetFillColor(menu->toolkit, gold.r, gold.g, gold.b, beat));
    stroke_with(menu->toolkit, gold);
    check(menu->toolkit->Rectangle(menu->toolkit, &box, DTKHDDVD_FILL | DTKHDDVD_STROKE));
    check(menu->toolkit->SetPen(menu->toolkit, NULL));
}

int target_of_highlight(const Menu *menu)
{
    return menu->is_on_chapters ? chapter_left(menu, menu->selected) : button_left(menu->selected);
}
