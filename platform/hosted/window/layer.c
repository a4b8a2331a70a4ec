/*
 * The screen and the layer of the window's system. What the layer shows is copied to the window at each flip; the window
 * shows it when the display is ready for it.
 */
#include "layer.h"

#include <errno.h>
#include <stdio.h>
#include <string.h>
#include <time.h>

#include <core/layers.h>
#include <core/screens.h>
#include <core/surface.h>
#include <core/surface_allocation.h>
#include <gfx/convert.h>
#include <misc/conf.h>

enum { usual_width = 1280, usual_height = 720, usual_frame_time = 1000000 / 60, bytes_per_pixel = 4 };

static const ZuvoWindow *window;

static int screen_width(void)
{
    return dfb_config->mode.width > 0 ? dfb_config->mode.width : usual_width;
}

static int screen_height(void)
{
    return dfb_config->mode.height > 0 ? dfb_config->mode.height : usual_height;
}

/* ---- screen ---- */

/* DirectFB 1.7 hands its device to a screen, its successor does not. */
#ifdef WINDOW_DEVICE_ARGUMENT
#define DEVICE CoreGraphicsDevice *device,
#define NO_DEVICE NULL,
#else
#define DEVICE
#define NO_DEVICE
#endif

// A declaration has no parentheses. NOLINTNEXTLINE(bugprone-macro-parentheses)
static DFBResult init_screen(CoreScreen *screen, DEVICE void *driver, void *data, DFBScreenDescription *description)
{
    description->caps = DSCCAPS_VSYNC;
    snprintf(description->name, sizeof(description->name), "Window");
    return DFB_OK;
}

static DFBResult get_screen_size(CoreScreen *screen, void *driver, void *data, int *ret_width, int *ret_height)
{
    *ret_width = screen_width();
    *ret_height = screen_height();
    return DFB_OK;
}

/* The beginning of the display's next frame, were the first one at the clock's zero. */
static struct timespec next_frame(void)
{
    const long long frame_time = window ? window->frame_time() : usual_frame_time;
    struct timespec time;
    long long due;

    clock_gettime(CLOCK_MONOTONIC, &time);
    due = ((time.tv_sec * 1000000LL + time.tv_nsec / 1000) / frame_time + 1) * frame_time;
    time.tv_sec = (time_t)(due / 1000000);
    time.tv_nsec = (long)(due % 1000000) * 1000;
    return time;
}

static DFBResult wait_for_frame(CoreScreen *screen, void *driver, void *data)
{
    const struct timespec due = next_frame();

    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &due, NULL) == EINTR)
        ;
    return DFB_OK;
}

static ScreenFuncs screen_functions = {
    .InitScreen = init_screen,
    .GetScreenSize = get_screen_size,
    .WaitVSync = wait_for_frame,
};

/* ---- layer ---- */

static DFBResult init_layer(CoreLayer *layer, void *driver, void *data, DFBDisplayLayerDescription *description,
                            DFBDisplayLayerConfig *config, DFBColorAdjustment *adjustment)
{
    description->type = DLTF_GRAPHICS;
    description->caps = DLCAPS_SURFACE;
    description->surface_caps = DSCAPS_SYSTEMONLY;
    description->surface_accessor = CSAID_CPU;
    snprintf(description->name, sizeof(description->name), "Window");

    config->flags = DLCONF_WIDTH | DLCONF_HEIGHT | DLCONF_PIXELFORMAT | DLCONF_BUFFERMODE;
    config->width = screen_width();
    config->height = screen_height();
    config->pixelformat = dfb_config->mode.format != DSPF_UNKNOWN ? dfb_config->mode.format : DSPF_ARGB;
    config->buffermode = DLBM_FRONTONLY;
    return DFB_OK;
}

static bool is_shown(DFBSurfacePixelFormat format)
{
    switch (format) {
    case DSPF_ARGB:
    case DSPF_RGB32:
    case DSPF_RGB24:
    case DSPF_RGB16:
    case DSPF_RGB555:
    case DSPF_ARGB1555:
    case DSPF_ARGB4444:
        return true;
    default:
        return false;
    }
}

static DFBResult test_region(CoreLayer *layer, void *driver, void *data, CoreLayerRegionConfig *config,
                             CoreLayerRegionConfigFlags *ret_failed)
{
    CoreLayerRegionConfigFlags failed = CLRCF_NONE;

    if (!is_shown(config->format))
        failed |= CLRCF_FORMAT;
    if (config->options)
        failed |= CLRCF_OPTIONS;
    if (config->buffermode > DLBM_TRIPLE)
        failed |= CLRCF_BUFFERMODE;
    if (ret_failed)
        *ret_failed = failed;
    return failed ? DFB_UNSUPPORTED : DFB_OK;
}

static DFBResult set_region(CoreLayer *layer, void *driver, void *data, void *region, CoreLayerRegionConfig *config,
                            CoreLayerRegionConfigFlags updated, CoreSurface *surface, CorePalette *palette,
                            CoreSurfaceBufferLock *left_lock, CoreSurfaceBufferLock *right_lock)
{
    if (!window || !(updated & (CLRCF_WIDTH | CLRCF_HEIGHT)))
        return DFB_OK;
    return window->resize(config->width, config->height) ? DFB_OK : DFB_NOSYSTEMMEMORY;
}

static DFBResult remove_region(CoreLayer *layer, void *driver, void *data, void *region)
{
    return DFB_OK;
}

/* A layer's buffer while it is locked. */
typedef struct LayerPicture {
    const unsigned char *pixels;
    int pitch;
    DFBSurfacePixelFormat format;
} LayerPicture;

static void copy_rows(const unsigned char *source, int source_pitch, unsigned char *target, int pitch, int bytes, int rows)
{
    if (source_pitch == pitch && bytes == pitch) {
        memcpy(target, source, (size_t)bytes * (size_t)rows);
        return;
    }
    for (; rows > 0; --rows, source += source_pitch, target += pitch)
        memcpy(target, source, (size_t)bytes);
}

/* DirectFB's successor converts between colour spaces, too. */
#ifdef WINDOW_COLORSPACE_ARGUMENT
#define COLORSPACE(format) DFB_COLORSPACE_DEFAULT(format),
#else
#define COLORSPACE(format)
#endif

static void copy_picture(const void *layer_picture, const DFBRectangle *area, void *target, int pitch)
{
    const LayerPicture *picture = layer_picture;
    const unsigned char *corner =
        picture->pixels + area->y * picture->pitch + DFB_BYTES_PER_LINE(picture->format, area->x);

    if (picture->format == DSPF_ARGB || picture->format == DSPF_RGB32)
        copy_rows(corner, picture->pitch, target, pitch, area->w * bytes_per_pixel, area->h);
    else
        dfb_convert_to_rgb32(picture->format, COLORSPACE(picture->format) corner, picture->pitch, NULL, 0, NULL, 0,
                             area->h, target, pitch, area->w, area->h);
}

static void show(const CoreSurfaceBufferLock *lock, const DFBRegion *part)
{
    const CoreSurfaceConfig *config = &lock->allocation->config;
    const LayerPicture picture = {lock->addr, (int)lock->pitch, config->format};
    const DFBRegion whole = {0, 0, config->size.w - 1, config->size.h - 1};

    if (window)
        window->draw(part ? part : &whole, copy_picture, &picture);
}

static DFBResult flip_region(CoreLayer *layer, void *driver, void *data, void *region, CoreSurface *surface,
                             DFBSurfaceFlipFlags flags, const DFBRegion *left_part, CoreSurfaceBufferLock *left_lock,
                             const DFBRegion *right_part, CoreSurfaceBufferLock *right_lock)
{
    if (flags & DSFLIP_WAITFORSYNC)
        wait_for_frame(NULL, NULL, NULL);
    show(left_lock, NULL);
    return dfb_surface_flip(surface, false);
}

static DFBResult update_region(CoreLayer *layer, void *driver, void *data, void *region, CoreSurface *surface,
                               const DFBRegion *left_part, CoreSurfaceBufferLock *left_lock, const DFBRegion *right_part,
                               CoreSurfaceBufferLock *right_lock)
{
    show(left_lock, left_part);
    return DFB_OK;
}

static DisplayLayerFuncs layer_functions = {
    .InitLayer = init_layer,
    .TestRegion = test_region,
    .SetRegion = set_region,
    .RemoveRegion = remove_region,
    .FlipRegion = flip_region,
    .UpdateRegion = update_region,
};

void layer_register(const ZuvoWindow *opened)
{
    window = opened;
    dfb_layers_register(dfb_screens_register(NO_DEVICE NULL, &screen_functions), NULL, &layer_functions);
}
