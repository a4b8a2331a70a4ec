/*
 * A clock whose hands and ticks are lines, each with a pen of its own. Escape ends it.
 *
 *     cc df_clock.c screen.c -o df_clock $(pkg-config --cflags --libs dtkhddvd libpng) -lm
 *     ./df_clock
 *     ./df_clock --png clock.png      writes a picture of nine minutes past ten
 */
#include <math.h>
#include <time.h>

#include "screen.h"

enum { side = 480, centre = side / 2 };

/*
 * A hand or a tick reaches from one distance to another one from the centre; a negative distance is behind it. Its
 * pen is a rhombus that points where the hand does: `point` pixels ahead, `half_width` pixels to either side.
 */
typedef struct Hand {
    int from, to, point, half_width;
    DFBColor color;
} Hand;

static const Hand minute_tick = {196, 202, 3, 2, {0xFF, 0x70, 0x78, 0x88}};
static const Hand hour_tick = {182, 196, 8, 6, {0xFF, 0xE8, 0xE8, 0xF0}};
static const Hand hour_hand = {-12, 92, 24, 11, {0xFF, 0xF0, 0xF0, 0xF8}};
static const Hand minute_hand = {-18, 150, 28, 8, {0xFF, 0xD8, 0xDC, 0xE8}};
static const Hand second_hand = {-40, 176, 14, 3, {0xFF, 0xFF, 0x58, 0x40}};
static const DFBColor shadow = {0x58, 0x00, 0x00, 0x00};

/* `turn` counts turns of the clock from twelve. */
static DFBPoint point_at(double turn, int distance)
{
    const double angle = 2 * 3.14159265358979323846 * turn;
    const DFBPoint point = {centre + (int)lround(distance * sin(angle)), centre - (int)lround(distance * cos(angle))};

    return point;
}

static DTKHDDVDPenShape pen_shape(const Hand *hand, double turn)
{
    const DFBPoint ahead = point_at(turn, hand->point), right = point_at(turn + 0.25, hand->half_width);
    const int x = ahead.x - centre, y = ahead.y - centre, side_x = right.x - centre, side_y = right.y - centre;
    const DTKHDDVDPenShape shape = {x, y, side_x, side_y, -x, -y, -side_x, -side_y};

    return shape;
}

/* `drop` is how far below its place the hand is drawn: shadows lie a little lower. */
static void draw_hand(DTKHDDVD *toolkit, const Hand *hand, double turn, DFBColor color, int drop)
{
    const DFBPoint from = point_at(turn, hand->from), to = point_at(turn, hand->to);
    const DTKHDDVDPenShape shape = pen_shape(hand, turn);
    DTKHDDVDPen *pen;

    check(toolkit->CreatePen(toolkit, &shape, &pen));
    check(toolkit->SetPen(toolkit, pen));
    check(toolkit->SetStrokeColor(toolkit, color.r, color.g, color.b, color.a));
    check(toolkit->Line(toolkit, from.x, from.y + drop, to.x, to.y + drop));
    check(toolkit->SetPen(toolkit, NULL));
    pen->Release(pen);
}

static void draw_hand_and_shadow(DTKHDDVD *toolkit, const Hand *hand, double turn)
{
    draw_hand(toolkit, hand, turn, shadow, 6);
    draw_hand(toolkit, hand, turn, hand->color, 0);
}

static void draw_ticks(DTKHDDVD *toolkit)
{
    int minute;

    for (minute = 0; minute < 60; ++minute) {
        const Hand *tick = minute % 5 ? &minute_tick : &hour_tick;

        draw_hand(toolkit, tick, minute / 60.0, tick->color, 0);
    }
}

static void draw_disc(DTKHDDVD *toolkit, int radius, u8 r, u8 g, u8 b, u8 a)
{
    const DFBRectangle box = {centre - radius, centre - radius, 2 * radius, 2 * radius};

    check(toolkit->SetFillColor(toolkit, r, g, b, a));
    check(toolkit->Ellipse(toolkit, &box, DTKHDDVD_FILL));
}

static void draw_clock(DTKHDDVD *toolkit, int hour, int minute, int second)
{
    draw_disc(toolkit, 226, 0x2C, 0x34, 0x48, 0xFF);
    draw_disc(toolkit, 214, 0x1C, 0x22, 0x30, 0xFF);
    draw_disc(toolkit, 120, 0x50, 0x90, 0xE0, 0x30);
    draw_ticks(toolkit);

    draw_hand_and_shadow(toolkit, &hour_hand, (hour * 60 + minute) / 720.0);
    draw_hand_and_shadow(toolkit, &minute_hand, (minute * 60 + second) / 3600.0);
    draw_hand_and_shadow(toolkit, &second_hand, second / 60.0);
    draw_disc(toolkit, 12, 0xFF, 0x58, 0x40, 0xFF);
    draw_disc(toolkit, 5, 0x1C, 0x22, 0x30, 0xFF);
}

static void draw_frame(Screen *screen, DTKHDDVD *toolkit, const struct tm *now)
{
    check(screen->surface->Clear(screen->surface, 0x10, 0x12, 0x18, 0xFF));
    draw_clock(toolkit, now->tm_hour, now->tm_min, now->tm_sec);
    screen_show(screen);
}

/* A picture always shows the same time. */
static struct tm time_to_show(const Screen *screen)
{
    const struct tm pictured = {.tm_hour = 10, .tm_min = 9, .tm_sec = 36};
    const time_t now = time(NULL);

    return screen->png ? pictured : *localtime(&now);
}

static void run(Screen *screen, DTKHDDVD *toolkit)
{
    int shown_second = -1;
    DFBInputEvent event;

    while (!screen->has_ended) {
        const struct tm now = time_to_show(screen);

        if (now.tm_sec != shown_second)
            draw_frame(screen, toolkit, &now);
        shown_second = now.tm_sec;
        screen_next_event(screen, 100, &event);
    }
}

int main(int argc, char **argv)
{
    Screen screen;
    DTKHDDVD *toolkit;

    screen_open(&screen, argc, argv, "Shows what time it is.", side, side);
    check(CreateDrawingToolkit_HDDVD(screen.dfb, screen.surface, 1, &toolkit));
    run(&screen, toolkit);
    toolkit->Release(toolkit);
    screen_close(&screen);
    return 0;
}
