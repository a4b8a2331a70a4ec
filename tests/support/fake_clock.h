#pragma once

namespace fake {

/// The clock behind gettimeofday: it moves on by one step with each look.
struct Clock {
    long long microseconds = 1800000000LL * 1000000;
    int step = 1000;
};

Clock& clock();

} // namespace fake
