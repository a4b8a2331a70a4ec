/**
 * @file closing.h
 * What becomes of the program when its window is closed. For the window's thread alone.
 */
#ifndef ZUVO_WINDOW_CLOSING_H
#define ZUVO_WINDOW_CLOSING_H

#include <stdbool.h>

/** Nothing was closed. */
void closing_reset(void);

/** The window was closed, or the whole display has gone: tells the program in DirectFB's way, by the Escape key. */
void closing_begin(bool is_display_lost);

/** Ends a program that is still there 2 seconds later: by SIGTERM if it catches that, at last without asking. */
void closing_insist(void);

#endif
