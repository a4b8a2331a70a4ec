#ifndef BENCH_START_FIRST_FRAME_H
#define BENCH_START_FIRST_FRAME_H

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <unistd.h>

#include <directfb.h>

namespace bench {

/// The environment variable with which dtk_start tells a program when it started it, in nanoseconds of the monotonic clock.
constexpr char start_variable[] = "DTK_START_NS";

inline long long now()
{
    timespec time = {};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * 1000000000LL + time.tv_nsec;
}

/// The process's resident memory in bytes; with @p part, what of it are the mappings of files of that name.
inline long resident(const char* part = nullptr)
{
    long kilobytes = 0, sum = 0;
    bool counts = false;
    char line[512];
    std::FILE* file = std::fopen("/proc/self/smaps", "r");
    while (file && std::fgets(line, sizeof line, file)) {
        if (std::sscanf(line, "Rss: %ld", &kilobytes) == 1)
            sum += counts ? kilobytes : 0;
        else if (line[0] < 'A' || line[0] > 'Z')
            counts = !part || std::strstr(line, part);
    }
    if (file)
        std::fclose(file);
    return sum * 1024;
}

/// When this program was started.
inline long long start_time()
{
    const char* const start = std::getenv(start_variable);
    return start ? std::strtoll(start, nullptr, 10) : now();
}

/// Prints what is over and how long it took since the one before.
inline void print_phase(const char* phase)
{
    static long long before = start_time();
    const long long time = now();
    std::printf("%s %lld\n", phase, time - before);
    before = time;
}

/// To be called after the first frame.
inline void print_end()
{
    std::printf("together %lld\n", now() - start_time());
    std::printf("resident %ld\nown-files %ld\n", resident(), resident("libdtkhddvd") + resident("libzuvo"));
}

inline void check(DFBResult result)
{
    if (!result)
        return;
    std::fprintf(stderr, "first frame: result %d\n", static_cast<int>(result));
    std::exit(1);
}

/// A picture as hello has it, in front.
inline IDirectFBSurface* create_screen(IDirectFB* dfb)
{
    DFBSurfaceDescription description = {};
    description.flags =
        static_cast<DFBSurfaceDescriptionFlags>(DSDESC_CAPS | DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT);
    description.caps = static_cast<DFBSurfaceCapabilities>(DSCAPS_PRIMARY | DSCAPS_FLIPPING);
    description.width = 560;
    description.height = 360;
    description.pixelformat = DSPF_ARGB;
    IDirectFBSurface* surface = nullptr;
    check(dfb->SetCooperativeLevel(dfb, DFSCL_FULLSCREEN));
    check(dfb->CreateSurface(dfb, &description, &surface));
    check(surface->Clear(surface, 0x20, 0x20, 0x28, 0xff));
    return surface;
}

} // namespace bench

#endif
