#ifndef TOOLS_TRACE_PLAYER_TIMES_H
#define TOOLS_TRACE_PLAYER_TIMES_H

#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "../call.h"

namespace trace {

/// How long the calls and the frames of a trace took, in microseconds.
class Times {
public:
    void add_call(const Call& call, double microseconds);

    /// Ends a frame; what waiting for the engine took is part of it.
    void end_frame(double waiting);

    std::size_t frame_count() const { return frames_.size(); }
    std::size_t call_count() const { return call_count_; }

    /// The median of the frames' drawing: without Clear, Flip and the making of toolkits. 0 for no frame.
    double median_drawing() const;

    /// A table of the functions, and a line about the frames.
    void print() const;

    /// A line for each frame: its number, all of it, its drawing.
    void print_frames(FILE* file) const;

private:
    struct Sum {
        std::size_t count = 0;
        double total = 0, longest = 0;
    };

    struct Frame {
        double all = 0, drawing = 0;
    };

    std::map<std::string, Sum> sums_;
    std::vector<Frame> frames_;
    Frame current_;
    std::size_t call_count_ = 0;
};

} // namespace trace

#endif
