/* Shows a drawing for some seconds; `hello --dfb:system=dummy --dump DIRECTORY` writes it to a file. */
#include <string.h>
#include <unistd.h>

#include <dtkhddvd.h>

static void check(DFBResult result)
{
    if (result)
        DirectFBErrorFatal("hello", result);
}

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
    const DFBSurfaceDescription description = {
        .flags = DSDESC_CAPS | DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT,
        .caps = DSCAPS_PRIMARY | DSCAPS_FLIPPING, .width = 560, .height = 360, .pixelformat = DSPF_ARGB};
    IDirectFB *dfb;
    IDirectFBSurface *screen;
    DTKHDDVD *toolkit;

    check(DirectFBInit(&argc, &argv));
    check(DirectFBCreate(&dfb));
    check(dfb->SetCooperativeLevel(dfb, DFSCL_FULLSCREEN));
    check(dfb->CreateSurface(dfb, &description, &screen));
    check(screen->Clear(screen, 0x20, 0x20, 0x28, 0xFF));

    check(CreateDrawingToolkit_HDDVD(dfb, screen, 1, &toolkit));
    draw(toolkit);
    toolkit->Release(toolkit);

    check(screen->Flip(screen, NULL, DSFLIP_BLIT));
    if (argc == 3 && !strcmp(argv[1], "--dump"))
        check(screen->Dump(screen, argv[2], "hello"));
    else
        sleep(5);
    screen->Release(screen);
    dfb->Release(dfb);
    return 0;
}
