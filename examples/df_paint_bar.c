/* The bar of tools above the canvas and the line of help below it. */
#include "df_paint.h"

enum { icon = 26 };

static const DFBColor bar_color = {0xFF, 0x50, 0x59, 0x6C}, chosen_color = {0xFF, 0x7C, 0x90, 0xBC},
                      icon_color = {0xFF, 0xE8, 0xEA, 0xF0};

static void set_color(DTKHDDVD *toolkit, DFBColor color)
{
    check(toolkit->SetFillColor(toolkit, color.r, color.g, color.b, color.a));
    check(toolkit->SetStrokeColor(toolkit, color.r, color.g, color.b, color.a));
}

static void fill_box(DTKHDDVD *toolkit, DFBRectangle box, DFBColor color)
{
    set_color(toolkit, color);
    check(toolkit->Rectangle(toolkit, &box, DTKHDDVD_FILL));
}

static void draw_color(DTKHDDVD *toolkit, int color, DFBRectangle place)
{
    set_color(toolkit, colors[color]);
    check(toolkit->Ellipse(toolkit, &place, DTKHDDVD_FILL));
}

/* The icon of a pen or a tool is a small drawing with it. */
static void draw_sample(DTKHDDVD *toolkit, Choice choice, DFBPoint from, DFBPoint to)
{
    choice.color = 2;
    draw_mark(toolkit, &choice, from, to);
}

static void draw_tool(DTKHDDVD *toolkit, Choice choice, DFBRectangle place)
{
    const DFBPoint top = {place.x + 2, place.y + 4}, bottom = {place.x + icon - 4, place.y + icon - 6};
    const DFBPoint first = {top.x, bottom.y}, second = {place.x + 9, top.y}, third = {place.x + 16, bottom.y},
                   fourth = {bottom.x, top.y};

    choice.size = 0;
    if (choice.tool != TOOL_BRUSH) {
        draw_sample(toolkit, choice, top, bottom);
        return;
    }
    draw_sample(toolkit, choice, first, second);
    draw_sample(toolkit, choice, second, third);
    draw_sample(toolkit, choice, third, fourth);
}

static void draw_fill(DTKHDDVD *toolkit, DFBRectangle place)
{
    const Choice filled = {.tool = TOOL_RECTANGLE, .is_filled = 1};
    const DFBPoint top = {place.x + 3, place.y + 5}, bottom = {place.x + icon - 5, place.y + icon - 7};

    draw_sample(toolkit, filled, top, bottom);
}

static void draw_polygon(DTKHDDVD *toolkit, const DFBPoint *corners, u32 count, DFBRectangle place)
{
    DFBPoint moved[8];
    u32 i;

    for (i = 0; i < count; ++i) {
        moved[i].x = place.x + corners[i].x;
        moved[i].y = place.y + corners[i].y;
    }
    set_color(toolkit, icon_color);
    check(toolkit->Polygon(toolkit, moved, count, 1, DTKHDDVD_FILL));
}

/* An arrow back, an empty page, and an arrow onto a shelf. */
static void draw_action(DTKHDDVD *toolkit, int field, DFBRectangle place)
{
    static const DFBPoint back[] = {{2, 13}, {12, 4}, {12, 10}, {24, 10}, {24, 16}, {12, 16}, {12, 22}};
    static const DFBPoint page[] = {{5, 2}, {16, 2}, {22, 8}, {22, 24}, {5, 24}};
    static const DFBPoint down[] = {{10, 2}, {16, 2}, {16, 10}, {22, 10}, {13, 19}, {4, 10}, {10, 10}};
    const DFBRectangle shelf = {place.x + 3, place.y + 21, icon - 6, 3};

    if (field == undo_field)
        draw_polygon(toolkit, back, 7, place);
    else if (field == clear_field)
        draw_polygon(toolkit, page, 5, place);
    else
        draw_polygon(toolkit, down, 7, place), fill_box(toolkit, shelf, icon_color);
}

static void draw_icon(DTKHDDVD *toolkit, const Choice *choice, int field, DFBRectangle place)
{
    const DFBPoint centre = {place.x + icon / 2, place.y + icon / 2};
    Choice shown = {.size = 1};

    if (field < first_shape) {
        draw_color(toolkit, field, place);
    } else if (field < first_size) {
        shown.shape = field - first_shape;
        draw_sample(toolkit, shown, centre, centre);
    } else if (field < first_tool) {
        shown.shape = choice->shape;
        shown.size = field - first_size;
        draw_sample(toolkit, shown, centre, centre);
    } else if (field < fill_field) {
        shown.tool = (Tool)(field - first_tool);
        draw_tool(toolkit, shown, place);
    } else if (field == fill_field) {
        draw_fill(toolkit, place);
    } else {
        draw_action(toolkit, field, place);
    }
}

static int is_chosen(const Choice *choice, int field)
{
    return field == choice->color || field == first_shape + choice->shape || field == first_size + choice->size ||
           field == first_tool + (int)choice->tool || (field == fill_field && choice->is_filled);
}

static void draw_field(const Painter *painter, int field)
{
    const DFBRectangle frame = {field * field_width + 1, 4, field_width - 2, bar_height - 8};
    const DFBRectangle mark = {frame.x + 4, bar_height - 7, frame.w - 8, 3};
    const DFBRectangle place = {frame.x + (frame.w - icon) / 2, (bar_height - icon) / 2, icon, icon};

    if (is_chosen(&painter->choice, field)) {
        fill_box(painter->on_screen, frame, chosen_color);
        fill_box(painter->on_screen, mark, icon_color);
    }
    draw_icon(painter->on_screen, &painter->choice, field, place);
}

static void draw_help(const Painter *painter)
{
    const DFBRectangle line = {0, paint_height - help_height, paint_width, help_height};
    IDirectFBSurface *surface = painter->screen.surface;

    fill_box(painter->on_screen, line, bar_color);
    if (!painter->font)
        return;
    check(surface->SetFont(surface, painter->font));
    check(surface->SetColor(surface, icon_color.r, icon_color.g, icon_color.b, 0xFF));
    check(surface->DrawString(surface, painter->help, -1, 10, line.y + 4, DSTF_TOPLEFT));
}

void draw_bar(const Painter *painter)
{
    const DFBRectangle bar = {0, 0, paint_width, bar_height};
    int field;

    fill_box(painter->on_screen, bar, bar_color);
    for (field = 0; field < field_count; ++field)
        draw_field(painter, field);
    draw_help(painter);
}
