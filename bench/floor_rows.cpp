#include "floor_rows.h"

#include <algorithm>

#ifdef __AVX2__
#include <immintrin.h>
#endif

namespace bench {

namespace {

/// Source over destination on one pixel, two channels in each half of the work.
std::uint32_t over(std::uint32_t source, std::uint32_t destination)
{
    const std::uint32_t rest = 256 - (source >> 24);
    const std::uint32_t even = ((destination & 0xff00ff) * rest >> 8) & 0xff00ff;
    const std::uint32_t odd = (destination >> 8 & 0xff00ff) * rest & 0xff00ff00;
    return source + (even | odd);
}

#ifdef __AVX2__

/// The same on eight pixels; @p rest holds 256 less the alpha in each 16 bits.
__m256i over(__m256i source, __m256i rest, __m256i destination)
{
    const __m256i mask = _mm256_set1_epi32(0xff00ff);
    const __m256i even = _mm256_srli_epi16(_mm256_mullo_epi16(_mm256_and_si256(destination, mask), rest), 8);
    const __m256i odd = _mm256_mullo_epi16(_mm256_and_si256(_mm256_srli_epi16(destination, 8), mask), rest);
    return _mm256_add_epi8(source, _mm256_or_si256(even, _mm256_andnot_si256(mask, odd)));
}

__m256i load(const std::uint32_t* pixels)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(pixels));
}

void store(std::uint32_t* pixels, __m256i value)
{
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(pixels), value);
}

/// 256 less the alpha of each of eight pixels, in both 16-bit halves of the pixel.
__m256i rest_of(__m256i source)
{
    const __m256i alpha = _mm256_srli_epi32(source, 24);
    return _mm256_sub_epi16(_mm256_set1_epi16(256), _mm256_or_si256(alpha, _mm256_slli_epi32(alpha, 16)));
}

#endif

void store_plain(std::uint32_t* row, int width, std::uint32_t colour)
{
    std::fill_n(row, width, colour);
}

#ifdef __AVX2__

/// Stores a row of at least 16 pixels with `put(place, value)` for each whole vector at a multiple of its size.
template <typename Put>
void store_vectors(std::uint32_t* row, int width, std::uint32_t colour, const Put& put)
{
    const __m256i value = _mm256_set1_epi32(static_cast<int>(colour));
    std::uint32_t* const last = row + width - 8;
    store(row, value);
    for (row += 8 - reinterpret_cast<std::uintptr_t>(row) / 4 % 8; row < last; row += 8)
        put(reinterpret_cast<__m256i*>(row), value);
    store(last, value);
}

void store_aligned(std::uint32_t* row, int width, std::uint32_t colour)
{
    if (width < 16)
        store_plain(row, width, colour);
    else
        store_vectors(row, width, colour, [](__m256i* place, __m256i value) { _mm256_store_si256(place, value); });
}

/// Past the caches.
void store_streamed(std::uint32_t* row, int width, std::uint32_t colour)
{
    if (width < 16)
        return store_plain(row, width, colour);
    store_vectors(row, width, colour, [](__m256i* place, __m256i value) { _mm256_stream_si256(place, value); });
    _mm_sfence();
}

/// The processor's own loop.
void store_string(std::uint32_t* row, int width, std::uint32_t colour)
{
    std::size_t count = static_cast<std::size_t>(width);
    asm volatile("rep stosl" : "+D"(row), "+c"(count) : "a"(colour) : "memory");
}

#endif

} // namespace

std::vector<PaintRow> ways_to_store()
{
#ifdef __AVX2__
    return {store_plain, store_aligned, store_streamed, store_string};
#else
    return {store_plain};
#endif
}

void blend_row(std::uint32_t* row, int width, std::uint32_t colour)
{
    int x = 0;
#ifdef __AVX2__
    const __m256i source = _mm256_set1_epi32(static_cast<int>(colour));
    const __m256i rest = rest_of(source);
    for (; x + 8 <= width; x += 8)
        store(row + x, over(source, rest, load(row + x)));
#endif
    for (; x < width; ++x)
        row[x] = over(colour, row[x]);
}

void blend_texture_row(std::uint32_t* row, int width, const std::uint32_t* source)
{
    int x = 0;
#ifdef __AVX2__
    for (; x + 8 <= width; x += 8) {
        const __m256i pixels = load(source + x);
        const __m256i rest = rest_of(pixels);
        store(row + x, over(pixels, rest, load(row + x)));
    }
#endif
    for (; x < width; ++x)
        row[x] = over(source[x], row[x]);
}

} // namespace bench
