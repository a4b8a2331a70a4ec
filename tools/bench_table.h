#ifndef TOOLS_BENCH_TABLE_H
#define TOOLS_BENCH_TABLE_H

#include "bench_row.h"

namespace tools {

/// Prints the head of the table for back ends of these names. From the second one on there is a column that compares it with
/// the first.
void print_head(const std::vector<std::string>& back_ends);

/// Prints a line of the table.
void print_row(const BenchRow& row);

} // namespace tools

#endif
