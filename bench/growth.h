#ifndef BENCH_GROWTH_H
#define BENCH_GROWTH_H

#include "results.h"

namespace bench {

/// Every primitive at sizes from 10 to 1800 pixels, and polygons of 1000 to a million points. The names end with the size.
std::vector<Item> growing_items();

/// Fits the toolkit's times with `start + slope * pixels written` for each primitive, with `start + slope * points` for
/// the polygons of many points, and prints how well that holds.
void print_fits(const std::vector<Row>& rows);

} // namespace bench

#endif
