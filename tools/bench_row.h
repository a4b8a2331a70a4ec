#ifndef TOOLS_BENCH_ROW_H
#define TOOLS_BENCH_ROW_H

#include <string>
#include <vector>

#include <directfb.h>

namespace tools {

/// What was measured of an item with one back end.
struct Outcome {
    DFBResult result;
    double seconds, cpu_seconds;
    long primitives;
    long pixels; ///< What one primitive covers.

    bool is_drawn() const { return result == DFB_OK; }
    double rate() const { return static_cast<double>(primitives) / seconds; }
    double megapixels() const { return rate() * static_cast<double>(pixels) / 1e6; }

    /// How busy the process kept the machine, in percent of one core.
    double cpu_load() const { return 100 * cpu_seconds / seconds; }
};

/// A line of the table: an item with one outcome for each back end.
struct BenchRow {
    std::string item;
    std::vector<Outcome> outcomes;

    /// How many times as fast as the first back end the one with this @p index is; 0 where one of them draws nothing.
    double to_first(std::size_t index) const
    {
        const Outcome &first = outcomes.front(), &other = outcomes[index];
        return first.is_drawn() && other.is_drawn() ? other.megapixels() / first.megapixels() : 0;
    }
};

} // namespace tools

#endif
