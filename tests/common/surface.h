#ifndef TESTS_COMMON_SURFACE_H
#define TESTS_COMMON_SURFACE_H

#include <directfb.h>

namespace common {

/// What a test asks DirectFB for: a surface of this size, whose pixels are undefined.
inline DFBSurfaceDescription describe(int width, int height, DFBSurfacePixelFormat format = DSPF_ARGB,
                                      int caps = DSCAPS_NONE)
{
    DFBSurfaceDescription description = {};
    description.flags =
        static_cast<DFBSurfaceDescriptionFlags>(DSDESC_CAPS | DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT);
    description.caps = static_cast<DFBSurfaceCapabilities>(caps);
    description.width = width;
    description.height = height;
    description.pixelformat = format;
    return description;
}

} // namespace common

#endif
