/**
 * @file directfb_surfaces.h
 * Finds DirectFB's surfaces by their ids, and the same one again without a lock.
 *
 * The pool of all surfaces has one lock, and a look-up in it takes as long as a small shape. So the surface that was used
 * last is remembered, and the function by which the pool destroys surfaces is replaced by one that forgets it first.
 */
#ifndef ZUVO_DIRECTFB_SURFACES_H
#define ZUVO_DIRECTFB_SURFACES_H

#include <directfb.h>
#include <core/coretypes.h>
#include <fusion/object.h>

/** Where the processor finds the pixels of an allocation. */
typedef struct DirectFBMemory {
    FusionObjectID allocation;  /**< 0 for none. */
    void *address;
    unsigned int pitch;
} DirectFBMemory;

/**
 * Finds the surface @p id, which is then not destroyed until the use ends; a use must not wait for anything. One thread
 * has one use at a time. Returns NULL when there is no such surface, it was released, or DirectFB is not running.
 */
CoreSurface *directfb_surfaces_begin_use(DFBSurfaceID id);

/** To be called after a use that has begun. */
void directfb_surfaces_end_use(void);

/**
 * Memory of the remembered surface that is known to stay where it is, for the caller to keep and find again; that of no
 * allocation once another surface is remembered.
 */
DirectFBMemory *directfb_surfaces_memory(void);

/** Forgets the remembered surface and gives the pool its own function back. */
void directfb_surfaces_forget(void);

#endif
