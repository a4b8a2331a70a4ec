#include "directfb_core.h"

#include <assert.h>

#include <core/core.h>
#include <core/surface.h>
#include <core/surface_buffer.h>
#include <gfx/clip.h>

#include "directfb_hold.h"
#include "directfb_surfaces.h"
#include "directfb_variant.h"

static struct {
    CoreSurface *surface;
    CoreSurfaceBufferLock lock;
    bool is_held;               /**< By its own lock instead of by references. */
} opened[3];

/** Rows of a surface that keeps its two fields apart lie elsewhere; it counts as of no known format. */
static DFBSurfacePixelFormat format_of(const CoreSurface *surface)
{
    return surface->config.caps & DSCAPS_SEPARATED ? DSPF_UNKNOWN : surface->config.format;
}

/** Every operation asks this first. */
DirectFBCoreResult directfb_core_get_format(DFBSurfaceID id, DFBSurfacePixelFormat *ret_format)
{
    const CoreSurface *surface = directfb_surfaces_begin_use(id);

    if (!surface)
        return DIRECTFB_CORE_UNKNOWN;
    *ret_format = format_of(surface);
    directfb_surfaces_end_use();
    return DIRECTFB_CORE_OK;
}

/** Locks a surface's back buffer in DirectFB's way. */
static DirectFBCoreResult lock_back_buffer(DirectFBCoreUse use, DFBSurfaceID id)
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

static DirectFBCorePixels pixels_of(DirectFBCoreUse use)
{
    const CoreSurface *surface = opened[use].surface;
    const CoreSurfaceBufferLock *lock = &opened[use].lock;

    return (DirectFBCorePixels) {lock->addr, lock->pitch, surface->config.size.w, surface->config.size.h,
                                 format_of(surface)};
}

DirectFBCoreResult directfb_core_open(DirectFBCoreUse use, DFBSurfaceID id, DirectFBCorePixels *ret_pixels)
{
    assert(!opened[use].surface); /* Two threads draw with the engine otherwise. */
    if (use == DIRECTFB_CORE_ONLY_TARGET)
        opened[use].surface = directfb_hold(id, &opened[use].lock);
    opened[use].is_held = opened[use].surface;
    if (!opened[use].is_held) {
        const DirectFBCoreResult result = lock_back_buffer(use, id);
        if (result != DIRECTFB_CORE_OK)
            return result;
    }
    *ret_pixels = pixels_of(use);
    return DIRECTFB_CORE_OK;
}

void directfb_core_close(DirectFBCoreUse use)
{
    if (opened[use].is_held) {
        directfb_let_go(opened[use].surface, &opened[use].lock);
    } else {
        dfb_surface_unlock_buffer(opened[use].surface, &opened[use].lock);
        dfb_surface_unref(opened[use].surface);
    }
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
