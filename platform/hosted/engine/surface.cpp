#include "surface.h"

#include "zuvo.h"

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

} // namespace

int check_surface(unsigned int handle)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    if (int error = to_error(directfb_core_get_format(handle, &format)))
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
    if (int error = to_error(directfb_core_open(use_, handle, &found)))
        return error;
    is_open_ = true;

    if (!is_usable(found.format))
        return ZUVO_WRONG_PIXEL_FORMAT;
    pixels_ = {static_cast<uint32_t*>(found.address), found.pitch / sizeof(uint32_t), {found.width, found.height},
               found.format == DSPF_ARGB};
    return ZUVO_OK;
}

} // namespace zuvo
