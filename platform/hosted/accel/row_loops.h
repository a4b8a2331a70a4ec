/**
 * @file row_loops.h
 * The loops behind the row functions. Each table of rows.h compiles them once more, for another processor.
 *
 * The arithmetic is written once, for a vector of pixels: with 16 or 32 bytes it does the bulk of a row, with 4 bytes,
 * one pixel, what remains. A pixel is seen as two 16-bit lanes: blue and red in their low bytes, green and alpha in the
 * high ones. No product of two channels exceeds 16 bits.
 */
#ifndef ZUVO_ACCEL_ROW_LOOPS_H
#define ZUVO_ACCEL_ROW_LOOPS_H

#include <stddef.h>
#include <stdint.h>
#include <string.h>
#include <wchar.h>

#include "rows.h"

namespace {

#ifdef __AVX2__
constexpr size_t vector_bytes = 32;
#else
constexpr size_t vector_bytes = 16;
#endif

template <size_t Bytes>
struct Vector {
    typedef uint32_t Pixels __attribute__((vector_size(Bytes)));
    typedef uint16_t Lanes __attribute__((vector_size(Bytes)));
    typedef int16_t SignedLanes __attribute__((vector_size(Bytes)));

    static constexpr size_t count = Bytes / sizeof(uint32_t);
};

using Wide = Vector<vector_bytes>;
using Single = Vector<sizeof(uint32_t)>;

/// Each pixel's alpha in both of its lanes.
template <class V>
inline typename V::Lanes alpha_of(typename V::Pixels pixels)
{
    const typename V::Pixels alpha = pixels >> 24;
    return (typename V::Lanes)(alpha | alpha << 16);
}

/// The pixels' channels times @p factors, of which 256 is one.
template <class V>
inline typename V::Pixels scale(typename V::Pixels pixels, typename V::Lanes factors)
{
    const auto lanes = (typename V::Lanes)pixels;
    return (typename V::Pixels)(((lanes & 0xff) * factors >> 8) | ((lanes >> 8) * factors & 0xff00));
}

/// A source that is different at each pixel.
template <class V>
inline void blend_vector(uint32_t* target, const uint32_t* source)
{
    typename V::Pixels from, onto;
    memcpy(&from, source, sizeof(from));
    memcpy(&onto, target, sizeof(onto));
    const auto alpha = alpha_of<V>(from);
    onto = scale<V>(from, alpha + 1) + scale<V>(onto, 256 - alpha);
    memcpy(target, &onto, sizeof(onto));
}

constexpr size_t block_vectors = 4;
constexpr size_t block_count = block_vectors * Wide::count;

inline bool is_transparent_block(const uint32_t* source)
{
    Wide::Pixels any{};
    for (size_t i = 0; i < block_vectors; ++i) {
        Wide::Pixels pixels;
        memcpy(&pixels, source + i * Wide::count, sizeof(pixels));
        any |= pixels;
    }
    uint32_t alpha = 0;
    for (size_t i = 0; i < Wide::count; ++i)
        alpha |= any[i];
    return alpha < 0x01000000;
}

/// Most of what is blended is a scratch pad with a shape in it: what is transparent is not even read from the target.
void blend(uint32_t* target, const uint32_t* source, size_t count)
{
    size_t i = 0;
    for (; i + block_count <= count; i += block_count)
        if (!is_transparent_block(source + i))
            for (size_t j = i; j < i + block_count; j += Wide::count)
                blend_vector<Wide>(target + j, source + j);
    for (; i + Wide::count <= count; i += Wide::count)
        blend_vector<Wide>(target + i, source + i);
    for (; i < count; ++i)
        blend_vector<Single>(target + i, source + i);
}

/// A source that is @p scaled already and leaves the target @p rest of 256.
template <class V>
inline void blend_constant(uint32_t* target, uint32_t scaled, uint16_t rest)
{
    typename V::Pixels onto;
    memcpy(&onto, target, sizeof(onto));
    onto = scale<V>(onto, typename V::Lanes{} + rest) + scaled;
    memcpy(target, &onto, sizeof(onto));
}

void blend_colour(uint32_t* target, uint32_t colour, size_t count)
{
    const auto alpha = static_cast<uint16_t>(colour >> 24);
    const auto rest = static_cast<uint16_t>(256 - alpha);
    const uint32_t scaled = scale<Single>(Single::Pixels{} + colour, Single::Lanes{} + uint16_t(alpha + 1))[0];
    size_t i = 0;
    for (; i + Wide::count <= count; i += Wide::count)
        blend_constant<Wide>(target + i, scaled, rest);
    for (; i < count; ++i)
        blend_constant<Single>(target + i, scaled, rest);
}

/// One channel of each lane, in the low byte: the way from @p onto to @p from, of which 128 @p steps are the whole.
template <class V>
inline typename V::Lanes approach(typename V::Lanes from, typename V::Lanes onto, typename V::SignedLanes steps)
{
    const auto way = (typename V::SignedLanes)(from - onto) * steps >> 7;
    return onto + (typename V::Lanes)way;
}

template <class V>
inline void blend_rgb32_vector(uint32_t* target, const uint32_t* source)
{
    typename V::Pixels from, onto;
    memcpy(&from, source, sizeof(from));
    memcpy(&onto, target, sizeof(onto));
    const auto steps = (typename V::SignedLanes)((alpha_of<V>(from) >> 1) + 1);
    const auto from_lanes = (typename V::Lanes)from, onto_lanes = (typename V::Lanes)onto;
    const auto red_blue = approach<V>(from_lanes & 0xff, onto_lanes & 0xff, steps);
    const auto green = approach<V>(from_lanes >> 8, onto_lanes >> 8, steps);
    onto = (typename V::Pixels)(red_blue | green << 8) & 0x00ffffff;
    memcpy(target, &onto, sizeof(onto));
}

void blend_rgb32(uint32_t* target, const uint32_t* source, size_t count)
{
    size_t i = 0;
    for (; i + Wide::count <= count; i += Wide::count)
        blend_rgb32_vector<Wide>(target + i, source + i);
    for (; i < count; ++i)
        blend_rgb32_vector<Single>(target + i, source + i);
}

/// The C library has the best loop for this.
void fill(uint32_t* target, uint32_t colour, size_t count)
{
    static_assert(sizeof(wchar_t) == sizeof(uint32_t), "a wide character is a pixel");
    wmemset(reinterpret_cast<wchar_t*>(target), static_cast<wchar_t>(colour), count);
}

void expand(uint32_t* __restrict target, const uint8_t* __restrict indices, const uint32_t* __restrict palette,
            size_t count)
{
    for (size_t i = 0; i < count; ++i)
        target[i] = palette[indices[i]];
}

void expand_keyed(uint32_t* __restrict target, const uint8_t* __restrict indices, const uint32_t* __restrict palette,
                  uint8_t key, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        const uint32_t colour = palette[indices[i]], kept = target[i];
        target[i] = indices[i] != key ? colour : kept;
    }
}

void copy_keyed(uint8_t* __restrict target, const uint8_t* __restrict indices, uint8_t key, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        const uint8_t index = indices[i], kept = target[i];
        target[i] = index != key ? index : kept;
    }
}

constexpr Rows compiled_rows{fill, blend, blend_colour, blend_rgb32, expand, expand_keyed, copy_keyed};

} // namespace

#endif
