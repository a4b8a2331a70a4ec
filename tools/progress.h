#ifndef TOOLS_PROGRESS_H
#define TOOLS_PROGRESS_H

#include <chrono>
#include <cstdio>
#include <string>

namespace tools {

/// One line on a terminal that says how far long work is and how long it still takes. On anything else than a terminal
/// nothing is written.
class Progress {
public:
    explicit Progress(FILE* stream = stderr);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { wipe(); }

    /// Shows @p text, and the time that is left when @p done of the work, from 0 to 1, has been done.
    void show(const std::string& text, double done) const;

    /// Takes the line away, so that something else can be written there.
    void wipe() const;

private:
    std::chrono::steady_clock::time_point start_;
    FILE* terminal_; ///< NULL where there is none.
};

/// A few characters for a step of a number of steps, "[3/22] ".
std::string step_of(std::size_t step, std::size_t count);

} // namespace tools

#endif
