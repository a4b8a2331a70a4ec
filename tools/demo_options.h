#ifndef TOOLS_DEMO_OPTIONS_H
#define TOOLS_DEMO_OPTIONS_H

#include <string>

#include "options.h"

namespace tools {

/// What dtk_demo was asked for.
struct DemoOptions {
    int frames = 0;     ///< How many to draw; 0 for as many as there is time for.
    double seconds = 0; ///< How long to draw; 0 for as long as it takes.
    double rate = 0;    ///< How many frames a second at the most; 0 for as many as can be drawn.
    Size size = {1280, 720};
    std::string png; ///< Where the last frame goes; empty for nowhere.
    BackEnd back_end = BackEnd::any;
};

/// Lets @p program read @p options.
void add_options(Program& program, DemoOptions& options);

} // namespace tools

#endif
