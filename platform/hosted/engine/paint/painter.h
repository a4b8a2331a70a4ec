#ifndef ZUVO_PAINTER_H
#define ZUVO_PAINTER_H

#include "engine/span.h"
#include "tiles.h"

namespace zuvo {

/// What becomes of the pixels of a painter of one colour.
enum class Paint { stored, blended, blended_without_alpha };

/// Writes spans onto a target in one way, chosen once.
struct Painter : RowSink {
    Pixels target;
    Paint paint;            ///< Of one colour only.
    uint32_t colour;
    Tiles tiles;
    const Rows* rows;
    void (*write_row)(uint32_t* target, const uint32_t* source, size_t count);
};

/// Returns a painter of one colour, which blends or stores it as it is.
Painter paint_colour(const Pixels& target, uint32_t colour, bool blend);

/// Returns a painter of a pattern that begins at (x, y). There is one such painter at a time.
Painter paint_pattern(const Pixels& target, const Pixels& pattern, int x, int y, bool blend);

} // namespace zuvo

#endif
