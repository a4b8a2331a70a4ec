#include "bench_options.h"

#include <cstdio>
#include <stdexcept>

#include "options.h"

namespace tools {

const char bench_help[] =
    "Usage: dtk_bench [OPTION...] [--dfb:WORD,...] [--zuvo:WORD,...]\n"
    "Measures how many primitives and pixels the toolkit draws in a second.\n"
    "\n"
    "  --duration SECONDS     how long each item draws (1)\n"
    "  --size WxH             size of the shapes in pixels; --size N for a square (256x256)\n"
    "  --pixelformat FORMAT   of the surface: ARGB, RGB32, RGB16, A8 or LUT8 (ARGB)\n"
    "  --only TEXT            only the items whose names contain TEXT\n"
    "  --csv FILE             write the table to FILE as well\n"
    "  --dump DIRECTORY       write a picture of each item into DIRECTORY\n"
    "  --backend software     draw in software\n"
    "  --backend hardware     draw with the platform's drawing engine, or fail\n"
    "  --help                 show this help\n"
    "\n"
    "Everything is drawn off-screen. --zuvo:accel=off leaves the platform's graphics driver out.\n";

namespace {

constexpr int largest_side = 4096;

const option long_options[] = {
    {"duration", required_argument, nullptr, 't'},
    {"size", required_argument, nullptr, 's'},
    {"pixelformat", required_argument, nullptr, 'f'},
    {"only", required_argument, nullptr, 'o'},
    {"csv", required_argument, nullptr, 'c'},
    {"dump", required_argument, nullptr, 'd'},
    {"backend", required_argument, nullptr, 'b'},
    {"help", no_argument, nullptr, 'h'},
    {},
};

struct NamedFormat {
    const char* name;
    DFBSurfacePixelFormat format;
};

const NamedFormat formats[] = {
    {"ARGB", DSPF_ARGB}, {"RGB32", DSPF_RGB32}, {"RGB16", DSPF_RGB16}, {"A8", DSPF_A8}, {"LUT8", DSPF_LUT8},
};

bool read_size(const char* text, int& width, int& height)
{
    char rest;
    if (std::sscanf(text, "%9d%c", &width, &rest) == 1)
        height = width;
    else if (std::sscanf(text, "%9dx%9d%c", &width, &height, &rest) != 2)
        return false;
    return width >= 1 && height >= 1 && width <= largest_side && height <= largest_side;
}

void set_format(const char* name, BenchOptions& options)
{
    for (const NamedFormat& known : formats) {
        if (known.name == std::string(name)) {
            options.format = known.format;
            options.format_name = name;
            return;
        }
    }
    throw std::invalid_argument(std::string("--pixelformat takes ARGB, RGB32, RGB16, A8 or LUT8, not '") + name + "'");
}

void apply(int letter, const char* value, BenchOptions& options)
{
    switch (letter) {
    case 't':
        options.duration = parse_number("--duration", value, 0.001, "seconds from 0.001");
        break;
    case 's':
        if (!read_size(value, options.width, options.height))
            throw std::invalid_argument(std::string("--size takes 1x1 to 4096x4096, not '") + value + "'");
        break;
    case 'f':
        set_format(value, options);
        break;
    case 'o':
        options.only = value;
        break;
    case 'c':
        options.csv = parse_path("--csv", value);
        break;
    case 'd':
        options.dump = parse_path("--dump", value);
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

BenchOptions parse_bench_options(int argc, char** argv)
{
    BenchOptions options;
    read_options(other_arguments(argc, argv, options.words), long_options,
                 [&](int letter, const char* value) { apply(letter, value, options); });
    return options;
}

} // namespace tools
