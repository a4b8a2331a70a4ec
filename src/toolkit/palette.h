#ifndef DTK_TOOLKIT_PALETTE_H
#define DTK_TOOLKIT_PALETTE_H

#include "toolkit/result.h"

namespace dtk {

/// Loads a toolkit's three colours into entries 0 to 2 of a surface's palette. A surface without one is no failure.
DFBResult push_palette(IDirectFBSurface* surface, const DFBColor (&colors)[3]);

} // namespace dtk

#endif
