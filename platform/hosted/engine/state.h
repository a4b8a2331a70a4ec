#ifndef ZUVO_STATE_H
#define ZUVO_STATE_H

#include "zuvo.h"

#include <cstdint>

namespace zuvo {

enum class Fill { none, colour, pattern };

/// What shapes are drawn onto and with. A plain record: in an empty one nothing is set.
struct State {
    unsigned int output;        ///< A surface handle, 0 when none is set.
    Fill fill;
    uint32_t fill_colour;
    unsigned int pattern;       ///< A surface handle.
    bool has_pen;
    zuvo_dtk_pen pen;
};

} // namespace zuvo

#endif
