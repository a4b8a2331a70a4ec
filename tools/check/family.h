#pragma once

#include "stage.h"

#include <string>
#include <vector>

namespace conformance {

/// What a platform is good for, in the order of the work: the toolkit runs on it; it covers the pixels that software
/// covers; its pixels are those of software.
enum class Level { none, required, geometry, pixels };

const char* name_of(Level level);

/// The level that is called `name`; none for another name.
Level level_named(const std::string& name);

/// One thing that was expected and not found, with pictures where there are any.
struct Finding {
    std::string text;
    Picture expected, drawn;    ///< Of the stage's size, or empty.
};

/// What an examination of one family found.
class Verdict {
public:
    /// Counts a check. A failed one is kept with its text, if it is among the first.
    void check(bool is_good, const std::string& text) { check(is_good, text, {}, {}); }
    void check(bool is_good, const std::string& text, const Picture& expected, const Picture& drawn);

    /// Says that the platform has left the optional thing out.
    void leave_out(const std::string& reason);

    int checks() const { return checks_; }
    int failures() const { return failures_; }
    bool is_left_out() const { return !reason_.empty(); }
    const std::string& reason() const { return reason_; }
    const std::vector<Finding>& findings() const { return findings_; }

private:
    static constexpr std::size_t kept_findings = 4;

    int checks_ = 0, failures_ = 0;
    std::string reason_;
    std::vector<Finding> findings_;
};

/// What an examination works with.
struct Examination {
    Stage& stage;
    IDirectFBSurface* layer;    ///< The graphics layer's surface.
    int scenes;                 ///< How many random scenes to draw for a family.
    Verdict& verdict;
};

/// Things that work or fail together.
struct Family {
    const char* name;
    Level level;
    const char* promise;        ///< What is expected, as a sentence.
    void (*examine)(const Examination& examination);
};

/// All families, from what others build on to the fine points: of several that fail, the first one is to be looked at.
const std::vector<Family>& families();

} // namespace conformance
