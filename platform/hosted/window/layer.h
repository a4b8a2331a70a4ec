#ifndef ZUVO_WINDOW_LAYER_H
#define ZUVO_WINDOW_LAYER_H

#include "window.h"

/** Registers the opened window's screen with its one layer. Without a window, NULL, the layer is drawn into memory only. */
void layer_register(const ZuvoWindow *opened);

#endif
