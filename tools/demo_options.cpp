#include "demo_options.h"

#include <cmath>
#include <cstdio>
#include <stdexcept>

#include "options.h"

namespace tools {

const char demo_help[] =
    "Usage: dtk_demo [OPTION...] [--dfb:WORD,...] [--zuvo:WORD,...]\n"
    "Draws the frames of test_dtkhd and reports how fast.\n"
    "\n"
    "  --frames N           how many frames to draw (200, or as many as --seconds allows)\n"
    "  --seconds S          how long to draw\n"
    "  --rate N             at most N frames a second\n"
    "  --size WxH           size of the display in pixels (1280x720)\n"
    "  --png FILE           write the last frame to FILE\n"
    "  --backend software   draw in software\n"
    "  --backend hardware   draw with the platform's drawing engine, or fail\n"
    "  --help               show this help\n"
    "\n"
    "--dfb: words are for DirectFB (--dfb:system=fbdev) and --zuvo: words for the platform (--zuvo:window=off).\n"
    "On a desktop the frames are shown in a window, F11 makes it full screen. Escape, closing the window and Ctrl-C\n"
    "end the program after the frame.\n";

namespace {

// Smaller displays would leave the shapes of a frame wholly outside.
constexpr int smallest_width = 320, smallest_height = 240;
constexpr int largest_side = 8192;
constexpr int default_frames = 200;

const option long_options[] = {
    {"frames", required_argument, nullptr, 'f'},
    {"seconds", required_argument, nullptr, 't'},
    {"rate", required_argument, nullptr, 'r'},
    {"size", required_argument, nullptr, 's'},
    {"png", required_argument, nullptr, 'p'},
    {"backend", required_argument, nullptr, 'b'},
    {"help", no_argument, nullptr, 'h'},
    {},
};

int parse_frames(const char* text)
{
    const char wanted[] = "a number from 1";
    const double frames = parse_number("--frames", text, 1, wanted);
    if (frames != std::floor(frames))
        throw std::invalid_argument(std::string("--frames takes ") + wanted + ", not '" + text + "'");
    return static_cast<int>(frames);
}

void parse_size(const char* text, DemoOptions& options)
{
    char rest;
    const bool is_size = std::sscanf(text, "%9dx%9d%c", &options.width, &options.height, &rest) == 2;
    if (!is_size || options.width < smallest_width || options.height < smallest_height ||
        options.width > largest_side || options.height > largest_side)
        throw std::invalid_argument(std::string("--size takes 320x240 to 8192x8192, not '") + text + "'");
}

void apply(int letter, const char* value, DemoOptions& options)
{
    switch (letter) {
    case 'f':
        options.frames = parse_frames(value);
        break;
    case 't':
        options.seconds = parse_number("--seconds", value, 0.001, "a number above 0");
        break;
    case 'r':
        options.rate = parse_number("--rate", value, 0.1, "a number from 0.1");
        break;
    case 's':
        parse_size(value, options);
        break;
    case 'p':
        options.png = parse_path("--png", value);
        break;
    case 'b':
        options.back_end = back_end_named(value);
        break;
    default:
        options.help = true;
        break;
    }
}

} // namespace

DemoOptions parse_demo_options(int argc, char** argv)
{
    DemoOptions options;
    read_options(other_arguments(argc, argv, options.words), long_options,
                 [&](int letter, const char* value) { apply(letter, value, options); });
    if (!options.frames && options.seconds == 0)
        options.frames = default_frames;
    return options;
}

} // namespace tools
