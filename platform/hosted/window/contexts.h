/**
 * @file contexts.h
 * DirectFB crashes when an input event reaches a layer's context between its last release and its end, because the context
 * then detaches itself twice from the device. A program that ends on a key does just that: it hears of the key before its
 * contexts do. So contexts are held while events are on their way.
 */
#ifndef ZUVO_WINDOW_CONTEXTS_H
#define ZUVO_WINDOW_CONTEXTS_H

#include <stdbool.h>

/** DirectFB runs, with the window's input device. */
void contexts_open(void);

/** Lets all contexts go. */
void contexts_close(void);

/** Holds all contexts. Returns whether they will live long enough for an event that is dispatched next. */
bool contexts_hold(void);

/** Lets the contexts go when DirectFB has handed on what was dispatched until now. */
void contexts_release_later(void);

#endif
