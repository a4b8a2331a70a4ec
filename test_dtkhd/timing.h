#ifndef TEST_DTKHD_TIMING_H
#define TEST_DTKHD_TIMING_H

#include <sys/time.h>

namespace dtk {

/// The time of day in microseconds, cut to 32 bits.
int microseconds_now();

/// Remembers when the last 20 frames ended.
class FrameClock {
public:
    /// Notes that frame @p number ends now. Every 20th frame reports the frame rate and the time of each phase.
    void note_end(int number);

private:
    timeval ends_[20] = {};
};

} // namespace dtk

#endif
