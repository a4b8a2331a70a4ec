/**
 * @file directfb_start.h
 * DirectFB's options before its start, and the wait for its end. Its internal headers are C only.
 */
#ifndef ZUVO_DIRECTFB_START_H
#define ZUVO_DIRECTFB_START_H

#include <stdbool.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Completes DirectFB's options between DirectFBInit and DirectFBCreate: where there is nothing to show pictures on,
 * they are drawn into memory only, quietly and without a cursor; where nothing says a size, it is @p width x @p height.
 *
 * @param has_window Whether there is a display for a window.
 */
void directfb_complete_options(int width, int height, bool has_window);

/** To be called when DirectFB has started. */
void directfb_note_start(void);

/**
 * Waits until a DirectFB that has come to its end since it was started has ended its last thread: a new start would meet
 * it. Returns at once while DirectFB is running.
 */
void directfb_await_end(void);

#ifdef __cplusplus
}
#endif

#endif
