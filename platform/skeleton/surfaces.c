#include "surfaces.h"

#include <core/core.h>
#include <core/surface.h>
#include <core/surface_allocation.h>
#include <core/surface_buffer.h>

#include "directfb_back_buffer.h"
#include "zuvo.h"

/* Who draws, in DirectFB's eyes. Here it is the CPU; a board's engine is CSAID_GPU, and DirectFB waits for it by the
 * board's graphics driver before it lets the CPU touch what it has written. */
#ifndef BOARD_ACCESSOR
#define BOARD_ACCESSOR CSAID_CPU
#endif

static struct {
    CoreSurface *surface;
    CoreSurfaceBufferLock lock;
} opened[2];

static int find(unsigned int handle, CoreSurface **ret_surface)
{
    if (!core_dfb || dfb_core_get_surface(core_dfb, handle, ret_surface) != DFB_OK)
        return ZUVO_NO_SUCH_SURFACE;
    return ZUVO_OK;
}

static bool has_usable_format(const CoreSurface *surface)
{
    const DFBSurfacePixelFormat format = surface->config.format;

    return (format == DSPF_ARGB || format == DSPF_RGB32) && !(surface->config.caps & DSCAPS_SEPARATED);
}

static int lock_memory(SurfaceUse use, CoreSurface *surface, Memory *ret_memory)
{
    const CoreSurfaceAccessFlags access = use == SURFACE_TARGET ? CSAF_READ | CSAF_WRITE : CSAF_READ;
    CoreSurfaceBufferLock *lock = &opened[use].lock;
    DFBDimension size;

    if (!has_usable_format(surface))
        return ZUVO_WRONG_PIXEL_FORMAT;
    if (directfb_lock_back_buffer(surface, BOARD_ACCESSOR, access, lock) != DFB_OK)
        return ZUVO_LOCK_FAILED;
    // Another thread may give the surface another size meanwhile; the memory keeps that which it was allocated for.
    size = lock->allocation->config.size;
    *ret_memory = (Memory){lock->addr, (int) lock->pitch, size.w, size.h};
    opened[use].surface = surface;
    return ZUVO_OK;
}

int surface_check(unsigned int handle)
{
    CoreSurface *surface;
    int error = find(handle, &surface);

    if (error)
        return error;
    error = has_usable_format(surface) ? ZUVO_OK : ZUVO_WRONG_PIXEL_FORMAT;
    dfb_surface_unref(surface);
    return error;
}

int surface_open(SurfaceUse use, unsigned int handle, Memory *ret_memory)
{
    CoreSurface *surface;
    int error = find(handle, &surface);

    if (error)
        return error;
    error = lock_memory(use, surface, ret_memory);
    if (error)
        dfb_surface_unref(surface);
    return error;
}

void surface_close(SurfaceUse use)
{
    dfb_surface_unlock_buffer(opened[use].surface, &opened[use].lock);
    dfb_surface_unref(opened[use].surface);
}
