#ifndef TOOLS_DEMO_OPTIONS_H
#define TOOLS_DEMO_OPTIONS_H

#include <string>
#include <vector>

#include "platform.h"

namespace tools {

/// What dtk_demo was asked for.
struct DemoOptions {
    bool help = false;
    int frames = 0;     ///< How many to draw; 0 for as many as there is time for.
    double seconds = 0; ///< How long to draw; 0 for as long as it takes.
    double rate = 0;    ///< How many frames a second at the most; 0 for as many as can be drawn.
    int width = 1280, height = 720;
    std::string png; ///< Where the last frame goes; empty for nowhere.
    BackEnd back_end = BackEnd::any;
    std::vector<std::string> words; ///< The arguments for DirectFB and the platform.
};

extern const char demo_help[];

/// Reads the command line.
///
/// @throws std::invalid_argument with one line that says what is wrong.
DemoOptions parse_demo_options(int argc, char** argv);

} // namespace tools

#endif
