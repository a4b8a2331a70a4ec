#include "demo_options.h"

#include <cstdio>
#include <stdexcept>

#include <getopt.h>

namespace tools {

const char demo_help[] =
    "Usage: dtk_demo [OPTION...] [--dfb:WORD,...] [--zuvo:WORD,...]\n"
    "Draws the frames of test_dtkhd and reports how fast.\n"
    "\n"
    "  --frames N           how many frames to draw (200)\n"
    "  --size WxH           size of the display in pixels (1280x720)\n"
    "  --png FILE           write the last frame to FILE\n"
    "  --backend software   draw in software\n"
    "  --backend hardware   draw with the platform's drawing engine, or fail\n"
    "  --help               show this help\n"
    "\n"
    "--dfb: words are for DirectFB (--dfb:system=x11) and --zuvo: words for the platform (--zuvo:accel=off).\n"
    "Without a display nothing is shown. Ctrl-C ends the program after the frame.\n";

namespace {

// Smaller displays would leave the shapes of a frame wholly outside.
constexpr int smallest_width = 320, smallest_height = 240;
constexpr int largest_side = 8192;

const option long_options[] = {
    {"frames", required_argument, nullptr, 'f'},
    {"size", required_argument, nullptr, 's'},
    {"png", required_argument, nullptr, 'p'},
    {"backend", required_argument, nullptr, 'b'},
    {"help", no_argument, nullptr, 'h'},
    {},
};

int parse_frames(const char* text)
{
    int frames = 0;
    char rest;
    if (std::sscanf(text, "%9d%c", &frames, &rest) != 1 || frames < 1)
        throw std::invalid_argument(std::string("--frames takes a number from 1, not '") + text + "'");
    return frames;
}

void parse_size(const char* text, DemoOptions& options)
{
    char rest;
    const bool is_size = std::sscanf(text, "%9dx%9d%c", &options.width, &options.height, &rest) == 2;
    if (!is_size || options.width < smallest_width || options.height < smallest_height ||
        options.width > largest_side || options.height > largest_side)
        throw std::invalid_argument(std::string("--size takes 320x240 to 8192x8192, not '") + text + "'");
}

void apply(int letter, const char* argument, DemoOptions& options)
{
    switch (letter) {
    case 'f':
        options.frames = parse_frames(optarg);
        break;
    case 's':
        parse_size(optarg, options);
        break;
    case 'p':
        options.png = optarg;
        break;
    case 'b':
        options.back_end = back_end_named(optarg);
        break;
    case 'h':
        options.help = true;
        break;
    default:
        throw std::invalid_argument(std::string(argument) + (letter == ':' ? " lacks its value" : " is no option"));
    }
}

void read_options(std::vector<char*>& arguments, DemoOptions& options)
{
    const auto count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);

    // The leading + keeps the arguments in order, so that optind names the one that is read next.
    for (;;) {
        const char* argument = arguments[static_cast<std::size_t>(optind)];
        const int letter = getopt_long(count, arguments.data(), "+:", long_options, nullptr);
        if (letter == -1)
            break;
        apply(letter, argument, options);
    }
    if (optind < count)
        throw std::invalid_argument(std::string("unexpected argument '") + arguments[static_cast<std::size_t>(optind)] +
                                    "'");
}

} // namespace

DemoOptions parse_demo_options(int argc, char** argv)
{
    DemoOptions options;
    std::vector<char*> arguments;
    for (int i = 0; i < argc; ++i) {
        if (is_platform_word(argv[i]))
            options.words.push_back(argv[i]);
        else
            arguments.push_back(argv[i]);
    }
    read_options(arguments, options);
    return options;
}

} // namespace tools
