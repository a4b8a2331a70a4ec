#ifndef TOOLS_TRACE_COMPARE_COMPARE_TRACE_H
#define TOOLS_TRACE_COMPARE_COMPARE_TRACE_H

#include "../call.h"
#include "../replay_options.h"

namespace trace {

/// Compares what both back ends draw for a trace and prints what was found.
///
/// @return The exit status: 1 when they differ where this is not documented.
int compare_trace(const ReplayOptions& options, const Trace& trace, const std::vector<std::string>& words);

} // namespace trace

#endif
