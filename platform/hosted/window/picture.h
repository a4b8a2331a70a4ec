/**
 * @file picture.h
 * The picture on its way from the application's threads to the window's.
 */
#ifndef ZUVO_WINDOW_PICTURE_H
#define ZUVO_WINDOW_PICTURE_H

#include <SDL.h>

#include "window.h"

/** Rows of 32-bit pixels, 0xRRGGBB, whose upper 8 bits mean nothing. */
typedef struct Picture {
    int width, height;
    unsigned char *pixels;
    int pitch;
    SDL_Rect dirty;         /**< What has changed since it was shown; empty when nothing has. */
    bool is_new;            /**< Whether its size has changed since it was shown. */
} Picture;

/** Forgets the picture. */
void picture_reset(void);

/** For the application's threads: the operations of ZuvoWindow of these names. */
bool picture_resize(int width, int height);
void picture_draw(const DFBRegion *part, WindowCopy copy, const void *source);

/** Lets the window's thread end. */
void picture_end(void);

/**
 * For the window's thread: waits until something has changed and it is @p due, a time of picture_clock, but for at most
 * @p longest milliseconds.
 *
 * @return Whether there is something to show.
 */
bool picture_await(long long due, int longest);

/** Microseconds since some moment in the past. */
long long picture_clock(void);

/** Whether the window's thread shall end. */
bool picture_has_ended(void);

/** The picture, which nobody else changes until it is unlocked again. Unlocking it without need does nothing. */
Picture *picture_lock(void);
void picture_unlock(void);

/**
 * Keeps the locked picture in @p pixels from now on, @p pitch bytes a row, or in memory of its own where that is NULL. The
 * memory that it leaves has to be there still.
 */
void picture_move(void *pixels, int pitch);

#endif
