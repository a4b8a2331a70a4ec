#ifndef DTK_TOOLKIT_CAIRO_SURFACE_H
#define DTK_TOOLKIT_CAIRO_SURFACE_H

#include "toolkit/result.h"

#include <cairo.h>

namespace dtk {

/// Makes cairo's surface for a DirectFB surface, which it keeps alive until its own end: through cairo's DirectFB back end
/// where the process's cairo has one, else as an image over the surface's memory. Never NULL: one that cairo cannot draw on
/// is in error.
cairo_surface_t* create_cairo_surface(IDirectFB* dfb, IDirectFBSurface* surface);

/// Whether cairo may draw on a surface, or read it, now.
enum class Pixels {
    ready,
    stale,  ///< Memory, size or format have changed since the cairo surface was made: it has to be made anew.
    refused ///< DirectFB does not lock the surface.
};

/// The pixels of a surface that is locked for cairo.
struct LockedPixels {
    IDirectFBSurface* surface = nullptr; ///< NULL: cairo locks the surface by itself, or nobody does.
    u8* first = nullptr;
    int pitch = 0;
    DFBRectangle area = {0, 0, 0, 0};    ///< Where cairo draws or reads.
};

/// Gets cairo the pixels of a context's target, or of a pattern's texture, before a path is begun. It draws, or reads, inside
/// `area` at most, in pixels of the surface. If they are ready, cairo has them until `unlock_pixels`.
Pixels lock_pixels(cairo_t* context, const DFBRectangle& area, LockedPixels& ret_locked);
Pixels lock_pixels(cairo_pattern_t* pattern, const DFBRectangle& area, LockedPixels& ret_locked);

/// Takes locked pixels back from cairo; what was drawn is there then. Does nothing where nothing is locked.
void unlock_pixels(cairo_surface_t* surface, LockedPixels& locked);

} // namespace dtk

#endif
