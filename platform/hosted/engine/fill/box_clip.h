#ifndef ZUVO_BOX_CLIP_H
#define ZUVO_BOX_CLIP_H

#include "engine/span.h"

#include <directfb.h>

namespace zuvo {

/// Passes on only what lies inside a box.
struct BoxClip : RowSink {
    BoxClip(RowSink& passed_to, const DFBRectangle& inside);

    RowSink& sink;
    DFBRectangle box;
};

} // namespace zuvo

#endif
