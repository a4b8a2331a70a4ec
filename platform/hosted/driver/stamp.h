/**
 * @file stamp.h
 * A batch of blits that repeats a pen along a path. Each stamp paints only what an earlier one, a pixel away, has left
 * out.
 */
#ifndef ZUVO_ACCEL_STAMP_H
#define ZUVO_ACCEL_STAMP_H

#include "job.h"

/// Stamps the pen that was taken, its top left corner at each of the points.
void accel_stamp(AccelJob& job, const DFBPoint* points, unsigned int count);

#endif
