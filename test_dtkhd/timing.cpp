#include "timing.h"

#include <algorithm>
#include <cstdio>

#include <dtkhddvd.h>

int clear_time_start, clear_time_stop;
int flip_time_start, flip_time_stop;
int sync_time_start, sync_time_stop;
int line_time_start, line_time_stop;
int rec_time_start, rec_time_stop;
int pol_time_start, pol_time_stop;
int ell_time_start, ell_time_stop;
int sor_time_start, sor_time_stop;
int soe_time_start, soe_time_stop;
int grey_time_start, grey_time_stop;

namespace dtk {

namespace {

struct PhaseTime {
    const char* name;
    const int* start;
    const int* stop;
};

const PhaseTime phase_times[] = {
    {"Flip", &flip_time_start, &flip_time_stop},
    {"Sync", &sync_time_start, &sync_time_stop},
    {"Line", &line_time_start, &line_time_stop},
    {"Rect", &rec_time_start, &rec_time_stop},
    {"Poly", &pol_time_start, &pol_time_stop},
    {"Elli", &ell_time_start, &ell_time_stop},
    {"SOR ", &sor_time_start, &sor_time_stop},
    {"SOE ", &soe_time_start, &soe_time_stop},
    {"GREY", &grey_time_start, &grey_time_stop},
    {"CLEA", &clear_time_start, &clear_time_stop},
};

int milliseconds_between(const timeval& start, const timeval& stop)
{
    const auto seconds = static_cast<int>(stop.tv_sec - start.tv_sec);
    const auto microseconds = static_cast<int>(stop.tv_usec - start.tv_usec);
    return seconds * 1000 + microseconds / 1000;
}

/// The rate in thousandths of a frame per second at which 20 frames take @p milliseconds. Short runs would divide by
/// zero in the usual tenths of a second: they are computed from the milliseconds, of which there is one at least.
int frame_rate(int milliseconds)
{
    if (const int tenths = milliseconds / 100)
        return 200000 / tenths;
    return 20000000 / std::max(milliseconds, 1);
}

void report(int milliseconds)
{
    const int rate = frame_rate(milliseconds);
    std::fprintf(stderr, "%d msec for the last 20 frames - > %d.%03d FPS\n", milliseconds, rate / 1000, rate % 1000);

    for (const PhaseTime& phase : phase_times) {
        const unsigned int microseconds = static_cast<unsigned int>(*phase.stop) -
                                          static_cast<unsigned int>(*phase.start);
        std::fprintf(stderr, "%s %ums\n", phase.name, microseconds / 1000);
    }
}

} // namespace

int microseconds_now()
{
    timeval now;
    gettimeofday(&now, nullptr);
    return static_cast<int>(static_cast<u32>(now.tv_sec) * 1000000u + static_cast<u32>(now.tv_usec));
}

void FrameClock::note_end(int number)
{
    timeval& end = ends_[number % 20];
    gettimeofday(&end, nullptr);
    if (number % 20 == 0)
        report(milliseconds_between(ends_[(number + 1) % 20], end));
}

} // namespace dtk
