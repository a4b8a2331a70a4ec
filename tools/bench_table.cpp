#include "bench_table.h"

#include <cstdio>

namespace tools {

namespace {

constexpr int name_width = 40;

void print_outcome(const Outcome& outcome)
{
    if (outcome.is_drawn())
        std::printf("%12.0f %9.1f %4.0f %%", outcome.rate(), outcome.megapixels(), outcome.cpu_load());
    else
        std::printf("%28s", "cannot be drawn");
}

void print_comparison(double ratio)
{
    if (ratio > 0)
        std::printf(" %9.2f", ratio);
    else
        std::printf(" %9s", "");
}

} // namespace

void print_head(const std::vector<std::string>& back_ends)
{
    std::string names(name_width, ' '), units(name_width, ' ');
    for (std::size_t i = 0; i < back_ends.size(); ++i) {
        names += std::string(28 - back_ends[i].size(), ' ') + back_ends[i];
        units += "    shapes/s  MPixel/s    CPU";
        if (i > 0) {
            names += "        to";
            units += "  " + back_ends.front();
        }
    }
    std::printf("%s\n%s\n", names.c_str(), units.c_str());
}

void print_row(const BenchRow& row)
{
    std::printf("%-*s", name_width, row.item.c_str());
    for (std::size_t i = 0; i < row.outcomes.size(); ++i) {
        print_outcome(row.outcomes[i]);
        if (i > 0)
            print_comparison(row.to_first(i));
    }
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace tools
