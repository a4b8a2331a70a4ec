#ifndef TOOLS_TRACE_COMPARE_COMPARISON_H
#define TOOLS_TRACE_COMPARE_COMPARISON_H

#include <map>

#include "reference.h"

namespace trace {

/// A call that the two back ends drew differently, and what they made of its surroundings.
struct Finding {
    std::size_t index;      ///< Of the call, from 0.
    Difference difference;
    int width;              ///< Of the surface.
    Pixels software, engine;
};

/// Plays a trace with both back ends, call by call, and compares what each call draws. After each, the engine's surface is
/// made equal to software's, so that every call is judged by itself.
class Comparison {
public:
    explicit Comparison(IDirectFB* dfb) : dfb_(dfb), software_(dfb), engine_(dfb) {}

    void play(const Call& call, std::size_t index);

    std::size_t drawing_count() const { return drawing_count_; }

    /// The documented differences by what they are called.
    const std::map<std::string, std::size_t>& documented() const { return documented_; }
    std::size_t undocumented_count() const { return undocumented_count_; }

    /// The first one that is not documented, or else the first one; NULL when there is none.
    const Finding* finding() const { return undocumented_ ? &*undocumented_ : first_ ? &*first_ : nullptr; }

private:
    struct Target {
        int width = 0, height = 0;
        bool is_known = false;  ///< What is on it is @p pixels.
        Pixels pixels;
    };

    Target& prepare(std::uint32_t number);
    void judge(const Call& call, std::size_t index, Target& target, Pixels software, const Pixels& engine, DFBResult result);
    std::vector<std::string> kinds_of(const Call& call, const Target& target, const Pixels& engine, DFBResult result);
    bool is_expected(const Drawing& drawing, const Target& target, const Pixels& engine, DFBSurfacePixelFormat format);

    IDirectFB* dfb_;
    Player software_, engine_;
    std::map<std::uint32_t, Target> targets_;
    std::map<std::string, std::size_t> documented_;
    std::size_t drawing_count_ = 0, undocumented_count_ = 0;
    std::optional<Finding> first_, undocumented_;
};

/// Draws software's pixels, the engine's, and where they differ, side by side.
tools::Owned<IDirectFBSurface> picture_of(const Finding& finding, IDirectFB* dfb);

} // namespace trace

#endif
