/*
 * Paints with the mouse: the left button draws with the pen, the right one wipes. 1 to 4 choose the pen, R, G, B and W
 * its colour, space clears, Escape ends it.
 *
 *     cc df_paint.c -o df_paint $(pkg-config --cflags --libs dtkhddvd)
 *     ./df_paint
 *     ./df_paint --dfb:system=dummy --dump DIRECTORY      paints by itself and writes a picture
 */
#include <string.h>

#include <dtkhddvd.h>

enum { width = 640, height = 400, pen_count = 4 };

static const DTKHDDVDPenShape shapes[pen_count] = {
    {-2, -2, 2, -2, 2, 2, -2, 2},
    {-3, -6, 6, -3, 3, 6, -6, 3},
    {-10, 8, 8, -10, 10, -8, -8, 10},
    {0, -12, 12, 0, 0, 12, -12, 0},
};
static const DTKHDDVDPenShape wiper_shape = {-16, -16, 16, -16, 16, 16, -16, 16};
static const DFBColor paper = {0xFF, 0xFA, 0xF7, 0xEE}, ink = {0xFF, 0x28, 0x2C, 0x38};

typedef struct Painter {
    IDirectFB *dfb;
    IDirectFBSurface *screen;
    DTKHDDVD *toolkit;
    DTKHDDVDPen *pens[pen_count], *wiper;
    DTKHDDVDPen *pen;
    DFBColor color;
    DFBPoint cursor;
    int has_ended;
} Painter;

static void check(DFBResult result)
{
    if (result)
        DirectFBErrorFatal("df_paint", result);
}

static void clear(Painter *painter)
{
    check(painter->screen->Clear(painter->screen, paper.r, paper.g, paper.b, paper.a));
    check(painter->screen->Flip(painter->screen, NULL, DSFLIP_BLIT));
}

static void open_painter(Painter *painter)
{
    const DFBSurfaceDescription description = {
        .flags = DSDESC_CAPS | DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT,
        .caps = DSCAPS_PRIMARY | DSCAPS_FLIPPING, .width = width, .height = height, .pixelformat = DSPF_ARGB};
    int i;

    check(DirectFBCreate(&painter->dfb));
    check(painter->dfb->SetCooperativeLevel(painter->dfb, DFSCL_FULLSCREEN));
    check(painter->dfb->CreateSurface(painter->dfb, &description, &painter->screen));
    check(CreateDrawingToolkit_HDDVD(painter->dfb, painter->screen, 0, &painter->toolkit));
    for (i = 0; i < pen_count; ++i)
        check(painter->toolkit->CreatePen(painter->toolkit, &shapes[i], &painter->pens[i]));
    check(painter->toolkit->CreatePen(painter->toolkit, &wiper_shape, &painter->wiper));
    painter->pen = painter->pens[0];
    painter->color = ink;
    clear(painter);
}

static void close_painter(Painter *painter)
{
    int i;

    check(painter->toolkit->SetPen(painter->toolkit, NULL));
    for (i = 0; i < pen_count; ++i)
        painter->pens[i]->Release(painter->pens[i]);
    painter->wiper->Release(painter->wiper);
    painter->toolkit->Release(painter->toolkit);
    painter->screen->Release(painter->screen);
    painter->dfb->Release(painter->dfb);
}

static void stroke_to(Painter *painter, DFBPoint to, DTKHDDVDPen *pen, DFBColor color)
{
    DTKHDDVD *toolkit = painter->toolkit;

    check(toolkit->SetPen(toolkit, pen));
    check(toolkit->SetStrokeColor(toolkit, color.r, color.g, color.b, color.a));
    check(toolkit->Line(toolkit, painter->cursor.x, painter->cursor.y, to.x, to.y));
    check(painter->screen->Flip(painter->screen, NULL, DSFLIP_BLIT));
}

static int limit(int value, int end)
{
    return value < 0 ? 0 : value < end ? value : end - 1;
}

/* Mice tell how far they moved, touch screens and windows where they are. */
static DFBPoint moved_cursor(const Painter *painter, const DFBInputEvent *event)
{
    const int is_absolute = (event->flags & DIEF_AXISABS) != 0;
    DFBPoint point = painter->cursor;

    if (event->axis == DIAI_X)
        point.x = limit(is_absolute ? event->axisabs : point.x + event->axisrel, width);
    if (event->axis == DIAI_Y)
        point.y = limit(is_absolute ? event->axisabs : point.y + event->axisrel, height);
    return point;
}

static void follow_mouse(Painter *painter, const DFBInputEvent *event)
{
    const DFBPoint point = moved_cursor(painter, event);

    if (event->buttons & DIBM_LEFT)
        stroke_to(painter, point, painter->pen, painter->color);
    else if (event->buttons & DIBM_RIGHT)
        stroke_to(painter, point, painter->wiper, paper);
    painter->cursor = point;
}

static void choose_color(Painter *painter, u8 r, u8 g, u8 b)
{
    const DFBColor color = {0xFF, r, g, b};

    painter->color = color;
}

static void follow_key(Painter *painter, DFBInputDeviceKeySymbol key)
{
    switch (key) {
    case DIKS_1: case DIKS_2: case DIKS_3: case DIKS_4:
        painter->pen = painter->pens[key - DIKS_1];
        break;
    case DIKS_SMALL_R:
        choose_color(painter, 0xC8, 0x38, 0x30);
        break;
    case DIKS_SMALL_G:
        choose_color(painter, 0x28, 0x88, 0x50);
        break;
    case DIKS_SMALL_B:
        choose_color(painter, 0x28, 0x60, 0xB8);
        break;
    case DIKS_SMALL_W:
        choose_color(painter, 0xFF, 0xFF, 0xFF);
        break;
    case DIKS_SPACE:
        clear(painter);
        break;
    case DIKS_ESCAPE:
        painter->has_ended = 1;
        break;
    default:
        break;
    }
}

static void follow(Painter *painter, const DFBInputEvent *event)
{
    if (event->type == DIET_AXISMOTION)
        follow_mouse(painter, event);
    else if (event->type == DIET_KEYPRESS)
        follow_key(painter, event->key_symbol);
}

static void paint_with_mouse(Painter *painter)
{
    const DFBInputDeviceCapabilities wanted = DICAPS_KEYS | DICAPS_AXES | DICAPS_BUTTONS;
    IDirectFBEventBuffer *events;
    DFBEvent event;

    check(painter->dfb->CreateInputEventBuffer(painter->dfb, wanted, DFB_TRUE, &events));
    while (!painter->has_ended) {
        check(events->WaitForEvent(events));
        while (events->GetEvent(events, &event) == DFB_OK)
            if (event.clazz == DFEC_INPUT)
                follow(painter, &event.input);
    }
    events->Release(events);
}

/* One movement of the demonstration: a key before it, the button that is held, and where the mouse goes. */
typedef struct Move {
    DFBInputDeviceKeySymbol key;
    DFBInputDeviceButtonMask button;
    int x, y;
} Move;

static const Move moves[] = {
    /* A hill, its sun and some grass ... */
    {DIKS_3, 0, 30, 330}, {DIKS_SMALL_G, DIBM_LEFT, 160, 230}, {0, DIBM_LEFT, 260, 280},
    {0, DIBM_LEFT, 420, 160}, {0, DIBM_LEFT, 610, 330},
    {DIKS_4, 0, 500, 70}, {DIKS_SMALL_R, DIBM_LEFT, 530, 60}, {0, DIBM_LEFT, 550, 90}, {0, DIBM_LEFT, 525, 110},
    {0, DIBM_LEFT, 500, 95}, {0, DIBM_LEFT, 500, 70}, {0, DIBM_LEFT, 525, 85},
    {DIKS_1, 0, 90, 372}, {DIKS_SMALL_G, DIBM_LEFT, 96, 340}, {0, DIBM_LEFT, 102, 372}, {0, DIBM_LEFT, 112, 346},
    {0, DIBM_LEFT, 116, 372},
    /* ... a house, with a roof and a window wiped out of its wall ... */
    {DIKS_4, 0, 240, 340}, {DIKS_SMALL_B, DIBM_LEFT, 380, 340}, {0, DIBM_LEFT, 380, 320}, {0, DIBM_LEFT, 240, 320},
    {0, DIBM_LEFT, 240, 300}, {0, DIBM_LEFT, 380, 300}, {0, DIBM_LEFT, 380, 280}, {0, DIBM_LEFT, 240, 280},
    {DIKS_2, 0, 220, 268}, {DIKS_SMALL_R, DIBM_LEFT, 310, 210}, {0, DIBM_LEFT, 400, 268}, {0, DIBM_LEFT, 220, 268},
    {0, 0, 310, 310}, {0, DIBM_RIGHT, 311, 310},
    /* ... and a cloud. */
    {DIKS_4, 0, 90, 90}, {DIKS_SMALL_W, DIBM_LEFT, 130, 70}, {0, DIBM_LEFT, 170, 90}, {0, DIBM_LEFT, 210, 76},
    {0, DIBM_LEFT, 230, 100}, {0, DIBM_LEFT, 96, 100},
};

static void move_axis(Painter *painter, const Move *move, DFBInputDeviceAxisIdentifier axis, int position)
{
    const DFBInputEvent event = {
        .type = DIET_AXISMOTION, .flags = DIEF_AXISABS, .axis = axis, .axisabs = position, .buttons = move->button};

    follow(painter, &event);
}

/* Moves in small steps of one axis after the other, as mice do. */
static void move_to(Painter *painter, const Move *move)
{
    const DFBPoint from = painter->cursor;
    const int steps = 50;
    int i;

    for (i = 1; i <= steps; ++i) {
        move_axis(painter, move, DIAI_X, from.x + (move->x - from.x) * i / steps);
        move_axis(painter, move, DIAI_Y, from.y + (move->y - from.y) * i / steps);
    }
}

static void paint_by_itself(Painter *painter)
{
    size_t i;

    for (i = 0; i < sizeof moves / sizeof *moves; ++i) {
        const DFBInputEvent press = {.type = DIET_KEYPRESS, .key_symbol = moves[i].key};

        follow(painter, &press);
        move_to(painter, &moves[i]);
    }
}

int main(int argc, char **argv)
{
    Painter painter = {0};

    check(DirectFBInit(&argc, &argv));
    open_painter(&painter);
    if (argc == 3 && !strcmp(argv[1], "--dump")) {
        paint_by_itself(&painter);
        check(painter.screen->Dump(painter.screen, argv[2], "paint"));
    } else {
        paint_with_mouse(&painter);
    }
    close_painter(&painter);
    return 0;
}
