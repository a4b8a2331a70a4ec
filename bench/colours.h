#ifndef BENCH_COLOURS_H
#define BENCH_COLOURS_H

#include <cstdint>

#include "shape.h"

namespace bench {

/// 0xAARRGGBB, not premultiplied.
using Colour = std::uint32_t;

constexpr Colour background = 0xff808080;
constexpr Colour opaque_colour = 0xff20c060;
constexpr Colour translucent_colour = 0x40e01020;

constexpr Colour colour_of(Paint paint)
{
    return paint == Paint::opaque ? opaque_colour : translucent_colour;
}

constexpr unsigned alpha(Colour colour) { return colour >> 24; }
constexpr unsigned red(Colour colour) { return colour >> 16 & 255; }
constexpr unsigned green(Colour colour) { return colour >> 8 & 255; }
constexpr unsigned blue(Colour colour) { return colour & 255; }

constexpr Colour premultiplied(Colour colour)
{
    const unsigned a = alpha(colour);
    const auto times_alpha = [a](unsigned component) { return (component * a + 127) / 255; };
    return a << 24 | times_alpha(red(colour)) << 16 | times_alpha(green(colour)) << 8 | times_alpha(blue(colour));
}

/// The texture of the patterned shapes: a translucent square tile with a white cross in its top left corner.
constexpr int texture_size = 15;

constexpr Colour texture_pixel(int x, int y)
{
    const bool is_cross = x < 8 && y < 8 && (x == y || x + y == 7);
    return is_cross ? 0xffffffff : 0xbba03010;
}

} // namespace bench

#endif
