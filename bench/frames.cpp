// dtk_frames: times the phases of the frames that the library's own benchmark program draws.

#include <algorithm>
#include <cstdio>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include <dtkhddvd.h>

#include "error_filter.h"
#include "options.h"
#include "platform.h"

namespace {

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

void run(const tools::Size& size, const std::string& back_end, const std::vector<std::string>& words)
{
    const tools::Platform platform(size.width, size.height, tools::back_end_named(back_end), words);
    const auto surface = platform.layer_surface(size.width, size.height);
    surface->Flip = keep_times;
    test_dtkhd(platform.dfb(), surface.get());
    if (times.empty())
        throw std::runtime_error("no frame was drawn");
    const char* driver = platform.is_accelerated() ? "with driver" : "without driver";
    print(std::to_string(size.width) + "x" + std::to_string(size.height) + "," + back_end + "," + driver);
}

} // namespace

/// The toolkit's library exports a main of its own, which this one stands before.
int main(int argc, char** argv)
{
    tools::Size size = {0, 0};
    std::string back_end;
    tools::Program program("Prints size, back end, driver, phase and the median of its microseconds.", "dtk_frames");
    program.add_size("size", size, "size of the frames in pixels", {320, 240}, {8192, 8192})->required();
    tools::take_one_of(program.add_option("backend", back_end, "what draws them"), {"software", "hardware"})->required();
    program.add_option("frames", frames_left, "how many")->required()->type_name("N")->check(tools::number_from(1));
    return program.run(argc, argv, [&] {
        const tools::ErrorFilter filter;
        run(size, back_end, tools::without_window(program.words()));
        return 0;
    });
}
