/**
 * @file window.h
 * What libzuvo needs of its window, which is a library of its own: it alone needs SDL.
 */
#ifndef ZUVO_WINDOW_H
#define ZUVO_WINDOW_H

#include <stdbool.h>

#include <directfb.h>

#ifdef __cplusplus
extern "C" {
#endif

/** How the window is to appear. */
typedef struct WindowOptions {
    bool full_screen;
    int width, height;              /**< Of the window, in the desktop's units; 0 for the picture's own size. */
} WindowOptions;

/** Writes the part @p area of a picture to @p target, @p pitch bytes a row, as pixels of DSPF_RGB32. */
typedef void (*WindowCopy)(const void *picture, const DFBRectangle *area, void *target, int pitch);

/** The operations of a window. They are for any thread, one at a time but for `draw` and `frame_time`. */
typedef struct ZuvoWindow {
    /** Connects to the display. Returns false, after one line on standard error, when there is none to be reached. */
    bool (*open)(const WindowOptions *options);

    /** Ends the window and its thread. */
    void (*close)(void);

    /** From now on the picture has this size in pixels and is black. Returns false when memory is short. */
    bool (*resize)(int width, int height);

    /** Has a part of the picture copied, once and before this returns, and shows it soon. */
    void (*draw)(const DFBRegion *part, WindowCopy copy, const void *picture);

    /** Microseconds from one frame of the display to the next. */
    long (*frame_time)(void);
} ZuvoWindow;

/** What the window's library exports: a record of type ZuvoWindow. */
#define WINDOW_SYMBOL "zuvo_window"

/** Whether the environment names a display. */
bool window_has_display(void);

/** Whether the environment names a display and the options do not switch the window off. */
bool window_is_wanted(void);

/**
 * Loads the library and opens the window.
 *
 * @return NULL where none is wanted, and, after one line on standard error, where there is none to be had.
 */
const ZuvoWindow *window_open(void);

#ifdef __cplusplus
}
#endif

#endif
