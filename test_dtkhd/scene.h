#ifndef TEST_DTKHD_SCENE_H
#define TEST_DTKHD_SCENE_H

#include <dtkhddvd.h>

namespace dtk {

/// What every frame is drawn with. Objects that could not be created are NULL.
struct Scene {
    IDirectFB* dfb;
    IDirectFBSurface* surface;
    int width, height; ///< Of the surface, in pixels.

    IDirectFBSurface* texture;
    DTKHDDVD* toolkit;
    DTKHDDVDPen* ellipse_pen;
    DTKHDDVDPen* polygon_pen;
    DTKHDDVDPen* line_pen;
    DTKHDDVDPen* rectangle_pens[5]; ///< Used in turn, one per frame.
};

} // namespace dtk

#endif
