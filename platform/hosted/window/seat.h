#ifndef ZUVO_WINDOW_SEAT_H
#define ZUVO_WINDOW_SEAT_H

#include <stdbool.h>

/** Whether the Wayland compositor is there and has a seat, the keyboard and mouse that SDL crashes without. */
bool seat_is_there(void);

#endif
