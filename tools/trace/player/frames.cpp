#include "frames.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_map>

namespace trace {

namespace {

bool draws(const Call& call)
{
    return (call.number() >= Number::line && call.number() <= Number::ellipse) || call.number() >= Number::stamp_line;
}

/// Follows what each toolkit draws on.
class Targets {
public:
    void follow(const Call& call)
    {
        if (call.number() == Number::create && call.numbers[1])
            targets_[call.numbers[3]] = call.numbers[1];
        if (call.number() == Number::attach)
            targets_[call.numbers[0]] = call.numbers[1];
    }

    std::uint32_t drawn_by(const Call& call)
    {
        return call.number() >= Number::stamp_line ? call.numbers[0] : targets_[call.numbers[0]];
    }

private:
    std::unordered_map<std::uint32_t, std::uint32_t> targets_;
};

} // namespace

std::vector<Frame> frames_of(const Trace& trace)
{
    std::vector<Frame> frames;
    Targets targets;
    std::uint32_t drawn = 0;
    for (std::size_t i = 0; i < trace.calls.size(); ++i) {
        const Call& call = trace.calls[i];
        targets.follow(call);
        if (draws(call))
            drawn = targets.drawn_by(call);
        if (call.number() != Number::flip)
            continue;
        frames.push_back({i + 1, call.numbers[0]});
        drawn = 0;
    }
    if (drawn || frames.empty())
        frames.push_back({trace.calls.size(), drawn});
    return frames;
}

std::size_t count_of(const std::vector<Frame>& frames, std::size_t last)
{
    if (last > frames.size())
        throw std::runtime_error("the trace has no more than " + std::to_string(frames.size()) + " frames");
    return last ? last : frames.size();
}

Extent extent_of(const Trace& trace)
{
    const std::uint32_t shown = frames_of(trace).front().surface;
    for (const Call& call : trace.calls) {
        if (call.number() == Number::surface && call.numbers[0] == shown)
            return {static_cast<int>(std::clamp(call.numbers[1], 1u, 8192u)), static_cast<int>(std::clamp(call.numbers[2], 1u, 8192u))};
    }
    return {};
}

} // namespace trace
