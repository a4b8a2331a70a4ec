#include "toolkit/image_format.h"

#include <cstring>

namespace dtk {

namespace {

using Component = ImageFormat::Component;

constexpr auto with_alpha = CAIRO_FORMAT_ARGB32;
constexpr auto opaque = CAIRO_FORMAT_RGB24;

/// The formats that cairo's DirectFB back end draws on.
constexpr ImageFormat formats[] = {
    {DSPF_ARGB, with_alpha, 0, {}, {}, {}, {}},
    {DSPF_RGB32, opaque, 0, {}, {}, {}, {}},
    {DSPF_RGB16, CAIRO_FORMAT_RGB16_565, 0, {}, {}, {}, {}},
    {DSPF_A8, CAIRO_FORMAT_A8, 0, {}, {}, {}, {}},
    {DSPF_ARGB1555, with_alpha, 16, {15, 1}, {10, 5}, {5, 5}, {0, 5}},
    {DSPF_RGB555, opaque, 16, {}, {10, 5}, {5, 5}, {0, 5}},
    {DSPF_BGR555, opaque, 16, {}, {0, 5}, {5, 5}, {10, 5}},
    {DSPF_ARGB4444, with_alpha, 16, {12, 4}, {8, 4}, {4, 4}, {0, 4}},
    {DSPF_RGB444, opaque, 16, {}, {8, 4}, {4, 4}, {0, 4}},
    {DSPF_RGB24, opaque, 24, {}, {16, 8}, {8, 8}, {0, 8}},
    {DSPF_RGB332, opaque, 8, {}, {5, 3}, {2, 3}, {0, 2}},
    {DSPF_A4, with_alpha, 4, {0, 4}, {}, {}, {}},
};

/// Cairo has the first of two pixels in the lower half of their byte.
int half_shift(int x)
{
    return 4 * (x & 1);
}

u32 load(int bits, const u8* row, int x)
{
    if (bits == 4)
        return row[x / 2] >> half_shift(x) & 15u;
    u32 value = 0;
    std::memcpy(&value, row + static_cast<std::ptrdiff_t>(x) * bits / 8, static_cast<unsigned>(bits) / 8);
    return value;
}

void store(int bits, u32 value, u8* row, int x)
{
    if (bits == 4)
        row[x / 2] = static_cast<u8>((row[x / 2] & 0xf0 >> half_shift(x)) | static_cast<int>(value << half_shift(x)));
    else
        std::memcpy(row + static_cast<std::ptrdiff_t>(x) * bits / 8, &value, static_cast<unsigned>(bits) / 8);
}

/// Repeats a component's bits until there are eight.
u32 widen(u32 value, Component component)
{
    u32 wide = (value >> component.shift & ((1u << component.bits) - 1)) << (8 - component.bits);
    for (int bits = component.bits; bits > 0 && bits < 8; bits *= 2)
        wide |= wide >> bits;
    return wide;
}

u32 narrow(u32 value, Component component)
{
    return (value & 255) >> (8 - component.bits) << component.shift;
}

u32 unpack(const ImageFormat& format, u32 value)
{
    const u32 alpha = format.image == opaque ? 255 : widen(value, format.alpha);
    return alpha << 24 | widen(value, format.red) << 16 | widen(value, format.green) << 8 | widen(value, format.blue);
}

u32 pack(const ImageFormat& format, u32 color)
{
    return narrow(color >> 24, format.alpha) | narrow(color >> 16, format.red) | narrow(color >> 8, format.green)
           | narrow(color, format.blue);
}

} // namespace

const ImageFormat* find_image_format(DFBSurfacePixelFormat format)
{
    for (const ImageFormat& known : formats) {
        if (known.pixels == format)
            return &known;
    }
    return nullptr;
}

void unpack_row(const ImageFormat& format, const u8* row, u32* copy, int left, int right)
{
    for (int x = left; x < right; ++x)
        copy[x] = unpack(format, load(format.copied_bits, row, x));
}

void pack_row(const ImageFormat& format, u8* row, const u32* copy, int left, int right)
{
    for (int x = left; x < right; ++x) {
        if (copy[x] != unpack(format, load(format.copied_bits, row, x)))
            store(format.copied_bits, pack(format, copy[x]), row, x);
    }
}

} // namespace dtk
