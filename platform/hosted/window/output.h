/**
 * @file output.h
 * Two ways for a picture into SDL's window.
 */
#ifndef ZUVO_WINDOW_OUTPUT_H
#define ZUVO_WINDOW_OUTPUT_H

#include "picture.h"

/** A window and the part of it that shows the picture, in its pixels; the rest is black. */
typedef struct OutputFrame {
    SDL_Window *window;
    SDL_Rect box;
    bool is_whole_multiple;     /**< Whether the box is the picture's size times a whole number. */
} OutputFrame;

/** A way. Each operation returns false when SDL fails. */
typedef struct Output {
    bool (*open)(SDL_Window *window);

    /** The window, or the picture, which is locked, has another size now. */
    bool (*fit)(const OutputFrame *frame, Picture *picture);

    /** Takes the dirty part of the locked picture. */
    bool (*take)(const OutputFrame *frame, const Picture *picture);

    /** Shows what was taken. */
    void (*present)(const OutputFrame *frame);

    void (*close)(void);
} Output;

/** By memory that the window shares with the X server. At 1:1 the picture is kept there. */
extern const Output surface_output;

/** By a texture: everywhere else SDL has no quicker way, and no other one to the pixels of a scaled Wayland desktop. */
extern const Output texture_output;

#endif
