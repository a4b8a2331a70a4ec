/*
 * window_modes FORMAT MODE: four bars on the layer in a pixel format and a buffer mode. Prints the results and how long 6
 * flips took that wait for the display, in milliseconds; the bars stay until SIGTERM.
 */
#include <stdio.h>
#include <stdlib.h>
#include <time.h>
#include <unistd.h>

#include <directfb.h>
#include <zuvo.h>

static const DFBColor bars[] = {{0xFF, 0xFF, 0, 0}, {0xFF, 0, 0xFF, 0}, {0xFF, 0, 0, 0xFF}, {0xFF, 0xFF, 0xFF, 0xFF}};

static void draw_bars(IDirectFBSurface *surface)
{
    int i;

    for (i = 0; i < 4; ++i) {
        surface->SetColor(surface, bars[i].r, bars[i].g, bars[i].b, bars[i].a);
        surface->FillRectangle(surface, i * 160, 0, 160, 480);
    }
}

static long milliseconds(void)
{
    struct timespec now;

    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000 + now.tv_nsec / 1000000;
}

static void show(IDirectFBSurface *surface)
{
    const long start = milliseconds();
    int i;

    for (i = 0; i < 6; ++i) {
        draw_bars(surface);
        surface->Flip(surface, NULL, DSFLIP_WAITFORSYNC);
    }
    printf("%ld ms\n", milliseconds() - start);
    fflush(stdout);
    pause();
}

static DFBEnumerationResult print_mode(int width, int height, int depth, void *nothing)
{
    (void)nothing;
    printf("%dx%dx%d ", width, height, depth);
    return DFENUM_OK;
}

static DFBDisplayLayerConfig read_arguments(char **argv)
{
    const DFBDisplayLayerConfig config = {
        .flags = DLCONF_WIDTH | DLCONF_HEIGHT | DLCONF_PIXELFORMAT | DLCONF_BUFFERMODE, .width = 640, .height = 480,
        .pixelformat = (DFBSurfacePixelFormat)strtoul(argv[1], NULL, 0),
        .buffermode = (DFBDisplayLayerBufferMode)strtoul(argv[2], NULL, 0)};

    return config;
}

int main(int argc, char **argv)
{
    DFBDisplayLayerConfig config;
    IDirectFB *dfb;
    IDirectFBDisplayLayer *layer;
    IDirectFBSurface *surface;
    DFBResult result;

    zuvo_display_close(0);
    if (DirectFBInit(&argc, &argv) || argc != 3 || DirectFBCreate(&dfb))
        return 2;
    config = read_arguments(argv);
    dfb->EnumVideoModes(dfb, print_mode, NULL);
    dfb->GetDisplayLayer(dfb, DLID_PRIMARY, &layer);
    layer->SetCooperativeLevel(layer, DLSCL_ADMINISTRATIVE);
    result = layer->SetConfiguration(layer, &config);
    printf("%s\n", DirectFBErrorString(result));
    if (!result && !layer->GetSurface(layer, &surface))
        show(surface);
    layer->Release(layer);
    dfb->Release(dfb);
    return result ? 1 : 0;
}
