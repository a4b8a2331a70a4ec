#ifndef BENCH_RESULTS_H
#define BENCH_RESULTS_H

#include <string>
#include <vector>

#include "items.h"
#include "measure.h"

namespace bench {

/// What one column took for one item. Ratios are medians over the ratios within each repetition; 0 where there is
/// nothing to compare with.
struct Cell {
    std::string column;
    bool is_peer;
    double nanoseconds;
    double to_floor;
    double to_best_peer;
    double to_prescribed;
    double pixels_per_second;
};

struct Row {
    Item item;
    long pixels;
    std::vector<Cell> cells;
    std::string best_peer;      ///< Empty where no peer draws the item.

    /// The cell of a column; NULL where the column does not draw the item.
    const Cell* find(const std::string& column) const;
};

/// Names of the columns that others are compared with.
inline constexpr char floor_name[] = "floor";
inline constexpr char prescribed_name[] = "prescribed calls";
inline constexpr char software_name[] = "toolkit software";
inline constexpr char engine_name[] = "toolkit engine";

/// Sums the repetitions up. @p is_peer tells for each candidate whether it is a peer.
Row summarise(const Item& item, long pixels, const std::vector<Candidate>& candidates, const std::vector<bool>& is_peer,
              const std::vector<Repetition>& repetitions);

} // namespace bench

#endif
