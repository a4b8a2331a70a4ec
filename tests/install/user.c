/* Draws a rectangle through the installed library and looks at one pixel of it. */
#include <stdio.h>

#include <dtkhddvd.h>

static void check(DFBResult result)
{
    if (result)
        DirectFBErrorFatal("user", result);
}

static u32 pixel_at(IDirectFBSurface *surface, int x, int y)
{
    void *pixels;
    int pitch;
    u32 pixel;

    check(surface->Lock(surface, DSLF_READ | DSLF_WRITE, &pixels, &pitch));
    pixel = ((const u32 *)((const char *)pixels + y * pitch))[x];
    check(surface->Unlock(surface));
    return pixel;
}

int main(int argc, char **argv)
{
    const DFBSurfaceDescription description = {
        .flags = DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT,
        .width = 64, .height = 64, .pixelformat = DSPF_ARGB};
    const DFBRectangle box = {8, 8, 40, 30};
    IDirectFB *dfb;
    IDirectFBSurface *surface;
    DTKHDDVD *toolkit;
    u32 pixel;

    check(DirectFBInit(&argc, &argv));
    check(DirectFBCreate(&dfb));
    check(dfb->CreateSurface(dfb, &description, &surface));
    check(surface->Clear(surface, 0, 0, 0, 0xFF));

    check(CreateDrawingToolkit_HDDVD(dfb, surface, 1, &toolkit));
    check(toolkit->SetFillColor(toolkit, 0x12, 0x34, 0x56, 0xFF));
    check(toolkit->Rectangle(toolkit, &box, DTKHDDVD_FILL));
    toolkit->Release(toolkit);

    pixel = pixel_at(surface, 20, 20);
    surface->Release(surface);
    dfb->Release(dfb);
    printf("%08x\n", (unsigned int)pixel);
    return pixel == 0xFF123456 ? 0 : 1;
}
