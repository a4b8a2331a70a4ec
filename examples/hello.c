/*
 * Shows a drawing. Escape, closing its window and Ctrl-C end it.
 *
 *     cc hello.c screen.c -o hello $(pkg-config --cflags --libs dtkhddvd libpng)
 *     ./hello
 *     ./hello --png hello.png
 */
#include "screen.h"

static void draw(DTKHDDVD *toolkit)
{
    const DTKHDDVDPenShape diamond = {0, -5, 5, 0, 0, 5, -5, 0};
    const DFBRectangle board = {40, 40, 320, 200}, disc = {220, 120, 280, 200};
    DTKHDDVDPen *pen;

    check(toolkit->SetFillColor(toolkit, 0x30, 0x60, 0x90, 0xFF));
    check(toolkit->Rectangle(toolkit, &board, DTKHDDVD_FILL));

    check(toolkit->CreatePen(toolkit, &diamond, &pen));
    check(toolkit->SetPen(toolkit, pen));
    check(toolkit->SetFillColor(toolkit, 0xF0, 0xB0, 0x30, 0xA0));
    check(toolkit->SetStrokeColor(toolkit, 0xFF, 0xFF, 0xFF, 0xC0));
    check(toolkit->Ellipse(toolkit, &disc, DTKHDDVD_FILL | DTKHDDVD_STROKE));
    check(toolkit->Line(toolkit, 60, 220, 340, 60));
    check(toolkit->SetPen(toolkit, NULL));
    pen->Release(pen);
}

int main(int argc, char **argv)
{
    Screen screen;
    DTKHDDVD *toolkit;

    screen_open(&screen, argc, argv, "Shows a drawing.", 560, 360);
    check(screen.surface->Clear(screen.surface, 0x20, 0x20, 0x28, 0xFF));
    check(CreateDrawingToolkit_HDDVD(screen.dfb, screen.surface, 1, &toolkit));
    draw(toolkit);
    toolkit->Release(toolkit);

    screen_show(&screen);
    screen_await_end(&screen);
    screen_close(&screen);
    return 0;
}
