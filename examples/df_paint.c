/*
 * Paints with the mouse: the left button draws with the pen, the right one wipes. 1 to 4 choose the pen, R, G, B, Y
 * and W its colour, space clears, Escape ends it.
 *
 *     cc df_paint.c -o df_paint $(pkg-config --cflags --libs dtkhddvd) -lm
 *     ./df_paint
 *     ./df_paint --dfb:system=dummy --dump DIRECTORY      paints by itself and writes a picture
 */
#include <math.h>
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

static const struct {
    DFBInputDeviceKeySymbol key;
    DFBColor color;
} colors[] = {
    {DIKS_SMALL_R, {0xFF, 0xC8, 0x38, 0x30}}, {DIKS_SMALL_G, {0xFF, 0x28, 0x88, 0x50}},
    {DIKS_SMALL_B, {0xFF, 0x28, 0x60, 0xB8}}, {DIKS_SMALL_Y, {0xFF, 0xF0, 0xB8, 0x28}},
    {DIKS_SMALL_W, {0xFF, 0xFF, 0xFF, 0xFF}},
};

typedef struct Painter {
    IDirectFB *dfb;
    IDirectFBSurface *screen;
    DTKHDDVD *toolkit;
    DTKHDDVDPen *pens[pen_count], *wiper;
    DTKHDDVDPen *pen;
    DFBColor color;
    DFBPoint mouse, cursor;
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
static void move_mouse(DFBPoint *mouse, const DFBInputEvent *event)
{
    const int is_absolute = (event->flags & DIEF_AXISABS) != 0;

    if (event->axis == DIAI_X)
        mouse->x = limit(is_absolute ? event->axisabs : mouse->x + event->axisrel, width);
    if (event->axis == DIAI_Y)
        mouse->y = limit(is_absolute ? event->axisabs : mouse->y + event->axisrel, height);
}

static void follow_mouse(Painter *painter, const DFBInputEvent *event)
{
    move_mouse(&painter->mouse, event);
    /* The other axis of the same movement comes at once. */
    if (event->flags & DIEF_FOLLOW)
        return;
    if (event->buttons & DIBM_LEFT)
        stroke_to(painter, painter->mouse, painter->pen, painter->color);
    else if (event->buttons & DIBM_RIGHT)
        stroke_to(painter, painter->mouse, painter->wiper, paper);
    painter->cursor = painter->mouse;
}

static void follow_key(Painter *painter, DFBInputDeviceKeySymbol key)
{
    size_t i;

    if (key >= DIKS_1 && key < DIKS_1 + pen_count)
        painter->pen = painter->pens[key - DIKS_1];
    for (i = 0; i < sizeof colors / sizeof *colors; ++i)
        if (key == colors[i].key)
            painter->color = colors[i].color;
    if (key == DIKS_SPACE)
        clear(painter);
    painter->has_ended = painter->has_ended || key == DIKS_ESCAPE;
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

/*
 * One stroke of the demonstration: the keys before it, the button that is held, and a curve about (x, y) from one turn
 * to another. With petals the curve swings to the middle and back that often on its way round.
 */
typedef struct Stroke {
    DFBInputDeviceKeySymbol pen, color;
    DFBInputDeviceButtonMask button;
    double x, y, width, height, from, to, petals;
} Stroke;

static const Stroke strokes[] = {
    {DIKS_4, DIKS_SMALL_G, DIBM_LEFT, 320, 520, 420, 150, -0.2, 0.2, 0},
    {DIKS_3, DIKS_SMALL_G, DIBM_LEFT, 150, 275, -20, 115, 0, 0.5, 0},
    {DIKS_3, DIKS_SMALL_G, DIBM_LEFT, 320, 255, 26, 125, 0, 0.5, 0},
    {DIKS_3, DIKS_SMALL_G, DIBM_LEFT, 490, 275, 20, 115, 0, 0.5, 0},
    {DIKS_2, DIKS_SMALL_G, DIBM_LEFT, 104, 330, 36, 15, 0.25, 1.25, 0},
    {DIKS_2, DIKS_SMALL_G, DIBM_LEFT, 378, 300, 36, 15, 0.75, 1.75, 0},
    {DIKS_2, DIKS_SMALL_G, DIBM_LEFT, 536, 335, 36, 15, 0.75, 1.75, 0},
    {DIKS_3, DIKS_SMALL_B, DIBM_LEFT, 150, 160, 80, 80, 0, 0.5, 3},
    {DIKS_3, DIKS_SMALL_R, DIBM_LEFT, 320, 125, 95, 95, 0, 0.5, 5},
    {DIKS_3, DIKS_SMALL_B, DIBM_LEFT, 490, 160, 80, 80, 0, 1, 2},
    {DIKS_4, DIKS_SMALL_Y, DIBM_LEFT, 150, 160, 5, 5, 0, 1, 0},
    {DIKS_4, DIKS_SMALL_Y, DIBM_LEFT, 320, 125, 5, 5, 0, 1, 0},
    {DIKS_4, DIKS_SMALL_W, DIBM_LEFT, 490, 160, 5, 5, 0, 1, 0},
};

static void press(Painter *painter, DFBInputDeviceKeySymbol key)
{
    const DFBInputEvent event = {.type = DIET_KEYPRESS, .key_symbol = key};

    follow(painter, &event);
}

static void move_to(Painter *painter, DFBInputDeviceButtonMask button, const Stroke *stroke, double turn)
{
    const double angle = 2 * 3.14159265358979323846 * turn, swing = cos(stroke->petals * angle);
    DFBInputEvent event = {.type = DIET_AXISMOTION, .buttons = button};

    event.flags = DIEF_AXISABS | DIEF_FOLLOW;
    event.axis = DIAI_X;
    event.axisabs = (int)lround(stroke->x + stroke->width * swing * sin(angle));
    follow(painter, &event);
    event.flags = DIEF_AXISABS;
    event.axis = DIAI_Y;
    event.axisabs = (int)lround(stroke->y - stroke->height * swing * cos(angle));
    follow(painter, &event);
}

static void paint_by_itself(Painter *painter)
{
    const int steps = 240;
    size_t i;
    int step;

    for (i = 0; i < sizeof strokes / sizeof *strokes; ++i) {
        press(painter, strokes[i].pen);
        press(painter, strokes[i].color);
        move_to(painter, 0, &strokes[i], strokes[i].from);
        for (step = 0; step <= steps; ++step)
            move_to(painter, strokes[i].button, &strokes[i],
                    strokes[i].from + (strokes[i].to - strokes[i].from) * step / steps);
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
