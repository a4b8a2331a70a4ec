// DirectFB's internal headers are C only.
#include "surface_pool.h"

#include <core/core.h>
#include <core/surface.h>
#include <core/surface_allocation.h>
#include <core/surface_buffer.h>
#include <fusion/object.h>
#include <misc/conf.h>
#include <stdatomic.h>
#include <time.h>

#include "directfb_back_buffer.h"
#include "directfb_hold.h"
#include "directfb_surfaces.h"

DestroySurface get_destroy_surface(void)
{
    return (DestroySurface) core_dfb->shared->surface_pool->destructor;
}

void lock_core_surface(unsigned int id)
{
    CoreSurface *surface = NULL;
    if (dfb_core_get_surface(core_dfb, id, &surface) == DFB_OK)
        dfb_surface_lock(surface);
}

void unlock_core_surface(unsigned int id)
{
    CoreSurface *surface = NULL;
    if (dfb_core_get_surface(core_dfb, id, &surface) != DFB_OK)
        return;
    dfb_surface_unlock(surface);
    dfb_surface_unref(surface);
    dfb_surface_unref(surface);
}

static FusionObjectDestructor own_destructor;
static _Atomic(Destruction) destruction;

/* Stands below the engine's function, in the place of DirectFB's own. */
static void destroy(FusionObject *object, bool is_zombie, void *context)
{
    own_destructor(object, is_zombie, context);
    atomic_store(&destruction, DESTROYED);
}

/* What the engine's waits call instead of nanosleep. */
int pause_for_use(const struct timespec *time, struct timespec *rest);

int pause_for_use(const struct timespec *time, struct timespec *rest)
{
    Destruction expected = NOT_BEGUN;

    atomic_compare_exchange_strong(&destruction, &expected, WAITS_FOR_USE);
    return clock_nanosleep(CLOCK_MONOTONIC, 0, time, rest);
}

void watch_destruction(void)
{
    FusionObjectPool *pool = core_dfb->shared->surface_pool;

    own_destructor = pool->destructor;
    pool->destructor = destroy;
    atomic_store(&destruction, NOT_BEGUN);
}

void end_watch(void)
{
    directfb_surfaces_forget();
    core_dfb->shared->surface_pool->destructor = own_destructor;
}

void end_lookups(void)
{
    directfb_surfaces_forget();
}

Destruction get_destruction(void)
{
    return atomic_load(&destruction);
}

bool use_is_waited_for(void)
{
    return DIRECTFB_CORE_IS_OWN;
}

bool begin_use(unsigned int id)
{
    return directfb_surfaces_begin_use(id) != NULL;
}

void end_use(void)
{
    directfb_surfaces_end_use();
}

bool can_be_held(unsigned int id)
{
    CoreSurfaceBufferLock lock = {0};
    CoreSurface *surface = directfb_hold(id, &lock);
    CoreSurfaceAllocation *allocation;
    bool is_noted;

    if (!surface)
        return false;
    allocation = directfb_back_buffer(surface)->written;
    is_noted = allocation->accessed[CSAID_CPU] == (CSAF_READ | CSAF_WRITE);
    allocation->accessed[CSAID_CPU] = CSAF_NONE;
    directfb_let_go(surface, &lock);
    return is_noted;
}

void set_thrifty(bool is_thrifty)
{
    dfb_config->thrifty_surface_buffers = is_thrifty;
}

void mark_destroyed(unsigned int id, bool is_destroyed)
{
    CoreSurface *surface = NULL;

    if (dfb_core_get_surface(core_dfb, id, &surface) != DFB_OK)
        return;
    surface->state = is_destroyed ? CSSF_DESTROYED : CSSF_NONE;
    dfb_surface_unref(surface);
}
