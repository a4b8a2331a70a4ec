/**
 * @file accel.h
 * A DirectFB graphics driver that runs on the CPU: DirectFB's own calls, done with vector instructions, pixel for pixel
 * what DirectFB's renderer would have done. README.md in this folder explains how it works.
 */
#ifndef ZUVO_ACCEL_H
#define ZUVO_ACCEL_H

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Offers the driver to DirectFB. To be called after DirectFBInit and before DirectFBCreate; a second call changes
 * nothing, and the offer outlasts the release of DirectFB. DirectFB's option no-hardware refuses it, as do systems with
 * graphics hardware of their own.
 */
void accel_register(void);

/** Whether the DirectFB that is running now draws with this driver: 1 or 0. */
int accel_is_on(void);

#ifdef __cplusplus
}
#endif

#endif
