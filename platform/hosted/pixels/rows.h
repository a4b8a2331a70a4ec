/**
 * @file rows.h
 * Rows of pixels: fill, copy and blend, in the arithmetic of DirectFB's renderer. Nothing here knows of DirectFB.
 *
 * Pixels are 32-bit words 0xAARRGGBB, neighbours in memory, aligned to 4 bytes. Rows may be of any length, 0 included;
 * source and target do not overlap.
 */
#ifndef ZUVO_ACCEL_ROWS_H
#define ZUVO_ACCEL_ROWS_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Neighbouring pixels of one row: the columns from left up to, but without, right. Empty when right is not greater.
typedef struct RowSpan {
    int left, right;
} RowSpan;

/// Spans in each of @p count rows that lie below each other.
typedef struct RowSpans {
    uint32_t *first_row;  /**< The pixel in column 0 of the first row. */
    size_t pitch;         /**< Bytes from a row to the next. */
    const RowSpan *spans;
    size_t step;          /**< From a row's first span to the next row's; 0 when all rows have the same ones. */
    size_t count;
    size_t parts;         /**< Spans of one row, neighbours in memory. */
} RowSpans;

/// One set of row functions, all compiled for the same processor.
typedef struct Rows {
    /// Stores @p colour @p count times.
    void (*fill)(uint32_t *target, uint32_t colour, size_t count);

    /// Stores @p colour in every pixel of the spans.
    void (*fill_spans)(const RowSpans *rows, uint32_t colour);

    /// Each channel, alpha included, becomes ((a + 1) * source >> 8) + ((256 - a) * target >> 8), a being the source's
    /// alpha.
    void (*blend)(uint32_t *target, const uint32_t *source, size_t count);

    /// The same with one colour as the source of every pixel.
    void (*blend_colour)(uint32_t *target, uint32_t colour, size_t count);

    /// Blends one colour with every pixel of the spans.
    void (*blend_colour_spans)(const RowSpans *rows, uint32_t colour);

    /// Works out what blending a source takes, for sources that are blended often: its channels times a + 1, and
    /// 256 - a in both halves of a word.
    void (*prepare_blend)(uint32_t *scaled, uint32_t *rests, const uint32_t *source, size_t count);

    /// Blends a source of which prepare_blend has worked out @p scaled and @p rests.
    void (*blend_prepared)(uint32_t *target, const uint32_t *scaled, const uint32_t *rests, size_t count);

    /// Onto pixels without alpha: target + ((source - target) * ((a >> 1) + 1) >> 7) a channel, the top byte becomes 0.
    void (*blend_rgb32)(uint32_t *target, const uint32_t *source, size_t count);

    /// Looks up indices in a palette of 256 entries.
    void (*expand)(uint32_t *target, const uint8_t *indices, const uint32_t *palette, size_t count);

    /// Looks up indices and leaves the target as it is where the index is @p key.
    void (*expand_keyed)(uint32_t *target, const uint8_t *indices, const uint32_t *palette, uint8_t key, size_t count);

    /// Copies indices except @p key.
    void (*copy_keyed)(uint8_t *target, const uint8_t *indices, uint8_t key, size_t count);
} Rows;

extern const Rows baseline_rows;

#if defined __x86_64__ || defined __i386__
/// Only for a processor that has AVX2.
extern const Rows avx2_rows;
#endif

/// Returns the fastest set that this processor can run.
const Rows *choose_rows(void);

#ifdef __cplusplus
}
#endif

#endif
