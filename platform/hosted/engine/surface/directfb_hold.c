#include "directfb_hold.h"

#include <errno.h>
#include <string.h>

#include <core/gfxcard.h>
#include <core/surface.h>
#include <core/surface_allocation.h>
#include <core/surface_buffer.h>
#include <core/surface_pool.h>
#include <misc/conf.h>

#include "directfb_back_buffer.h"
#include "directfb_surfaces.h"
#include "directfb_variant.h"

#if DIRECTFB_CORE_IS_OWN

static const CoreSurfaceAccessFlags both_ways = CSAF_READ | CSAF_WRITE;

/** Options by which each lock of a buffer does more. */
static bool does_more(void)
{
    return DIRECTFB_HAS_TASK_MANAGER || dfb_config->thrifty_surface_buffers;
}

/** DirectFB 1.7 takes the result of a mutex that is busy from errno, which the C library leaves as it was. */
static bool try_lock(CoreSurface *surface)
{
    errno = EBUSY;
    return fusion_skirmish_swoop(&surface->lock) == DR_OK;
}

static CoreSurface *lock_surface(DFBSurfaceID id)
{
    CoreSurface *surface = directfb_surfaces_begin_use(id);
    bool is_locked;

    if (!surface)
        return NULL;
    is_locked = try_lock(surface);
    directfb_surfaces_end_use();
    return is_locked ? surface : NULL;
}

/** The only allocation of a buffer, if it is up to date and the processor may use it; else NULL. */
static CoreSurfaceAllocation *current_allocation(const CoreSurfaceBuffer *buffer)
{
    CoreSurfaceAllocation *allocation = buffer->written;

    if (buffer->allocs.count != 1 || !allocation || !direct_serial_check(&allocation->serial, &buffer->serial))
        return NULL;
    if ((allocation->access[CSAID_CPU] & both_ways) != both_ways || allocation->flags & CSALF_PREALLOCATED)
        return NULL;
    return allocation;
}

static bool is_used_by_card(const CoreSurfaceAllocation *allocation)
{
    return __atomic_load_n(&allocation->accessed[CSAID_GPU], __ATOMIC_RELAXED) & both_ways;
}

/** What the graphics card has begun is finished before the processor begins. A driver writes these flags without the lock. */
__attribute__((noinline)) static void wait_for_card(CoreSurfaceAllocation *allocation)
{
    const CoreSurfaceAccessFlags accessed =
        __atomic_load_n(&allocation->accessed[CSAID_GPU], __ATOMIC_RELAXED) & both_ways;

    dfb_gfxcard_wait_serial(&allocation->gfx_serial);
    if (accessed & CSAF_WRITE)
        dfb_gfxcard_flush_read_cache();
    __atomic_fetch_and(&allocation->accessed[CSAID_GPU], ~both_ways, __ATOMIC_RELAXED);
}

/** Locking in the pool of system memory does nothing but tell the address, which stays as long as the allocation. */
static void keep_address(const CoreSurfaceAllocation *allocation, const CoreSurfaceBufferLock *lock)
{
    if (!strcmp(allocation->pool->desc.name, "System Memory"))
        *directfb_surfaces_memory() = (DirectFBMemory) {allocation->object.id, lock->addr, lock->pitch};
}

/** Kept apart, as what follows is done for each shape and this for each new buffer. */
__attribute__((noinline)) static bool lock_in_pool(CoreSurfaceAllocation *allocation, CoreSurfaceBufferLock *lock)
{
    dfb_surface_buffer_lock_init(lock, CSAID_CPU, both_ways);
    if (dfb_surface_pool_prelock(allocation->pool, allocation, CSAID_CPU, both_ways) == DFB_OK
        && dfb_surface_pool_lock(allocation->pool, allocation, lock) == DFB_OK) {
        keep_address(allocation, lock);
        return true;
    }
    dfb_surface_buffer_lock_deinit(lock);
    return false;
}

/** A lock without an allocation is one that the pool knows nothing of. */
static bool lock_memory(CoreSurfaceAllocation *allocation, CoreSurfaceBufferLock *lock)
{
    const DirectFBMemory *memory = directfb_surfaces_memory();

    if (allocation->object.id != memory->allocation)
        return lock_in_pool(allocation, lock);
    lock->allocation = NULL;
    lock->addr = memory->address;
    lock->pitch = memory->pitch;
    return true;
}

/** The content of the buffer is new, and this is where it is. */
static void note_access(CoreSurfaceBuffer *buffer, CoreSurfaceAllocation *allocation)
{
    allocation->accessed[CSAID_CPU] |= both_ways;
    direct_serial_increase(&buffer->serial);
    direct_serial_copy(&allocation->serial, &buffer->serial);
    buffer->read = NULL;
}

/** Locks the back buffer of a locked surface. */
static bool lock_buffer(CoreSurface *surface, CoreSurfaceBufferLock *lock)
{
    CoreSurfaceBuffer *buffer;
    CoreSurfaceAllocation *allocation;

    if (surface->state & CSSF_DESTROYED || surface->num_buffers < 1)
        return false;
    buffer = directfb_back_buffer(surface);
    allocation = current_allocation(buffer);
    if (!allocation)
        return false;
    if (is_used_by_card(allocation))
        wait_for_card(allocation);
    if (!lock_memory(allocation, lock))
        return false;
    note_access(buffer, allocation);
    return true;
}

CoreSurface *directfb_hold(DFBSurfaceID id, CoreSurfaceBufferLock *lock)
{
    CoreSurface *surface = does_more() ? NULL : lock_surface(id);

    if (!surface || lock_buffer(surface, lock))
        return surface;
    dfb_surface_unlock(surface);
    return NULL;
}

void directfb_let_go(CoreSurface *surface, CoreSurfaceBufferLock *lock)
{
    if (lock->allocation) {
        dfb_surface_pool_unlock(lock->allocation->pool, lock->allocation, lock);
        dfb_surface_buffer_lock_deinit(lock);
    }
    dfb_surface_unlock(surface);
}

#else

CoreSurface *directfb_hold(DFBSurfaceID id, CoreSurfaceBufferLock *lock)
{
    (void) id;
    (void) lock;
    return NULL;
}

void directfb_let_go(CoreSurface *surface, CoreSurfaceBufferLock *lock)
{
    (void) surface;
    (void) lock;
}

#endif
