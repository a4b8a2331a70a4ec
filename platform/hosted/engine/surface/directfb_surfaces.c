#include "directfb_surfaces.h"

#include <core/core.h>
#include <core/surface.h>
#include <fusion/hash.h>
#include <fusion/object.h>

#include "directfb_variant.h"

/** Locks the pool of surfaces. Returns NULL when there is none. */
static FusionObjectPool *lock_pool(void)
{
    FusionObjectPool *pool = core_dfb ? core_dfb->shared->surface_pool : NULL;

    return pool && fusion_skirmish_prevail(&pool->lock) == DR_OK ? pool : NULL;
}

static bool is_released(CoreSurface *surface)
{
#if DIRECTFB_CORE_IS_OWN
    return __atomic_load_n(&surface->object.ref.single.refs, __ATOMIC_RELAXED) <= 0;
#else
    int references = 0;

    return fusion_ref_stat(&surface->object.ref, &references) != DR_OK || references <= 0;
#endif
}

/** Returns the surface @p id of a locked pool, NULL when there is none that is not released. */
static CoreSurface *look_up(FusionObjectPool *pool, DFBSurfaceID id)
{
    // The keys of this hash are numbers. NOLINTNEXTLINE(performance-no-int-to-ptr)
    CoreSurface *surface = fusion_hash_lookup(pool->objects, (void *) (unsigned long) id);

    return surface && !is_released(surface) ? surface : NULL;
}

#if DIRECTFB_CORE_IS_OWN

#include <assert.h>
#include <stdatomic.h>
#include <time.h>

static struct {
    _Atomic(CoreSurface *) surface;
    atomic_bool is_in_use;
    DFBSurfaceID id;
    DirectFBMemory memory;
    FusionObjectDestructor destroy;     /**< The pool's own. */
} remembered;

/** A use takes some ten instructions. Yielding would not let a thread of lower priority get to its end. */
static void await_end_of_use(void)
{
    const struct timespec pause = {.tv_nsec = 50000};

    while (atomic_load(&remembered.is_in_use))
        nanosleep(&pause, NULL);
}

/**
 * Either the use that begins sees that the surface is forgotten, or this sees the use: both write before they read. The
 * surface is no longer in the pool's table, so it is not remembered again.
 */
static void forget_and_destroy(FusionObject *object, bool is_zombie, void *context)
{
    CoreSurface *surface = (CoreSurface *) object;

    if (atomic_compare_exchange_strong(&remembered.surface, &surface, NULL))
        await_end_of_use();
    remembered.destroy(object, is_zombie, context);
}

static void mark_use(void)
{
    const bool was_in_use = atomic_exchange(&remembered.is_in_use, true);

    assert(!was_in_use); /* Two threads draw with the engine otherwise. */
    (void) was_in_use;
}

/** The pool is locked. DirectFB's thread reads the function without its lock, but for a surface that left the table. */
static void remember(FusionObjectPool *pool, CoreSurface *surface, DFBSurfaceID id)
{
    if (pool->destructor != forget_and_destroy) {
        remembered.destroy = pool->destructor;
        __atomic_store_n(&pool->destructor, forget_and_destroy, __ATOMIC_RELEASE);
    }
    remembered.id = id;
    remembered.memory.allocation = 0;
    atomic_store(&remembered.surface, surface);
}

static CoreSurface *use_remembered(DFBSurfaceID id)
{
    CoreSurface *surface;

    if (id != remembered.id)
        return NULL;
    mark_use();
    surface = atomic_load(&remembered.surface);
    if (surface && !is_released(surface))
        return surface;
    directfb_surfaces_end_use();
    return NULL;
}

/** Kept apart from what nearly every use takes, which gets along without a stack frame then. */
__attribute__((noinline)) static CoreSurface *use_another(DFBSurfaceID id)
{
    FusionObjectPool *pool = lock_pool();
    CoreSurface *surface;

    if (!pool)
        return NULL;
    surface = look_up(pool, id);
    if (surface) {
        remember(pool, surface, id);
        mark_use();
    }
    fusion_skirmish_dismiss(&pool->lock);
    return surface;
}

CoreSurface *directfb_surfaces_begin_use(DFBSurfaceID id)
{
    CoreSurface *surface = use_remembered(id);

    return surface ? surface : use_another(id);
}

DirectFBMemory *directfb_surfaces_memory(void)
{
    return &remembered.memory;
}

void directfb_surfaces_end_use(void)
{
    atomic_store_explicit(&remembered.is_in_use, false, memory_order_release);
}

void directfb_surfaces_forget(void)
{
    FusionObjectPool *pool = lock_pool();

    if (!pool)
        return;
    if (pool->destructor == forget_and_destroy)
        __atomic_store_n(&pool->destructor, remembered.destroy, __ATOMIC_RELEASE);
    atomic_store(&remembered.surface, NULL);
    fusion_skirmish_dismiss(&pool->lock);
}

#else

/* Another process may destroy surfaces: the pool is locked as long as one is used. */

CoreSurface *directfb_surfaces_begin_use(DFBSurfaceID id)
{
    FusionObjectPool *pool = lock_pool();
    CoreSurface *surface = pool ? look_up(pool, id) : NULL;

    if (pool && !surface)
        fusion_skirmish_dismiss(&pool->lock);
    return surface;
}

void directfb_surfaces_end_use(void)
{
    fusion_skirmish_dismiss(&core_dfb->shared->surface_pool->lock);
}

void directfb_surfaces_forget(void)
{
}

#endif
