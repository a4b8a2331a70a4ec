#ifndef ZUVO_WINDOW_KEYS_H
#define ZUVO_WINDOW_KEYS_H

#include <directfb.h>

#include <SDL.h>

/** DirectFB's number of a key: that of its letter or digit, else that of its place on the keyboard. */
DFBInputDeviceKeyIdentifier key_identifier(const SDL_Keysym *key);

/** The character of a key in the keyboard's layout, DIKS_NULL for keys without one. */
DFBInputDeviceKeySymbol key_symbol(const SDL_Keysym *key);

/** The first character of a text in UTF-8, DIKS_NULL beyond those that DirectFB knows. */
DFBInputDeviceKeySymbol key_symbol_of_text(const char *text);

#endif
