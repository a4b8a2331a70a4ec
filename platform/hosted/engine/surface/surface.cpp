#include "surface.h"

#include "parts.h"

#include "zuvo.h"

#include <algorithm>

namespace zuvo {
namespace {

bool is_usable(DFBSurfacePixelFormat format)
{
    return format == DSPF_ARGB || format == DSPF_RGB32;
}

int to_error(DirectFBCoreAnswer answer)
{
    switch (answer) {
    case DIRECTFB_CORE_OK:
        return ZUVO_OK;
    case DIRECTFB_CORE_NOT_LOCKED:
        return ZUVO_LOCK_FAILED;
    default:
        return ZUVO_NO_SUCH_SURFACE;
    }
}

/// What lies in both rectangles; without width or height where nothing does.
DFBRectangle common(const DFBRectangle& one, const DFBRectangle& other)
{
    const int x = std::max(one.x, other.x), y = std::max(one.y, other.y);
    return {x, y, std::min(one.x + one.w, other.x + other.w) - x, std::min(one.y + one.h, other.y + other.h) - y};
}

} // namespace

bool share_pixels(unsigned int one, unsigned int other)
{
    const DFBSurfaceID surface = surface_of(one);
    if (!surface || surface != surface_of(other))
        return false;
    if (!names_part(one) || !names_part(other))
        return true;
    const DFBRectangle both = common(find_part(one)->granted, find_part(other)->granted);
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
    const DFBRectangle inside = common(part.granted, {0, 0, pixels_.extent.width, pixels_.extent.height});
    origin_ = {part.wanted.x - inside.x, part.wanted.y - inside.y};
    pixels_.words = pixels_.row(inside.y) + inside.x;
    pixels_.extent = {inside.w, inside.h};
    return inside.w > 0 && inside.h > 0 ? ZUVO_OK : ZUVO_LOCK_FAILED;
}

} // namespace zuvo
