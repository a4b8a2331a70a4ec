#ifndef BENCH_CONTEST_OPTIONS_H
#define BENCH_CONTEST_OPTIONS_H

#include <string>

#include "options.h"

namespace bench {

struct Options {
    std::string items = ".*";           ///< A regular expression that is searched for in the items' names.
    std::string columns = ".*";         ///< The same for the columns that are measured.
    int repetitions = 15;
    double seconds = 0.004;             ///< How long one column runs in one repetition, at least.
    bool growth = false;                ///< Measure every primitive at many sizes instead of the table's items.
    std::string csv, json, chart;       ///< Files to write; empty for none.
};

/// Lets @p program read @p options.
void add_options(tools::Program& program, Options& options);

} // namespace bench

#endif
