/*
 * What the examples share: their options, a screen to draw on that is a window, a console or a PNG file, and its end.
 */
#ifndef SCREEN_H
#define SCREEN_H

#include <dtkhddvd.h>

typedef struct Screen {
    IDirectFB *dfb;
    IDirectFBSurface *surface; /* ARGB; screen_show shows what has been drawn on it. */
    IDirectFBEventBuffer *events;
    const char *png;           /* The file that takes the picture instead of a display, or NULL. */
    int has_ended;
} Screen;

/* Ends the program with a line on standard error when a call of DirectFB or the toolkit fails. */
void check(DFBResult result);

/*
 * Reads the command line and opens the screen. --help, which shows `what` the program does, --version and a wrong option
 * end the program before anything is opened.
 */
void screen_open(Screen *screen, int argc, char **argv, const char *what, int width, int height);

/* Shows the picture. With --png it is written instead, and that is the end. */
void screen_show(Screen *screen);

/* Writes the picture to a PNG file. Returns 0 and says why when that fails. */
int screen_save(const Screen *screen, const char *file);

/*
 * Waits for an event of a keyboard, a mouse or a touch screen, so many milliseconds at most. Returns whether there is one.
 * The screen ends with Escape, which closing the window presses, with a signal, and when nobody reads standard output any
 * more.
 */
int screen_next_event(Screen *screen, unsigned milliseconds, DFBInputEvent *event);

/* Waits for the screen's end. */
void screen_await_end(Screen *screen);

void screen_close(Screen *screen);

#endif
