/**
 * @file directfb_back_buffer.h
 * The buffer of a surface that is drawn to. A surface counts its flips. DirectFB 1.7's shorter functions look at the count,
 * DirectFB2's have stopped to, and take a buffer as if nothing had been flipped.
 */
#ifndef ZUVO_DIRECTFB_BACK_BUFFER_H
#define ZUVO_DIRECTFB_BACK_BUFFER_H

#include <core/surface.h>

#include "directfb_variant.h"

/** The surface is locked. */
static inline CoreSurfaceBuffer *directfb_back_buffer(CoreSurface *surface)
{
    return dfb_surface_get_buffer3(surface, DIRECTFB_BACK_BUFFER, DSSE_LEFT, surface->flips);
}

/** Locks it in DirectFB's way; dfb_surface_unlock_buffer is its opposite. */
static inline DFBResult directfb_lock_back_buffer(CoreSurface *surface, CoreSurfaceAccessorID accessor,
                                                  CoreSurfaceAccessFlags access, CoreSurfaceBufferLock *ret_lock)
{
    return dfb_surface_lock_buffer2(surface, DIRECTFB_BACK_BUFFER, surface->flips, DSSE_LEFT, accessor, access, ret_lock);
}

#endif
