#include "prescribed.h"

namespace bench {

Draw Prescribed::stamped(const Task& task) const
{
    IDirectFBSurface* surface = target_.get();
    IDirectFBSurface* scratch = scratch_.get();
    IDirectFBSurface* pen = pen_.get();
    const bool is_ellipse = task.shape.figure == Figure::ellipse;
    return [=, batches = record_stamps(surface, pen, task.shape)] {
        DFBSurfacePixelFormat format;
        int width = 0, height = 0;
        if (is_ellipse)
            scratch->GetPixelFormat(scratch, &format);
        pen->GetSize(pen, &width, &height);
        surface->SetBlittingFlags(surface, DSBLIT_SRC_COLORKEY);
        pen->AddRef(pen);
        pen->GetSize(pen, &width, &height);
        pen->GetSize(pen, &width, &height);
        for (const Stamps& batch : batches)
            surface->BatchBlit(surface, pen, batch.rectangles.data(), batch.points.data(),
                               static_cast<int>(batch.points.size()));
        pen->Release(pen);
    };
}

} // namespace bench
