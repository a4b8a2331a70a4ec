/**
 * @file frame.h
 * The window on the desktop: its size, its place for the picture, and what is shown there. For the window's thread alone.
 */
#ifndef ZUVO_WINDOW_FRAME_H
#define ZUVO_WINDOW_FRAME_H

#include "output.h"

/** How the window is to appear when there is a picture. */
void frame_reset(const WindowOptions *options);

/** Shows what has changed of the picture, the first time in a new window. */
void frame_show(void);

/** The window was covered, or has another size now: shows the whole picture. */
void frame_renew(void);

void frame_toggle_full_screen(void);

/** Takes the window off the desktop, though the program goes on. */
void frame_hide(void);

/** The picture's pixel at a place of the window, or the one that is next to it. */
SDL_Point frame_to_picture(int x, int y);

/** The picture's size in pixels. */
SDL_Point frame_picture_size(void);

void frame_close(void);

#endif
