/// The scratch pad with the other pixel format that it can be built with.
#include "toolkit/palette.h"
#include "toolkit/scratch_pad.h"

#include <cstdio>

#define DSPF_ARGB DSPF_LUT8
#include "../../../src/toolkit/scratch_pad.cpp"
