/**
 * @file job.h
 * What a drawing call works on: filled by state.c from DirectFB's own record before each call, read by the drawing
 * functions, which know DirectFB's public types only. There is one, in the driver data that DirectFB allocates;
 * DirectFB holds its graphics lock while a job is filled and drawn.
 */
#ifndef ZUVO_ACCEL_JOB_H
#define ZUVO_ACCEL_JOB_H

#include <directfb.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include "pen.h"
#include "pixels/rows.h"

#ifdef __cplusplus
extern "C" {
#endif

/// The locked memory of a surface.
typedef struct AccelImage {
    uint8_t *pixels;
    size_t pitch; /**< Bytes from a row to the next. */
    int width, height;
    int pixel_bytes; /**< 4 or 1. */
} AccelImage;

/// How a blit turns source pixels into target pixels.
typedef enum AccelBlit {
    ACCEL_COPY, /**< Stored as they are. */
    ACCEL_BLEND,
    ACCEL_BLEND_RGB32, /**< Onto a target without alpha. */
    ACCEL_EXPAND,      /**< Indices looked up in the palette. */
    ACCEL_EXPAND_BLEND /**< Looked up, then blended. */
} AccelBlit;

/// A palette as pixels of the target, and what they were made from.
typedef struct AccelPalette {
    DFBColor entries[256];
    uint32_t pixels[256];
    uint32_t set_bits; /**< Set in every pixel. */
    int transparent;   /**< The index that became the pixel 0, -1 for none. */
} AccelPalette;

typedef struct AccelJob {
    const Rows *rows;

    bool is_possible; /**< False: this call is left to DirectFB's renderer. */
    AccelImage target;
    DFBRegion clip; /**< Inside the target, its last row and column included. */

    uint32_t colour; /**< What fills store: a pixel value of the target. */

    AccelBlit blit;
    AccelImage source;
    bool is_keyed;
    uint8_t key; /**< The index that a keyed blit leaves out. */
    AccelPalette palette;
    AccelPen pen;
} AccelJob;

/** @name DirectFB's drawing functions. Each draws all of it, or returns false and has drawn nothing. @{ */

bool accel_fill_rectangle(void *driver_data, void *device_data, DFBRectangle *rect);
bool accel_blit(void *driver_data, void *device_data, DFBRectangle *rect, int x, int y);
bool accel_batch_blit(void *driver_data, void *device_data, const DFBRectangle *rects, const DFBPoint *points,
                      unsigned int count, unsigned int *ret_count);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
