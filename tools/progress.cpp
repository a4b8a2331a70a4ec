#include "progress.h"

#include <cmath>

#include <unistd.h>

namespace tools {

namespace {

using Clock = std::chrono::steady_clock;

const char line_wipe[] = "\r\033[K";

/// Too little has been done at the start to tell.
constexpr double first_seconds = 1, first_share = 0.01;

std::string time_left(double seconds, double done)
{
    if (seconds < first_seconds || done < first_share)
        return "";
    const auto left = static_cast<int>(std::lround(seconds * (1 - done) / done));
    char text[32];
    std::snprintf(text, sizeof text, ", %d:%02d left", left / 60, left % 60);
    return text;
}

} // namespace

Progress::Progress(FILE* stream) : start_(Clock::now()), terminal_(isatty(fileno(stream)) ? stream : nullptr)
{
}

void Progress::show(const std::string& text, double done) const
{
    if (!terminal_)
        return;
    const double seconds = std::chrono::duration<double>(Clock::now() - start_).count();
    std::fprintf(terminal_, "%s%s%s", line_wipe, text.c_str(), time_left(seconds, done).c_str());
    std::fflush(terminal_);
}

void Progress::wipe() const
{
    if (!terminal_)
        return;
    std::fputs(line_wipe, terminal_);
    std::fflush(terminal_);
}

std::string step_of(std::size_t step, std::size_t count)
{
    return "[" + std::to_string(step) + "/" + std::to_string(count) + "] ";
}

} // namespace tools
