#ifndef BENCH_OPTIONS_H
#define BENCH_OPTIONS_H

#include <string>
#include <vector>

namespace bench {

struct Options {
    std::string items = ".*";           ///< A regular expression that is searched for in the items' names.
    std::string columns = ".*";         ///< The same for the columns that are measured.
    int repetitions = 15;
    double seconds = 0.004;             ///< How long one column runs in one repetition, at least.
    bool growth = false;                ///< Measure every primitive at many sizes instead of the table's items.
    std::string csv, json, chart;       ///< Files to write; empty for none.
    std::vector<std::string> words;     ///< For DirectFB and the platform.
    bool help = false;
};

extern const char help_text[];

/// @throws std::invalid_argument for what cannot be understood.
Options parse_options(int argc, char** argv);

} // namespace bench

#endif
