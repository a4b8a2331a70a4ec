#include "toolkit/cairo_surface.h"

#include "toolkit/memory_image.h"

/// Cairo's own, where it was built with its DirectFB back end (which 1.18 has no more); else NULL.
extern "C" [[gnu::weak]] cairo_surface_t* cairo_directfb_surface_create(IDirectFB* dfb, IDirectFBSurface* surface);

namespace dtk {

namespace {

bool has_back_end()
{
    return cairo_directfb_surface_create != nullptr;
}

cairo_surface_t* texture_of(cairo_pattern_t* pattern)
{
    cairo_surface_t* surface = nullptr;
    cairo_pattern_get_surface(pattern, &surface);
    return surface;
}

} // namespace

cairo_surface_t* create_cairo_surface(IDirectFB* dfb, IDirectFBSurface* surface)
{
    return has_back_end() ? cairo_directfb_surface_create(dfb, surface) : create_memory_image(surface);
}

/// The back end locks a surface by itself at its first use, and keeps it locked until a flush.
Pixels lock_pixels(cairo_t* context, const DFBRectangle& area, LockedPixels& ret_locked)
{
    return has_back_end() ? Pixels::ready : lock_memory_image(cairo_get_target(context), area, ret_locked);
}

Pixels lock_pixels(cairo_pattern_t* pattern, const DFBRectangle& area, LockedPixels& ret_locked)
{
    return has_back_end() ? Pixels::ready : lock_memory_image(texture_of(pattern), area, ret_locked);
}

void unlock_pixels(cairo_surface_t* surface, LockedPixels& locked)
{
    if (locked.surface)
        unlock_memory_image(surface, locked);
}

} // namespace dtk
