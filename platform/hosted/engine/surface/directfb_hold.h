/**
 * @file directfb_hold.h
 * The short way to a surface's memory.
 *
 * dfb_surface_lock_buffer takes and releases three locks of its own, for references that keep the surface and its memory.
 * Nothing else can destroy or replace them while the surface itself is locked, which takes one.
 */
#ifndef ZUVO_DIRECTFB_HOLD_H
#define ZUVO_DIRECTFB_HOLD_H

#include <directfb.h>
#include <core/coretypes.h>

/**
 * Locks the surface @p id and its back buffer for reading and writing, without waiting. Returns NULL where that cannot be
 * done; then dfb_surface_lock_buffer returns why, or succeeds. Until it is let go no other surface may be locked.
 */
CoreSurface *directfb_hold(DFBSurfaceID id, CoreSurfaceBufferLock *lock);

void directfb_let_go(CoreSurface *surface, CoreSurfaceBufferLock *lock);

#endif
