#ifndef TOOLS_BENCH_OPTIONS_H
#define TOOLS_BENCH_OPTIONS_H

#include <string>
#include <vector>

#include "platform.h"

namespace tools {

/// What dtk_bench was asked for.
struct BenchOptions {
    bool help = false;
    double duration = 1;                ///< How long each item draws, in seconds.
    int width = 256, height = 256;      ///< The box of every shape.
    DFBSurfacePixelFormat format = DSPF_ARGB;
    std::string format_name = "ARGB";
    std::string only;                   ///< What the names of the items contain; empty for all of them.
    std::string csv, dump;              ///< A file and a directory; empty for none.
    BackEnd back_end = BackEnd::any;
    std::vector<std::string> words;     ///< The arguments for DirectFB and the platform.
};

extern const char bench_help[];

/// Reads the command line.
///
/// @throws std::invalid_argument with one line that says what is wrong.
BenchOptions parse_bench_options(int argc, char** argv);

} // namespace tools

#endif
