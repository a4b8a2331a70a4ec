#include "bench_report.h"

#include <stdexcept>

#include <unistd.h>

namespace tools {

namespace {

const char line_wipe[] = "\r\033[K";

double rate(const Outcome& outcome)
{
    return static_cast<double>(outcome.primitives) / outcome.seconds;
}

double megapixels(const Outcome& outcome)
{
    return rate(outcome) * static_cast<double>(outcome.pixels) / 1e6;
}

void print(const std::string& name, const Outcome& outcome)
{
    if (isatty(STDERR_FILENO))
        std::fputs(line_wipe, stderr);
    if (outcome.result)
        std::printf("%-39s cannot be drawn on this surface\n", name.c_str());
    else
        std::printf("%-39s %7.3f s %12.1f /s %10.3f MPixel/s\n", name.c_str(), outcome.seconds, rate(outcome),
                    megapixels(outcome));
    std::fflush(stdout);
}

} // namespace

BenchReport::BenchReport(const std::string& csv)
{
    if (csv.empty())
        return;
    file_.reset(std::fopen(csv.c_str(), "w"));
    if (!file_)
        throw std::runtime_error("cannot write " + csv);
    std::fputs("item,seconds,primitives,primitives per second,pixels,megapixels per second\n", file_.get());
}

void BenchReport::announce(std::size_t number, std::size_t count, const std::string& name) const
{
    if (isatty(STDERR_FILENO))
        std::fprintf(stderr, "%s[%zu/%zu] %s ...", line_wipe, number, count, name.c_str());
}

void BenchReport::add(const std::string& name, const Outcome& outcome) const
{
    print(name, outcome);
    if (file_ && !outcome.result)
        std::fprintf(file_.get(), "\"%s\",%.6f,%ld,%.1f,%ld,%.3f\n", name.c_str(), outcome.seconds, outcome.primitives,
                     rate(outcome), outcome.pixels, megapixels(outcome));
}

} // namespace tools
