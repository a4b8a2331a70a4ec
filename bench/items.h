#ifndef BENCH_ITEMS_H
#define BENCH_ITEMS_H

#include <string>
#include <vector>

#include "shape.h"

namespace bench {

/// A row of the table.
struct Item {
    std::string name;
    Shape shape;
    double software_goal;   ///< How many times the prescribed calls the toolkit may take in software.
    double engine_goal;     ///< How many times the floor the toolkit may take on the drawing engine.
};

/// The rows, in the order of the table.
std::vector<Item> all_items();

} // namespace bench

#endif
