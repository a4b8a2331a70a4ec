#include "demo_options.h"

namespace tools {

namespace {

// Smaller displays would leave the shapes of a frame wholly outside.
constexpr Size smallest = {320, 240}, largest = {8192, 8192};
constexpr int default_frames = 200;

} // namespace

void add_options(Program& program, DemoOptions& options)
{
    program.add_option("--frames", options.frames, "how many frames to draw (200, or as many as --seconds allows)")
        ->type_name("N")
        ->check(number_from(1));
    program.add_option("--seconds", options.seconds, "how long to draw")->type_name("S")->check(number_from(0.001));
    program.add_option("--rate", options.rate, "at most so many frames a second")->type_name("N")->check(number_from(0.1));
    program.add_size("--size", options.size, "size of the display in pixels", smallest, largest);
    program.add_path("--png", options.png, "write the last frame to this file");
    program.add_back_end(options.back_end);
    program.callback([&options] {
        if (!options.frames && options.seconds == 0)
            options.frames = default_frames;
    });
}

} // namespace tools
