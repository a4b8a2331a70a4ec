#include "phase_times.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include <dtkhddvd.h>

namespace tools {

namespace {

struct Phase {
    const char* name;
    const int *start, *stop;
};

/// In the order in which a frame is drawn. Showing it is the last one and timed by its caller.
const Phase phases[] = {
    {"clear", &clear_time_start, &clear_time_stop}, {"squares", &grey_time_start, &grey_time_stop},
    {"ellipses", &soe_time_start, &soe_time_stop},  {"rectangles", &sor_time_start, &sor_time_stop},
    {"ellipse", &ell_time_start, &ell_time_stop},   {"triangle", &pol_time_start, &pol_time_stop},
    {"rectangle", &rec_time_start, &rec_time_stop}, {"line", &line_time_start, &line_time_stop},
};
constexpr int drawn_phases = sizeof phases / sizeof *phases;

int width_of(const char* name)
{
    return std::max(static_cast<int>(std::strlen(name)), 5) + 2;
}

} // namespace

void PhaseTimes::add_frame(double flip)
{
    static_assert(count == drawn_phases + 1);
    for (int i = 0; i < drawn_phases; ++i)
        microseconds_[i] += *phases[i].stop - *phases[i].start;
    microseconds_[drawn_phases] += flip;
    ++frames_;
}

void PhaseTimes::print() const
{
    std::printf("%-8s", "  ms of");
    for (const Phase& phase : phases)
        std::printf("%*s", width_of(phase.name), phase.name);
    std::printf("%*s\n%-8s", width_of("flip"), "flip", "  a frame");
    for (int i = 0; i < count; ++i)
        std::printf("%*.2f", width_of(i < drawn_phases ? phases[i].name : "flip"), microseconds_[i] / frames_ / 1000);
    std::printf("\n");
}

} // namespace tools
