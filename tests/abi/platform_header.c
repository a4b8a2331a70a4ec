#include <zuvo.h>

/* The handle of a surface on the platform's drawing engine. */
unsigned int engine_handle(IDirectFBSurface *surface);

unsigned int engine_handle(IDirectFBSurface *surface)
{
    unsigned int handle = 0;
    return zuvo_dtk_surface_handle(surface, &handle) == DFB_OK ? handle : (unsigned int) ZUVO_NO_SUCH_SURFACE;
}
