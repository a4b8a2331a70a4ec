#ifndef TOOLS_TRACE_PLAYER_FRAMES_H
#define TOOLS_TRACE_PLAYER_FRAMES_H

#include "../call.h"

namespace trace {

/// A frame of a trace: its calls up to a Flip. What is drawn behind the last Flip is one more.
struct Frame {
    std::size_t end;        ///< The index behind its last call.
    std::uint32_t surface;  ///< What is shown at its end, 0 for nothing.
};

std::vector<Frame> frames_of(const Trace& trace);

/// How many frames there are up to @p last, or in all when it is 0.
///
/// @throws std::runtime_error when there are not so many.
std::size_t count_of(const std::vector<Frame>& frames, std::size_t last);

/// The size of the first surface that is shown, or 640 x 480.
struct Extent {
    int width = 640, height = 480;
};

Extent extent_of(const Trace& trace);

} // namespace trace

#endif
