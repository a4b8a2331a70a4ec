#ifndef TOOLS_TRACE_COMPARE_PIXELS_H
#define TOOLS_TRACE_COMPARE_PIXELS_H

#include <cstdint>
#include <vector>

#include <directfb.h>

namespace trace {

/// The pixels of a surface of 32 bits a pixel, row by row.
using Pixels = std::vector<std::uint32_t>;

Pixels read_pixels(IDirectFBSurface* surface, int width, int height);
void write_pixels(IDirectFBSurface* surface, const Pixels& pixels, int width, int height);

/// Where two pictures are further apart than rounding makes them: by more than 1 in red, green or blue.
struct Difference {
    std::size_t count = 0;
    int first_x = 0, first_y = 0;                   ///< The first pixel in reading order.
    int left = 0, top = 0, right = 0, bottom = 0;   ///< What holds them all, both ends included.
};

Difference compare(const Pixels& one, const Pixels& other, int width);

} // namespace trace

#endif
