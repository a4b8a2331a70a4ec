#pragma once

#include "stage.h"

#include <string>
#include <vector>

namespace conformance {

/// How long one primitive takes on either back end, in nanoseconds.
struct Speed {
    std::string name;
    double software, hardware;

    double ratio() const { return software / hardware; }
};

/// Measures every primitive, filled and outlined, opaque and translucent.
std::vector<Speed> measure_speeds(const Stage& stage);

} // namespace conformance
