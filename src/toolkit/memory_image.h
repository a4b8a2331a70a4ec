#ifndef DTK_TOOLKIT_MEMORY_IMAGE_H
#define DTK_TOOLKIT_MEMORY_IMAGE_H

#include "toolkit/cairo_surface.h"

namespace dtk {

/// Makes an image over a DirectFB surface's memory as it lies at the moment, or of a copy where cairo's images lack the pixel
/// format. The image holds a reference on the surface.
cairo_surface_t* create_memory_image(IDirectFBSurface* surface);

/// Locks the surface of an image, and brings a copy up to date inside `area`.
Pixels lock_memory_image(cairo_surface_t* image, const DFBRectangle& area, LockedPixels& ret_locked);

/// Stores what was drawn on a copy and unlocks the surface.
void unlock_memory_image(cairo_surface_t* image, LockedPixels& locked);

} // namespace dtk

#endif
