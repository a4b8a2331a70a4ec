/* What the mouse leaves on the canvas. */
#include <stdlib.h>

#include "df_paint.h"

const DFBColor colors[color_count] = {
    {0xFF, 0x28, 0x2C, 0x38}, {0xFF, 0x8A, 0x8F, 0x9C}, {0xFF, 0xFF, 0xFF, 0xFF}, {0xFF, 0xC8, 0x38, 0x30},
    {0xFF, 0xF0, 0x8A, 0x30}, {0xFF, 0xF4, 0xC6, 0x30}, {0xFF, 0x46, 0xA0, 0x58}, {0xFF, 0x2C, 0x9C, 0xB0},
    {0xFF, 0x2C, 0x62, 0xBC}, {0xFF, 0x8C, 0x48, 0xA8},
};

/* Corners of pens that are ten pixels long: a round one, a square, a broad nib and a diamond. */
static const DTKHDDVDPenShape shapes[shape_count] = {
    {-2, -5, 5, -2, 2, 5, -5, 2}, {-5, -5, 5, -5, 5, 5, -5, 5}, {-5, 4, 4, -5, 5, -4, -4, 5}, {0, -5, 5, 0, 0, 5, -5, 0}};
static const int lengths[size_count] = {6, 12, 24};

static const DTKHDDVDPenShape wiper = {-16, -16, 16, -16, 16, 16, -16, 16};

/* Away from zero, so that no pen gets too thin to be seen. */
static int scale(int coordinate, int length)
{
    const div_t scaled = div(abs(coordinate) * length + 5, 10);

    return coordinate < 0 ? -scaled.quot : scaled.quot;
}

static DTKHDDVDPenShape shape_of(const Choice *choice)
{
    const DTKHDDVDPenShape *shape = &shapes[choice->shape];
    const int length = lengths[choice->size];
    const DTKHDDVDPenShape scaled = {
        scale(shape->x0, length), scale(shape->y0, length), scale(shape->x1, length), scale(shape->y1, length),
        scale(shape->x2, length), scale(shape->y2, length), scale(shape->x3, length), scale(shape->y3, length)};

    return scaled;
}

static void take_pen(DTKHDDVD *toolkit, const DTKHDDVDPenShape *shape, DFBColor color)
{
    DTKHDDVDPen *pen;

    check(toolkit->CreatePen(toolkit, shape, &pen));
    check(toolkit->SetPen(toolkit, pen));
    pen->Release(pen);
    check(toolkit->SetStrokeColor(toolkit, color.r, color.g, color.b, 0xFF));
}

static int between(int smallest, int value, int largest)
{
    return value < smallest ? smallest : value > largest ? largest : value;
}

/* A box has at least two pixels, whichever way the mouse went. */
static DFBRectangle box_of(DFBPoint from, DFBPoint to)
{
    const int width = abs(to.x - from.x), height = abs(to.y - from.y);
    const DFBRectangle box = {from.x < to.x ? from.x : to.x, from.y < to.y ? from.y : to.y,
                              between(2, width, paint_width), between(2, height, canvas_height)};

    return box;
}

void draw_mark(DTKHDDVD *toolkit, const Choice *choice, DFBPoint from, DFBPoint to)
{
    const DTKHDDVDPenShape shape = shape_of(choice);
    const DFBColor color = colors[choice->color];
    const DFBRectangle box = box_of(from, to);
    const u32 flags = choice->is_filled ? DTKHDDVD_STROKE | DTKHDDVD_FILL : DTKHDDVD_STROKE;

    take_pen(toolkit, &shape, color);
    check(toolkit->SetFillColor(toolkit, color.r, color.g, color.b, 0x70));
    if (choice->tool == TOOL_RECTANGLE)
        check(toolkit->Rectangle(toolkit, &box, flags));
    else if (choice->tool == TOOL_ELLIPSE)
        check(toolkit->Ellipse(toolkit, &box, flags));
    else
        check(toolkit->Line(toolkit, from.x, from.y, to.x, to.y));
    check(toolkit->SetPen(toolkit, NULL));
}

void wipe(DTKHDDVD *toolkit, DFBPoint from, DFBPoint to)
{
    take_pen(toolkit, &wiper, paper);
    check(toolkit->Line(toolkit, from.x, from.y, to.x, to.y));
    check(toolkit->SetPen(toolkit, NULL));
}
