#ifndef DTK_PEN_BATCH_H
#define DTK_PEN_BATCH_H

#include "dtkhddvd.h"

namespace dtk {

/// Stamps a pen's picture, centred on one point after the other, and sends 64 stamps with each BatchBlit.
///
/// It fills the process-wide batch, so there is one at a time. A failed blit does not end the stamping.
class StampBatch {
public:
    StampBatch(IDirectFBSurface* dest, IDirectFBSurface* pen_surface);

    void add(int x, int y)
    {
        batch_rectangles[batch_n_blits] = batch_source_rect;
        batch_points[batch_n_blits] = {x - half_width_, y - half_height_};
        if (++batch_n_blits == DTKHDDVD_BATCH_SIZE)
            send();
    }

    /// Sends what is left. The result is that of the last DirectFB call.
    DFBResult finish();

private:
    void send();

    int half_width_ = 0;
    int half_height_ = 0;
    DFBResult result_;
};

} // namespace dtk

#endif
