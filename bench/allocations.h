#ifndef BENCH_ALLOCATIONS_H
#define BENCH_ALLOCATIONS_H

#include <cstddef>
#include <map>
#include <string>

namespace bench {

struct Allocations {
    long count;
    std::size_t bytes;
};

/// Which library asked for memory while something ran, by the name of its file.
using AllocationsByLibrary = std::map<std::string, Allocations>;

/// Counts every malloc, calloc and realloc of the process from now on.
void start_counting();

/// Stops counting, and tells what was counted.
AllocationsByLibrary stop_counting();

} // namespace bench

#endif
