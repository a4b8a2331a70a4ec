// dtk_frames: times the phases of the frames that the library's own benchmark program draws.

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include <unistd.h>

#include <dtkhddvd.h>

#include "platform.h"

namespace {

using tools::BackEnd;

struct Phase {
    const char* name;
    const int* start;
    const int* stop;
    bool is_drawing;    ///< Whether it belongs to the toolkit's part of the frame.
};

const Phase phases[] = {
    {"clear", &clear_time_start, &clear_time_stop, false},
    {"grey squares", &grey_time_start, &grey_time_stop, true},
    {"ellipse series", &soe_time_start, &soe_time_stop, true},
    {"rectangle series", &sor_time_start, &sor_time_stop, true},
    {"pen ellipse", &ell_time_start, &ell_time_stop, true},
    {"polygon", &pol_time_start, &pol_time_stop, true},
    {"pen rectangle", &rec_time_start, &rec_time_stop, true},
    {"line", &line_time_start, &line_time_stop, true},
};

/// The microseconds of every phase in every frame; "drawing" is the sum of the drawing phases.
std::map<std::string, std::vector<int>> times;
int frames_left = 0;

/// Takes the place of the surface's Flip: the frame before it is complete. A failure ends it after the last one.
DFBResult keep_times(IDirectFBSurface*, const DFBRegion*, DFBSurfaceFlipFlags)
{
    int drawing = 0;
    for (const Phase& phase : phases) {
        const int time = *phase.stop - *phase.start;
        times[phase.name].push_back(time);
        if (phase.is_drawing)
            drawing += time;
    }
    times["drawing"].push_back(drawing);
    return --frames_left > 0 ? DFB_OK : DFB_FAILURE;
}

int median(std::vector<int> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void print(const std::string& setting)
{
    for (const Phase& phase : phases)
        std::printf("%s,%s,%d\n", setting.c_str(), phase.name, median(times[phase.name]));
    std::printf("%s,%s,%d\n", setting.c_str(), "drawing", median(times["drawing"]));
}

void run(int width, int height, const std::string& back_end, const std::vector<std::string>& words)
{
    tools::Platform platform(width, height, tools::back_end_named(back_end), words);
    const auto surface = platform.layer_surface(width, height);
    surface->Flip = keep_times;
    test_dtkhd(platform.dfb(), surface.get());
    if (times.empty())
        throw std::runtime_error("no frame was drawn");
    const char* driver = platform.is_accelerated() ? "with driver" : "without driver";
    print(std::to_string(width) + "x" + std::to_string(height) + "," + back_end + "," + driver);
}

} // namespace

/// The toolkit's library exports a main of its own, which this one stands before.
int main(int argc, char** argv)
{
    int width = 0, height = 0;
    if (argc < 4 || std::sscanf(argv[1], "%dx%d", &width, &height) != 2 || (frames_left = std::atoi(argv[3])) < 1) {
        std::fputs("Usage: dtk_frames WxH software|hardware FRAMES [--dfb:WORD,...] [--zuvo:WORD,...]\n"
                   "Prints size, back end, driver, phase and the median of its microseconds.\n",
                   stderr);
        return 2;
    }
    // The benchmark program reports to standard error as it goes; only a failure shall be seen there.
    const int errors = dup(STDERR_FILENO);
    if (!std::freopen("/dev/null", "w", stderr))
        return 1;
    try {
        std::vector<std::string> words = {"--dfb:system=dummy"};
        words.insert(words.end(), argv + 4, argv + argc);
        run(width, height, argv[2], words);
        return 0;
    } catch (const std::exception& failure) {
        dprintf(errors, "dtk_frames: %s\n", failure.what());
        return 1;
    }
}
