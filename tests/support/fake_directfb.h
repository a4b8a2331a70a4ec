#pragma once

#include <directfb.h>

namespace fake {

/// A display layer whose surface is the one given.
struct DisplayLayer : IDirectFBDisplayLayer {
    explicit DisplayLayer(IDirectFBSurface* surface_of_layer);

    int references = 0;
    IDirectFBSurface* surface;
};

/// DirectFB's main interface. The surfaces that it makes are named after their pixel format: the first of format ARGB
/// is called "scratch" or, when it is asked for without capabilities, "texture", of A8 "alpha", of LUT8 "pen"; later ones
/// get a number.
struct DirectFB : IDirectFB {
    DirectFB();

    int references = 1;
    DisplayLayer* layer = nullptr;
    DFBSurfacePixelFormat replaced_format = DSPF_UNKNOWN; ///< Made instead of ARGB when it is not DSPF_UNKNOWN.
};

} // namespace fake
