/**
 * @file display.h
 * The connection to the X server or Wayland compositor. For the window's thread alone.
 */
#ifndef ZUVO_WINDOW_DISPLAY_H
#define ZUVO_WINDOW_DISPLAY_H

#include "output.h"

/**
 * Returns false, after one line on standard error, when no display can be reached.
 *
 * @param when_lost Called, in the middle of a call of SDL, when the X server has gone. It must not return, nor call SDL.
 * @param when_window_lost Called, in the middle of a call of SDL, when another program has destroyed the window. It must not
 *     call SDL.
 */
bool display_connect(void (*when_lost)(void), void (*when_window_lost)(void));

void display_disconnect(void);

/** Microseconds from one frame to the next. */
long display_frame_time(void);

/** The way for pictures to this display. */
const Output *display_output(void);

#endif
