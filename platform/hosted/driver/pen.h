/**
 * @file pen.h
 * A pen: a small picture of one colour that a batch of blits repeats along a path. Each stamp paints only what an
 * earlier one, a pixel away, has left out.
 */
#ifndef ZUVO_ACCEL_PEN_H
#define ZUVO_ACCEL_PEN_H

#include <directfb.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum {
    ACCEL_PEN_SIZE = 64, /**< Largest width and height. */
    ACCEL_PEN_RUNS = 256,
    ACCEL_PEN_SHIFTS = 9 /**< From a stamp to one of its neighbours or itself. */
};

/// Neighbouring pixels of a row.
typedef struct AccelRun {
    ptrdiff_t offset; /**< Bytes from the stamp's first pixel to the run's. */
    int x, y, count;
} AccelRun;

/// Runs, those of a single pixel at the front. Most of what a stamp adds to its neighbour is single pixels.
typedef struct AccelRunList {
    bool is_built;
    unsigned int single_count, count;
    AccelRun runs[ACCEL_PEN_RUNS];
} AccelRunList;

typedef struct AccelPen {
    int width, height;
    uint32_t colour; /**< The target pixel that it leaves. */
    size_t pitch;    /**< The target's, like the next. */
    int pixel_bytes;
    uint64_t visible[ACCEL_PEN_SIZE]; /**< Bit x of a row: its pixel x is painted. */
    AccelRunList whole;
    AccelRunList left_out[ACCEL_PEN_SHIFTS];
} AccelPen;

#ifdef __cplusplus
}

struct AccelJob;

/// Takes the pen from a part of the job's source. False: it is none, being too large or of several colours.
bool accel_take_pen(AccelJob &job, const DFBRectangle &rect);

/// What a stamp paints beyond an earlier one that lies (-dx, -dy) away, a pixel at most.
const AccelRunList &accel_left_out(AccelPen &pen, int dx, int dy);
#endif

#endif
