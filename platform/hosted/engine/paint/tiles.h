#ifndef ZUVO_TILES_H
#define ZUVO_TILES_H

#include "pixels.h"

namespace zuvo {

/// A picture that is repeated in both directions from an origin.
struct Tiles {
    Pixels pixels;
    const uint32_t* rests;  ///< For each of the pixels what blending leaves of a target; NULL if they are not prepared.
    int column, row;        ///< Of the pixel that lies on the target's first one; not negative.
    bool is_opaque;         ///< All pixels are known to be opaque.
};

/// Returns a pattern that begins at (x, y) as tiles. A small one is copied side by side to where its rows are longer and, if
/// asked for, prepared for blending. The copy is kept from one drawing to the next and there is one at a time.
Tiles make_tiles(const Pixels& pattern, int x, int y, bool is_prepared);

} // namespace zuvo

#endif
