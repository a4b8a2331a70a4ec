#include "surface.h"

#include "parts.h"

#include "geometry/box.h"
#include "zuvo.h"

namespace zuvo {
namespace {

bool is_usable(DFBSurfacePixelFormat format)
{
    return format == DSPF_ARGB || format == DSPF_RGB32;
}

int to_error(DirectFBCoreResult result)
{
    switch (result) {
    case DIRECTFB_CORE_OK:
        return ZUVO_OK;
    case DIRECTFB_CORE_NOT_LOCKED:
        return ZUVO_LOCK_FAILED;
    default:
        return ZUVO_NO_SUCH_SURFACE;
    }
}

} // namespace

bool share_pixels(unsigned int one, unsigned int other)
{
    const DFBSurfaceID surface = surface_of(one);
    if (!surface || surface != surface_of(other))
        return false;
    if (!names_part(one) || !names_part(other))
        return true;
    const DFBRectangle both = geometry::intersection(find_part(one)->granted, find_part(other)->granted);
    return both.w > 0 && both.h > 0;
}

int check_surface(unsigned int handle)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    if (int error = to_error(directfb_core_get_format(surface_of(handle), &format)))
        return error;
    return is_usable(format) ? ZUVO_OK : ZUVO_WRONG_PIXEL_FORMAT;
}

OpenSurface::~OpenSurface()
{
    if (is_open_)
        directfb_core_close(use_);
}

int OpenSurface::open(unsigned int handle)
{
    DirectFBCorePixels found;
    if (int error = to_error(directfb_core_open(use_, surface_of(handle), &found)))
        return error;
    is_open_ = true;

    if (!is_usable(found.format))
        return ZUVO_WRONG_PIXEL_FORMAT;
    pixels_ = {static_cast<uint32_t*>(found.address), found.pitch / sizeof(uint32_t), {found.width, found.height},
               found.format == DSPF_ARGB};
    return names_part(handle) ? cut(*find_part(handle)) : ZUVO_OK;
}

int OpenSurface::cut(const DirectFBPart& part)
{
    const DFBRectangle inside = geometry::intersection(part.granted, {0, 0, pixels_.extent.width, pixels_.extent.height});
    origin_ = {part.wanted.x - inside.x, part.wanted.y - inside.y};
    pixels_.words = pixels_.row(inside.y) + inside.x;
    pixels_.extent = {inside.w, inside.h};
    return inside.w > 0 && inside.h > 0 ? ZUVO_OK : ZUVO_LOCK_FAILED;
}

} // namespace zuvo
