/**
 * @file input.h
 * The window's mouse and keyboard as one input device of DirectFB. Its events come from the window's thread.
 */
#ifndef ZUVO_WINDOW_INPUT_H
#define ZUVO_WINDOW_INPUT_H

#include <stdbool.h>

#include <SDL.h>

/** Whether DirectFB finds the device when it starts. */
void input_enable(bool is_enabled);

/** Hands an event of the mouse or the keyboard to DirectFB, and ignores all others. */
void input_take(const SDL_Event *event);

/** Presses and releases the Escape key. Returns whether it could be handed to DirectFB, which may not be ready for it. */
bool input_press_escape(void);

#endif
