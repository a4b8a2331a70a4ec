/**
 * @file state.h
 * What the driver takes, and how a job is made from DirectFB's record of a drawing call.
 */
#ifndef ZUVO_ACCEL_STATE_H
#define ZUVO_ACCEL_STATE_H

#include <directfb.h>
#include <core/gfxcard.h>
#include <core/state.h>

/// DirectFB asks whether the driver can do @p accel with this state: sets the function's bit if so.
void accel_check_state(void *driver_data, void *device_data, CardState *state, DFBAccelerationMask accel);

/// Makes the job of the call that follows.
void accel_set_state(void *driver_data, void *device_data, GraphicsDeviceFuncs *funcs, CardState *state,
                     DFBAccelerationMask accel);

#endif
