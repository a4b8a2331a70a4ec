#include "support/fake_clock.h"

#include <sys/time.h>

namespace fake {

Clock& clock()
{
    static Clock the_clock;
    return the_clock;
}

} // namespace fake

extern "C" int gettimeofday(timeval* now, void*) noexcept
{
    fake::Clock& clock = fake::clock();
    clock.microseconds += clock.step;
    now->tv_sec = static_cast<time_t>(clock.microseconds / 1000000);
    now->tv_usec = static_cast<suseconds_t>(clock.microseconds % 1000000);
    return 0;
}
