#include "bench_options.h"

#include <map>

namespace tools {

namespace {

constexpr Size smallest = {1, 1}, largest = {4096, 4096};

const std::map<std::string, DFBSurfacePixelFormat> formats = {
    {"ARGB", DSPF_ARGB}, {"RGB32", DSPF_RGB32}, {"RGB16", DSPF_RGB16}, {"A8", DSPF_A8}, {"LUT8", DSPF_LUT8},
};

} // namespace

void add_options(Program& program, BenchOptions& options)
{
    program.add_option("--duration", options.duration, "how many seconds each item draws (1)")
        ->type_name("SECONDS")
        ->check(number_from(0.001));
    program.add_option("--iterations", options.iterations, "draw so many shapes of each item instead")
        ->type_name("N")
        ->check(number_from(1));
    program.add_size("--size", options.size, "size of the shapes in pixels", smallest, largest);
    CLI::Option* format = program.add_option("--pixelformat", options.format, "of the surface (ARGB)");
    take_one_of(format, {"ARGB", "RGB32", "RGB16", "A8", "LUT8"});
    program.add_option("--only", options.only, "only the items whose names contain this text")->type_name("TEXT");
    program.add_path("--csv", options.csv, "write the table to this file");
    program.add_path("--json", options.json, "write it to this file as JSON");
    program.add_flag("--noresults", options.no_results, "do not print the table");
    program.add_path("--dump", options.dump, "write a picture of each item into this folder, as PNG");
    program.add_flag("--window", options.window, "draw in a window, or on the console, instead of off-screen")
        ->excludes(format);
    program.add_back_end(options.back_end)->description("measure one back end; without it all that there are");
}

DFBSurfacePixelFormat pixel_format(const BenchOptions& options)
{
    return formats.at(options.format);
}

} // namespace tools
