#include "directfb_core.h"

#include <assert.h>
#include <stdio.h>
#include <stdlib.h>

#include <core/core.h>
#include <core/surface.h>
#include <core/surface_buffer.h>
#include <gfx/clip.h>

#include "directfb_hold.h"
#include "directfb_surfaces.h"
#include "directfb_system.h"
#include "directfb_variant.h"

static void complete_layer(DFBDisplayLayerConfig *layer)
{
    if (layer->flags & DLCONF_BUFFERMODE)
        return;
    layer->flags |= DLCONF_BUFFERMODE;
    layer->buffermode = DIRECTFB_LAYER_BUFFERS;
}

/** The window goes by the name of DirectFB's x11 system, which DirectFB chooses wherever DISPLAY is set, even to nothing. */
static void complete_system(bool has_window)
{
    if (!dfb_config->system && has_window)
        DirectFBSetOption("system", "x11");
    if (!dfb_config->system || (directfb_system_is("x11") && !has_window)) {
        DirectFBSetOption("system", "dummy");
        DirectFBSetOption("quiet", NULL);
        DirectFBSetOption("no-cursor", NULL);
    }
}

/**
 * DirectFB's handling of signals gives a console back. Where there is none it blocks SIGPIPE, so that a program whose reader
 * has ended would draw for ever, and crashes on Ctrl-C.
 */
static void leave_signals_alone(void)
{
    DirectFBSetOption("no-sighandler", NULL);
}

void directfb_core_complete_options(int width, int height, bool has_window)
{
    complete_system(has_window);

    if (directfb_system_is_soft()) {
        complete_layer(&dfb_config->layers[DLID_PRIMARY].config);
        leave_signals_alone();
    }

    if (!dfb_config->mode.width) {
        char mode[32];
        snprintf(mode, sizeof(mode), "%dx%d", width, height);
        DirectFBSetOption("mode", mode);
    }
}

typedef struct Opened {
    CoreSurface *surface;
    CoreSurfaceBufferLock lock;
} Opened;

static Opened opened[3];        /**< In DirectFB's way, with references. */
static Opened held;             /**< By its own lock; the only one then. */

/** Rows of a surface that keeps its two fields apart lie elsewhere; it counts as of no known format. */
static DFBSurfacePixelFormat format_of(const CoreSurface *surface)
{
    return surface->config.caps & DSCAPS_SEPARATED ? DSPF_UNKNOWN : surface->config.format;
}

/** Every operation asks this first. */
DirectFBCoreAnswer directfb_core_get_format(DFBSurfaceID id, DFBSurfacePixelFormat *ret_format)
{
    const CoreSurface *surface = directfb_surfaces_begin_use(id);

    if (!surface)
        return DIRECTFB_CORE_UNKNOWN;
    *ret_format = format_of(surface);
    directfb_surfaces_end_use();
    return DIRECTFB_CORE_OK;
}

/** Locks a surface's back buffer in DirectFB's way. Kept apart from the short way, which nearly every drawing takes. */
__attribute__((noinline)) static DirectFBCoreAnswer lock_back_buffer(DirectFBCoreUse use, DFBSurfaceID id)
{
    const CoreSurfaceAccessFlags access = use == DIRECTFB_CORE_PATTERN ? CSAF_READ : CSAF_READ | CSAF_WRITE;
    CoreSurface *surface;

    if (!core_dfb || dfb_core_get_surface(core_dfb, id, &surface) != DFB_OK)
        return DIRECTFB_CORE_UNKNOWN;
    if (dfb_surface_lock_buffer(surface, DIRECTFB_BACK_BUFFER, CSAID_CPU, access, &opened[use].lock) != DFB_OK) {
        dfb_surface_unref(surface);
        return DIRECTFB_CORE_NOT_LOCKED;
    }
    opened[use].surface = surface;
    return DIRECTFB_CORE_OK;
}

static DirectFBCorePixels pixels_of(const Opened *open)
{
    const CoreSurfaceConfig *config = &open->surface->config;

    return (DirectFBCorePixels) {open->lock.addr, open->lock.pitch, config->size.w, config->size.h,
                                 format_of(open->surface)};
}

DirectFBCoreAnswer directfb_core_open(DirectFBCoreUse use, DFBSurfaceID id, DirectFBCorePixels *ret_pixels)
{
    DirectFBCoreAnswer answer;

    assert(!held.surface && !opened[use].surface); /* Two threads draw with the engine otherwise. */
    if (use == DIRECTFB_CORE_ONLY_TARGET) {
        held.surface = directfb_hold(id, &held.lock);
        if (held.surface) {
            *ret_pixels = pixels_of(&held);
            return DIRECTFB_CORE_OK;
        }
    }
    answer = lock_back_buffer(use, id);
    if (answer == DIRECTFB_CORE_OK)
        *ret_pixels = pixels_of(&opened[use]);
    return answer;
}

void directfb_core_close(DirectFBCoreUse use)
{
    if (held.surface) {
        directfb_let_go(held.surface, &held.lock);
        held.surface = NULL;
        return;
    }
    dfb_surface_unlock_buffer(opened[use].surface, &opened[use].lock);
    dfb_surface_unref(opened[use].surface);
    opened[use].surface = NULL;
}

void directfb_core_forget_surfaces(void)
{
    directfb_surfaces_forget();
}

/* DirectFB 1.7 never joins the thread that hands out Fusion's messages, and it is not told to the outside. DirectFB2 does
 * both by itself and does not have the header. */
#if __has_include(<fusion/fusion_internal.h>)

#include <direct/thread.h>
#include <fusion/fusion_internal.h>

static DirectThread *dispatcher;

void directfb_core_note_start(void)
{
    dispatcher = core_dfb ? core_dfb->world->event_dispatcher_thread : NULL;
}

void directfb_core_await_end(void)
{
    if (!dispatcher || core_dfb)
        return;
    direct_thread_join(dispatcher);
    direct_thread_destroy(dispatcher);
    dispatcher = NULL;
}

#else

void directfb_core_note_start(void)
{
}

void directfb_core_await_end(void)
{
}

#endif

bool directfb_core_clip_line(const DFBRegion *clip, DFBRegion *line)
{
    return dfb_clip_line(clip, line);
}
