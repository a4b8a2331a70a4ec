/**
 * @file directfb_core.h
 * What the engine needs of DirectFB's inside, whose headers are C only: a surface's memory, and how a line is clipped.
 */
#ifndef ZUVO_DIRECTFB_CORE_H
#define ZUVO_DIRECTFB_CORE_H

#include <stdbool.h>

#include <directfb.h>

#ifdef __cplusplus
extern "C" {
#endif

/** What a surface is opened for: each is open at most once at a time. */
typedef enum DirectFBCoreUse {
    DIRECTFB_CORE_ONLY_TARGET,      /**< While nothing else is open, which takes fewer locks; other threads wait for it. */
    DIRECTFB_CORE_TARGET,
    DIRECTFB_CORE_PATTERN
} DirectFBCoreUse;

/** A surface's pixels in memory, for as long as they are locked. */
typedef struct DirectFBCorePixels {
    void *address;
    unsigned int pitch;             /**< Bytes from one row to the next. */
    int width;
    int height;
    DFBSurfacePixelFormat format;
} DirectFBCorePixels;

/** What became of a surface that was asked for. */
typedef enum DirectFBCoreResult {
    DIRECTFB_CORE_OK,
    DIRECTFB_CORE_UNKNOWN,          /**< There is none of that id, it was released, or DirectFB is not running. */
    DIRECTFB_CORE_NOT_LOCKED
} DirectFBCoreResult;

/** Finds the pixel format of the surface @p id. */
DirectFBCoreResult directfb_core_get_format(DFBSurfaceID id, DFBSurfacePixelFormat *ret_format);

/** Finds the surface @p id and locks its back buffer; close it after success only. */
DirectFBCoreResult directfb_core_open(DirectFBCoreUse use, DFBSurfaceID id, DirectFBCorePixels *ret_pixels);

/** Unlocks the surface again and lets it go. */
void directfb_core_close(DirectFBCoreUse use);

/** Gives up what is kept about DirectFB's surfaces from one call to the next, while DirectFB goes on. */
void directfb_core_forget_surfaces(void);

/** Cuts a line to @p clip as DirectFB does before it draws one. Returns false when nothing is left. */
bool directfb_core_clip_line(const DFBRegion *clip, DFBRegion *line);

#ifdef __cplusplus
}
#endif

#endif
