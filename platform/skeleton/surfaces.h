/**
 * @file surfaces.h
 * The surface map: from a handle to memory. It is what a board replaces first: here a handle is DirectFB's id of the
 * surface, and DirectFB's core, whose headers are C only, tells where its pixels are.
 */
#ifndef BOARD_SURFACES_H
#define BOARD_SURFACES_H

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The pixels of a surface, 0xAARRGGBB or 0x00RRGGBB each. */
typedef struct Memory {
    uint8_t *address;
    int pitch;                      /**< Bytes from one row to the next. */
    int width, height;
} Memory;

/** What a surface is opened for; one of each can be open at a time. */
typedef enum SurfaceUse { SURFACE_TARGET, SURFACE_PATTERN } SurfaceUse;

/** Returns whether the engine can use the surface of a handle, a zuvo_error. */
int surface_check(unsigned int handle);

/** Locks the back buffer of a surface. Returns a zuvo_error; close it after success only. */
int surface_open(SurfaceUse use, unsigned int handle, Memory *ret_memory);

/** Unlocks it again. */
void surface_close(SurfaceUse use);

#ifdef __cplusplus
}
#endif

#endif
