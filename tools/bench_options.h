#ifndef TOOLS_BENCH_OPTIONS_H
#define TOOLS_BENCH_OPTIONS_H

#include <string>

#include "options.h"

namespace tools {

/// What dtk_bench was asked for.
struct BenchOptions {
    double duration = 1;                ///< How long each item draws, in seconds.
    long iterations = 0;                ///< How many shapes each item draws instead; 0 for as many as there is time for.
    Size size = {256, 256};             ///< The box of every shape.
    std::string format = "ARGB";
    std::string only;                   ///< What the names of the items contain; empty for all of them.
    std::string csv, json, dump;        ///< Two files and a directory; empty for none.
    bool no_results = false;            ///< Nothing is printed.
    bool window = false;                ///< Draw where one sees it.
    BackEnd back_end = BackEnd::any;    ///< `any` stands for all that there are.
};

/// Lets @p program read @p options.
void add_options(Program& program, BenchOptions& options);

/// The pixel format of a surface that @p options name.
DFBSurfacePixelFormat pixel_format(const BenchOptions& options);

} // namespace tools

#endif
