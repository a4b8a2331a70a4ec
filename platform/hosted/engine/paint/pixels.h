#ifndef ZUVO_PIXELS_H
#define ZUVO_PIXELS_H

#include "engine/span.h"

#include <cstddef>
#include <cstdint>

namespace zuvo {

/// Pixels 0xAARRGGBB in memory.
struct Pixels {
    uint32_t* words;
    size_t row_words;       ///< Words from one row to the next.
    Extent extent;
    bool has_alpha;

    uint32_t* row(int y) const { return words + static_cast<size_t>(y) * row_words; }
};

} // namespace zuvo

#endif
