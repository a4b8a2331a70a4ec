#ifndef BENCH_PICTURE_H
#define BENCH_PICTURE_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "colours.h"
#include "shape.h"

namespace bench {

/// The size of everything that is drawn on.
constexpr int picture_width = 1920;
constexpr int picture_height = 1080;

/// Pixels of 32 bits, 0xAARRGGBB, that somebody else owns.
struct Memory {
    std::uint32_t* pixels;
    std::ptrdiff_t pitch;   ///< In pixels.

    std::uint32_t* row(int y) const { return pixels + y * pitch; }
};

/// What a painter has drawn, without alpha: painters disagree about the alpha of a drawing on an opaque ground.
using Picture = std::vector<std::uint32_t>;

void clear(const Memory& memory, Colour colour);
Picture read(const Memory& memory);

/// The pixels that do not have the background's colour.
std::vector<Run> painted_runs(const Picture& picture);

/// The smallest box around the runs.
Box bounds(const std::vector<Run>& runs);

long count_pixels(const std::vector<Run>& runs);

} // namespace bench

#endif
