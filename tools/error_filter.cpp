#include "error_filter.h"

#include <stdexcept>
#include <string>

#include <regex.h>
#include <unistd.h>

namespace tools {

namespace {

/// The lines of the benchmark program's report, as the C library matches them: std::regex makes GCC warn under a sanitizer.
class ReportLines {
public:
    ReportLines() { regcomp(&lines_, "^(--.*--|[0-9]+ msec for the last 20 frames .*|[A-Za-z]+ +[0-9]+ms)$", flags); }
    ReportLines(const ReportLines&) = delete;
    ReportLines& operator=(const ReportLines&) = delete;
    ~ReportLines() { regfree(&lines_); }

    bool have(const std::string& line) const { return !regexec(&lines_, line.c_str(), 0, nullptr, 0); }

private:
    static constexpr int flags = REG_EXTENDED | REG_NOSUB;
    regex_t lines_;
};

void pass_on(FILE* held, FILE* errors)
{
    const ReportLines report;
    std::rewind(held);
    char line[1024];
    while (std::fgets(line, sizeof line, held)) {
        std::string text = line;
        text.erase(text.find_last_not_of('\n') + 1);
        if (!report.have(text))
            std::fputs(line, errors);
    }
}

} // namespace

ErrorFilter::ErrorFilter() : errors_(fdopen(dup(STDERR_FILENO), "w")), held_(std::tmpfile())
{
    if (!errors_ || !held_)
        throw std::runtime_error("cannot make a temporary file");
    std::fflush(stderr);
    dup2(fileno(held_.get()), STDERR_FILENO);
}

ErrorFilter::~ErrorFilter()
{
    std::fflush(stderr);
    dup2(fileno(errors_.get()), STDERR_FILENO);
    pass_on(held_.get(), stderr);
}

} // namespace tools
