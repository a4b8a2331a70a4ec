#ifndef ZUVO_PAINTER_H
#define ZUVO_PAINTER_H

#include "span.h"

#include <cstddef>
#include <cstdint>

struct Rows;

namespace zuvo {

/// Pixels 0xAARRGGBB in memory.
struct Pixels {
    uint32_t* words;
    size_t row_words;       ///< Words from one row to the next.
    Extent extent;
    bool has_alpha;

    uint32_t* row(int y) const { return words + static_cast<size_t>(y) * row_words; }
};

/// A picture that is repeated in both directions from an origin.
struct Tiles {
    Pixels pixels;
    int x, y;
    int period;             ///< Columns after which a row of the picture begins again; a row may hold several.
};

/// Writes spans onto a target in one way, chosen once.
struct Painter : RowSink {
    Pixels target;
    uint32_t colour;
    Tiles tiles;
    const Rows* rows;
    void (*write_row)(uint32_t* target, const uint32_t* source, size_t count);
};

/// Answers a painter of one colour, which blends or stores it as it is.
Painter paint_colour(const Pixels& target, uint32_t colour, bool blend);

/// Answers a painter of a pattern that begins at (x, y). It holds room for a wider copy of a small pattern, so that
/// there is one such painter at a time.
Painter paint_pattern(const Pixels& target, const Pixels& pattern, int x, int y, bool blend);

} // namespace zuvo

#endif
