#ifndef BENCH_FLOOR_ROWS_H
#define BENCH_FLOOR_ROWS_H

#include <cstdint>
#include <vector>

namespace bench {

/// Compiled for the machine that it runs on, in plain loops: what any implementation would be glad to reach.
/// Colours are premultiplied.
using PaintRow = void (*)(std::uint32_t* row, int width, std::uint32_t colour);

/// The ways to store a row: which one is the fastest depends on the size of the shape and on the machine.
std::vector<PaintRow> ways_to_store();

void blend_row(std::uint32_t* row, int width, std::uint32_t colour);
void blend_texture_row(std::uint32_t* row, int width, const std::uint32_t* source);

} // namespace bench

#endif
