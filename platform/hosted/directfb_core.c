#include "directfb_core.h"

#include <assert.h>
#include <stdio.h>
#include <stdlib.h>

#include <core/core.h>
#include <core/surface.h>
#include <core/surface_buffer.h>
#include <fusion/hash.h>
#include <gfx/clip.h>

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

static struct {
    CoreSurface *surface;
    CoreSurfaceBufferLock lock;
} opened[2];

/** Answers the living surface @p id of a locked pool, NULL when there is none. */
static const CoreSurface *look_up(FusionObjectPool *surfaces, DFBSurfaceID id)
{
    // The keys of this hash are numbers. NOLINTNEXTLINE(performance-no-int-to-ptr)
    CoreSurface *surface = fusion_hash_lookup(surfaces->objects, (void *) (unsigned long) id);
    int references = 0;

    if (!surface || fusion_ref_stat(&surface->object.ref, &references) != DR_OK || references <= 0)
        return NULL;
    return surface;
}

/** Rows of a surface that keeps its two fields apart lie elsewhere; it counts as of no known format. */
static DFBSurfacePixelFormat format_of(const CoreSurface *surface)
{
    return surface->config.caps & DSCAPS_SEPARATED ? DSPF_UNKNOWN : surface->config.format;
}

/** Every operation asks this first. The pool's lock spares the two of a reference that comes and goes. */
DirectFBCoreAnswer directfb_core_get_format(DFBSurfaceID id, DFBSurfacePixelFormat *ret_format)
{
    FusionObjectPool *surfaces = core_dfb ? core_dfb->shared->surface_pool : NULL;
    const CoreSurface *surface;

    if (!surfaces || fusion_skirmish_prevail(&surfaces->lock) != DR_OK)
        return DIRECTFB_CORE_UNKNOWN;

    surface = look_up(surfaces, id);
    if (surface)
        *ret_format = format_of(surface);
    fusion_skirmish_dismiss(&surfaces->lock);
    return surface ? DIRECTFB_CORE_OK : DIRECTFB_CORE_UNKNOWN;
}

DirectFBCoreAnswer directfb_core_open(DirectFBCoreUse use, DFBSurfaceID id, DirectFBCorePixels *ret_pixels)
{
    const CoreSurfaceAccessFlags access = use == DIRECTFB_CORE_TARGET ? CSAF_READ | CSAF_WRITE : CSAF_READ;
    CoreSurface *surface;
    CoreSurfaceBufferLock *lock = &opened[use].lock;

    assert(!opened[use].surface); /* Two threads draw with the engine otherwise. */
    if (!core_dfb || dfb_core_get_surface(core_dfb, id, &surface) != DFB_OK)
        return DIRECTFB_CORE_UNKNOWN;

    if (dfb_surface_lock_buffer(surface, DIRECTFB_BACK_BUFFER, CSAID_CPU, access, lock) != DFB_OK) {
        dfb_surface_unref(surface);
        return DIRECTFB_CORE_NOT_LOCKED;
    }

    opened[use].surface = surface;
    ret_pixels->address = lock->addr;
    ret_pixels->pitch = lock->pitch;
    ret_pixels->width = surface->config.size.w;
    ret_pixels->height = surface->config.size.h;
    ret_pixels->format = format_of(surface);
    return DIRECTFB_CORE_OK;
}

void directfb_core_close(DirectFBCoreUse use)
{
    dfb_surface_unlock_buffer(opened[use].surface, &opened[use].lock);
    dfb_surface_unref(opened[use].surface);
    opened[use].surface = NULL;
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
