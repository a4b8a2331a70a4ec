#ifndef ZUVO_PARTS_H
#define ZUVO_PARTS_H

#include "directfb_part.h"

namespace zuvo {

/// Whether a handle is one of a part. DirectFB counts its surfaces from 1, so the highest bit is free.
inline bool names_part(unsigned int handle)
{
    return handle >> 31;
}

/// The handle of a part of a surface, the same each time as long as the surface lives; 0 without memory. Memory is taken
/// only for parts that are new. Not inlined: who asks for a whole surface's handle passes by.
[[gnu::noinline]] unsigned int handle_of_part(const DirectFBPart& part);

/// The part of a part's handle; NULL when it is gone.
const DirectFBPart* find_part(unsigned int handle);

/// The surface that a part's handle belongs to; 0 when it is gone.
DFBSurfaceID surface_of_part(unsigned int handle);

/// The surface of any handle.
inline DFBSurfaceID surface_of(unsigned int handle)
{
    return names_part(handle) ? surface_of_part(handle) : handle;
}

} // namespace zuvo

#endif
