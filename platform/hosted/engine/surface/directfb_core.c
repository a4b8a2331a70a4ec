#include "directfb_core.h"

#include <assert.h>

#include <core/core.h>
#include <core/surface.h>
#include <core/surface_allocation.h>
#include <core/surface_buffer.h>
#include <gfx/clip.h>

#include "directfb_back_buffer.h"
#include "directfb_hold.h"
#include "directfb_surfaces.h"
#include "directfb_variant.h"

typedef struct Opened {
    CoreSurface *surface;
    CoreSurfaceBufferLock lock;
} Opened;

static Opened opened[3];        /**< In DirectFB's way, with references. */
static Opened held;             /**< By its own lock; the only one then. */

/** Rows of a surface that keeps its two fields apart lie elsewhere; it counts as of no known format. */
static DFBSurfacePixelFormat format_of(const CoreSurfaceConfig *config)
{
    return config->caps & DSCAPS_SEPARATED ? DSPF_UNKNOWN : config->format;
}

/** Every operation asks this first. */
DirectFBCoreResult directfb_core_get_format(DFBSurfaceID id, DFBSurfacePixelFormat *ret_format)
{
    const CoreSurface *surface = directfb_surfaces_begin_use(id);

    if (!surface)
        return DIRECTFB_CORE_UNKNOWN;
    *ret_format = format_of(&surface->config);
    directfb_surfaces_end_use();
    return DIRECTFB_CORE_OK;
}

/** Locks a surface's back buffer in DirectFB's way. Kept apart from the short way, which nearly every drawing takes. */
__attribute__((noinline)) static DirectFBCoreResult lock_back_buffer(DirectFBCoreUse use, DFBSurfaceID id)
{
    const CoreSurfaceAccessFlags access = use == DIRECTFB_CORE_PATTERN ? CSAF_READ : CSAF_READ | CSAF_WRITE;
    CoreSurface *surface;

    if (!core_dfb || dfb_core_get_surface(core_dfb, id, &surface) != DFB_OK)
        return DIRECTFB_CORE_UNKNOWN;
    if (directfb_lock_back_buffer(surface, CSAID_CPU, access, &opened[use].lock) != DFB_OK) {
        dfb_surface_unref(surface);
        return DIRECTFB_CORE_NOT_LOCKED;
    }
    opened[use].surface = surface;
    return DIRECTFB_CORE_OK;
}

static DirectFBCorePixels pixels_of(const CoreSurfaceBufferLock *lock, const CoreSurfaceConfig *config)
{
    return (DirectFBCorePixels) {lock->addr, lock->pitch, config->size.w, config->size.h, format_of(config)};
}

/** References keep the memory as it was allocated, while another thread may resize the surface. */
DirectFBCoreResult directfb_core_open(DirectFBCoreUse use, DFBSurfaceID id, DirectFBCorePixels *ret_pixels)
{
    DirectFBCoreResult result;

    assert(!held.surface && !opened[use].surface); /* Two threads draw with the engine otherwise. */
    if (use == DIRECTFB_CORE_ONLY_TARGET) {
        held.surface = directfb_hold(id, &held.lock);
        if (held.surface) {
            *ret_pixels = pixels_of(&held.lock, &held.surface->config);
            return DIRECTFB_CORE_OK;
        }
    }
    result = lock_back_buffer(use, id);
    if (result == DIRECTFB_CORE_OK)
        *ret_pixels = pixels_of(&opened[use].lock, &opened[use].lock.allocation->config);
    return result;
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

bool directfb_core_clip_line(const DFBRegion *clip, DFBRegion *line)
{
    return dfb_clip_line(clip, line);
}
