#pragma once

#include "stage.h"

namespace differential {

using namespace conformance;

/// The stage of this process, on the platform and DirectFB without a display.
Stage& the_stage();

} // namespace differential
