#include "error_filter.h"

#include <regex>
#include <stdexcept>

#include <unistd.h>

namespace tools {

namespace {

const char report[] = "--.*--|[0-9]+ msec for the last 20 frames .*|[A-Za-z]+ +[0-9]+ms";

void pass_on(FILE* held, FILE* errors)
{
    const std::regex is_report(report);
    std::rewind(held);
    char line[1024];
    while (std::fgets(line, sizeof line, held)) {
        std::string text = line;
        text.erase(text.find_last_not_of('\n') + 1);
        if (!std::regex_match(text, is_report))
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
