#ifndef ZUVO_DRAW_H
#define ZUVO_DRAW_H

#include "engine/engine.h"
#include "engine/paint/painter.h"
#include "engine/surface/surface.h"

namespace zuvo {

/// Draws a shape in one colour onto the engine's output: `draw(painter, target)` answers false without memory.
template <typename Draw>
int draw_colour(uint32_t colour, bool blend, const Draw& draw)
{
    OpenSurface target(DIRECTFB_CORE_ONLY_TARGET);
    if (int error = target.open(engine.output))
        return error;
    Painter painter = paint_colour(target.pixels(), colour, blend);
    return draw(painter, target) ? ZUVO_OK : ZUVO_NO_MEMORY;
}

} // namespace zuvo

#endif
