#ifndef TOOLS_TRACE_REPLAY_OPTIONS_H
#define TOOLS_TRACE_REPLAY_OPTIONS_H

#include "../options.h"

namespace trace {

/// What dtk_replay was asked for.
struct ReplayOptions {
    std::string file;
    tools::BackEnd back_end = tools::BackEnd::any;
    std::size_t frame = 0;                  ///< The last one to play; 0 for all.
    unsigned repetitions = 1;
    std::string png, text, binary, csv;     ///< Files, empty for none.
    bool window = false, compare = false;
};

void add_options(tools::Program& program, ReplayOptions& options);

} // namespace trace

#endif
