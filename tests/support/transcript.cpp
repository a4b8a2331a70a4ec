#include "support/transcript.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace fake {

std::string text(const char* format, ...)
{
    char buffer[512];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(buffer, sizeof buffer, format, arguments);
    va_end(arguments);
    return length < int(sizeof buffer) ? std::string(buffer) : std::string(buffer) + "...";
}

DFBResult Transcript::result_of(const std::string& line)
{
    if (calls_until_failure_ > 0 && --calls_until_failure_ == 0)
        return failure_;
    for (const Rule& rule : rules_) {
        if (line.compare(0, rule.start.size(), rule.start) == 0)
            return rule.result;
    }
    return DFB_OK;
}

DFBResult Transcript::call(const std::string& line)
{
    const DFBResult result = result_of(line);
    if (result && failed_call_.empty())
        failed_call_ = line + " #" + std::to_string(std::count(lines_.begin(), lines_.end(), line) + 1);
    lines_.push_back(result ? line + " = " + std::to_string(result) : line);
    return result;
}

void Transcript::note(const std::string& line)
{
    lines_.push_back(line);
}

void Transcript::fail_call(int n, DFBResult result)
{
    calls_until_failure_ = n;
    failure_ = result;
}

void Transcript::fail_every(const std::string& start, DFBResult result)
{
    rules_.push_back({start, result});
}

std::string Transcript::take()
{
    std::string all = "\n";
    for (const std::string& line : lines_)
        all += line + "\n";
    lines_.clear();
    return all;
}

Transcript& transcript()
{
    static Transcript the_transcript;
    return the_transcript;
}

std::string calls_with(const std::string& part)
{
    std::string some = "\n";
    for (const std::string& line : transcript().lines()) {
        if (line.find(part) != std::string::npos)
            some += line + "\n";
    }
    transcript().take();
    return some;
}

} // namespace fake
