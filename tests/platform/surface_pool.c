// DirectFB's internal headers are C only.
#include "surface_pool.h"

#include <core/core.h>
#include <core/surface.h>
#include <fusion/object.h>

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
