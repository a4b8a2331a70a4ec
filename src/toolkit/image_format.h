#ifndef DTK_TOOLKIT_IMAGE_FORMAT_H
#define DTK_TOOLKIT_IMAGE_FORMAT_H

#include "toolkit/result.h"

#include <cairo.h>

namespace dtk {

/// How an image of cairo's shows the pixels of a DirectFB surface: the memory itself, or a copy of four bytes a pixel where
/// cairo's images lack the format.
struct ImageFormat {
    struct Component {
        u8 shift, bits;
    };
    DFBSurfacePixelFormat pixels;
    cairo_format_t image;
    u8 copied_bits; ///< How many bits of the surface make a pixel of the copy; 0 without a copy.
    Component alpha, red, green, blue;

    bool is_copied() const { return copied_bits != 0; }
};

/// NULL for formats that cairo does not draw on.
const ImageFormat* find_image_format(DFBSurfacePixelFormat format);

/// Copies the pixels `left` to `right`, excluding it, of a row of the surface to the same place of a row of the copy.
void unpack_row(const ImageFormat& format, const u8* row, u32* copy, int left, int right);

/// Stores those pixels of the copy that differ from the surface's.
void pack_row(const ImageFormat& format, u8* row, const u32* copy, int left, int right);

} // namespace dtk

#endif
