/**
 * @file row_loops.h
 * The loops behind the row functions. Each table of rows.h compiles them once more, for another processor.
 */
#ifndef ZUVO_ACCEL_ROW_LOOPS_H
#define ZUVO_ACCEL_ROW_LOOPS_H

#include <stddef.h>
#include <stdint.h>

#include "blending.h"
#include "rows.h"

namespace {

// Where there are no vectors the compiler would take them apart, which is slower than pixel by pixel but for stores alone.
#if defined __AVX2__
using Wide = Vector<32>;
using Narrow = Vector<16>;
#elif defined __SSE2__ || defined __ARM_NEON || defined __ALTIVEC__
using Wide = Vector<16>;
using Narrow = Vector<16>;
#else
using Wide = Single;
using Narrow = Single;
#endif
using Stored = Vector<(Wide::count < 4 ? 16 : sizeof(Wide::Pixels))>;

/// How far it is to the next multiple of a vector's size: at least one pixel, at most a vector.
template <class V>
inline size_t pixels_to_boundary(const uint32_t* target)
{
    const auto word = static_cast<size_t>(reinterpret_cast<uintptr_t>(target) / sizeof(uint32_t));
    return V::count - word % V::count;
}

/// Writes a row of one or two vectors; they may overlap, so both are worked out before one is stored.
template <class V, class Result>
inline void write_ends(uint32_t* target, size_t count, const Result& result)
{
    const typename V::Pixels first = result(V{}, 0);
    const typename V::Pixels last = result(V{}, count - V::count);
    store<V>(target, first);
    store<V>(target + count - V::count, last);
}

/// Writes a row of at least one vector. The first vector and the last one may overlap those beside them, which begin at
/// multiples of their size; so both are worked out before anything is stored. Thirteen pixels in vectors of four:
///
///     boundaries    |   |   |   |
///     first       aaaa
///     between       bbbbbbbb
///     last                 cccc
///
/// What lies as many pixels as @p below further on, most often the row below, is fetched meanwhile.
template <class V, class Result>
inline void write_vectors(uint32_t* target, size_t count, size_t below, const Result& result)
{
    const size_t last = count - V::count;
    const typename V::Pixels first_pixels = result(V{}, 0);
    const typename V::Pixels last_pixels = result(V{}, last);
    size_t i = pixels_to_boundary<V>(target);
    for (; i + V::count < last; i += 2 * V::count) {
        __builtin_prefetch(target + i + below, 1);
        store<V>(target + i, result(V{}, i));
        store<V>(target + i + V::count, result(V{}, i + V::count));
    }
    if (i < last)
        store<V>(target + i, result(V{}, i));
    store<V>(target, first_pixels);
    store<V>(target + last, last_pixels);
}

/// Writes a row; `result(V{}, i)` returns the pixels of the vector that begins at the row's pixel i.
template <class Result>
inline void write_row(uint32_t* target, size_t count, size_t below, const Result& result)
{
    if (count > 2 * Wide::count)
        return write_vectors<Wide>(target, count, below, result);
    if (count >= Wide::count)
        return write_ends<Wide>(target, count, result);
    if (count >= Narrow::count)
        return write_ends<Narrow>(target, count, result);
    for (size_t i = 0; i < count; ++i)
        store<Single>(target + i, result(Single{}, i));
}

/// Calls `write_span(target, count, below)` for each span; as many pixels as @p below further on lies the next row. The
/// record is a copy, which the pixels that are stored cannot be part of.
template <class WriteSpan>
inline void write_spans(const RowSpans rows, const WriteSpan& write_span)
{
    auto* row = reinterpret_cast<uint8_t*>(rows.first_row);
    const RowSpan* spans = rows.spans;
    const size_t below = rows.pitch / sizeof(uint32_t);
    for (size_t i = 0; i < rows.count; ++i, row += rows.pitch, spans += rows.step) {
        for (size_t part = 0; part < rows.parts; ++part) {
            const int left = spans[part].left, right = spans[part].right;
            if (left < right)
                write_span(reinterpret_cast<uint32_t*>(row) + left, static_cast<size_t>(right - left), below);
        }
    }
}

/// Fills a row of more than two vectors in the order of its addresses, and fetches the row below.
template <class V>
inline void fill_vectors(uint32_t* target, uint32_t colour, size_t count, size_t below)
{
    const typename V::Pixels pixels = typename V::Pixels{} + colour;
    uint32_t* const last = target + count - V::count;
    store<V>(target, pixels);
    target += pixels_to_boundary<V>(target);
    for (; target + V::count < last; target += 2 * V::count) {
        __builtin_prefetch(target + below, 1);
        store<V>(target, pixels);
        store<V>(target + V::count, pixels);
    }
    if (target < last)
        store<V>(target, pixels);
    store<V>(last, pixels);
}

inline void fill_row(uint32_t* target, uint32_t colour, size_t count, size_t below)
{
    if (count > 2 * Stored::count)
        return fill_vectors<Stored>(target, colour, count, below);
    write_row(target, count, below, [colour](auto v, size_t) { return typename decltype(v)::Pixels{} + colour; });
}

void fill(uint32_t* target, uint32_t colour, size_t count) { fill_row(target, colour, count, 0); }

void fill_spans(const RowSpans* rows, uint32_t colour)
{
    write_spans(*rows, [colour](uint32_t* target, size_t count, size_t below) {
        fill_row(target, colour, count, below);
    });
}

constexpr size_t block_vectors = 4;
constexpr size_t block_count = block_vectors * Wide::count;

inline bool is_transparent_block(const uint32_t* source)
{
    Wide::Pixels any{};
    for (size_t i = 0; i < block_vectors; ++i)
        any |= load<Wide>(source + i * Wide::count);
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
                store<Wide>(target + j, blended<Wide>(load<Wide>(source + j), load<Wide>(target + j)));

    target += i;
    source += i;
    write_row(target, count - i, 0, [target, source](auto v, size_t j) {
        using V = decltype(v);
        return blended<V>(load<V>(source + j), load<V>(target + j));
    });
}

inline void blend_colour_row(uint32_t* target, const ConstantSource& source, size_t count, size_t below)
{
    write_row(target, count, below, [target, source](auto v, size_t i) {
        using V = decltype(v);
        return source.blended<V>(load<V>(target + i));
    });
}

void blend_colour(uint32_t* target, uint32_t colour, size_t count)
{
    blend_colour_row(target, ConstantSource(colour), count, 0);
}

void blend_colour_spans(const RowSpans* rows, uint32_t colour)
{
    const ConstantSource source(colour);
    write_spans(*rows, [source](uint32_t* target, size_t count, size_t below) {
        blend_colour_row(target, source, count, below);
    });
}

void prepare_blend(uint32_t* scaled, uint32_t* rests, const uint32_t* source, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        const auto pixel = load<Single>(source + i);
        store<Single>(scaled + i, scaled_source<Single>(pixel));
        store<Single>(rests + i, (Single::Pixels)rest_of<Single>(pixel));
    }
}

void blend_prepared(uint32_t* target, const uint32_t* scaled, const uint32_t* rests, size_t count)
{
    write_row(target, count, 0, [target, scaled, rests](auto v, size_t i) {
        using V = decltype(v);
        return scale<V>(load<V>(target + i), (typename V::Lanes)load<V>(rests + i)) + load<V>(scaled + i);
    });
}

void blend_rgb32(uint32_t* target, const uint32_t* source, size_t count)
{
    write_row(target, count, 0, [target, source](auto v, size_t i) {
        using V = decltype(v);
        return blended_rgb32<V>(load<V>(source + i), load<V>(target + i));
    });
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

constexpr Rows compiled_rows{fill,           fill_spans,  blend,  blend_colour, blend_colour_spans, prepare_blend,
                             blend_prepared, blend_rgb32, expand, expand_keyed, copy_keyed};

} // namespace

#endif
