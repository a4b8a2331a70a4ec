/* For dladdr; DirectFB 1.7 defines it on the command line. */
#ifndef _GNU_SOURCE
#define _GNU_SOURCE
#endif

#include "directfb_part.h"

#include <dlfcn.h>

#include <core/surface.h>
#include <display/idirectfbsurface.h>

typedef DFBResult (*GetID)(IDirectFBSurface *thiz, DFBSurfaceID *ret_id);

/** The slot of DirectFB's own surfaces, once one was seen. */
static GetID own_get_id;

/** Whether a slot leads into the library that DirectFB's core is in; asked once. */
__attribute__((noinline)) static bool is_directfbs(GetID slot)
{
    Dl_info of_slot, of_core;

    return slot && dladdr((void *) slot, &of_slot) && dladdr((void *) dfb_surface_lock_buffer, &of_core)
        && of_slot.dli_fbase == of_core.dli_fbase;
}

static bool is_own(const IDirectFBSurface *surface)
{
    if (own_get_id && surface->GetID == own_get_id)
        return true;
    if (own_get_id || !is_directfbs(surface->GetID))
        return false;
    own_get_id = surface->GetID;
    return true;
}

bool directfb_get_part(const IDirectFBSurface *surface, DirectFBPart *ret_part)
{
    const IDirectFBSurface_data *data;

    if (!is_own(surface))
        return false;
    data = surface->priv;
    if (!data || !data->surface || !data->limit_set)
        return false;

    ret_part->id = data->surface->object.id;
    ret_part->wanted = data->area.wanted;
    ret_part->granted = data->area.granted;
    return true;
}
