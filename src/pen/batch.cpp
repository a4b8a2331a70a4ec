#include "pen/batch.h"

DFBRectangle batch_rectangles[DTKHDDVD_BATCH_SIZE];
DFBPoint batch_points[DTKHDDVD_BATCH_SIZE];
DFBRectangle batch_source_rect;
IDirectFBSurface* batch_source;
IDirectFBSurface* batch_dest;
int batch_n_blits;

namespace dtk {

StampBatch::StampBatch(IDirectFBSurface* dest, IDirectFBSurface* pen_surface)
{
    int width = 0, height = 0;
    pen_surface->GetSize(pen_surface, &width, &height);
    half_width_ = width / 2;
    half_height_ = height / 2;

    batch_dest = dest;
    batch_source = pen_surface;
    batch_n_blits = 0;
    batch_source_rect = {0, 0, 0, 0};
    result_ = pen_surface->GetSize(pen_surface, &batch_source_rect.w, &batch_source_rect.h);
}

DFBResult StampBatch::finish()
{
    if (batch_n_blits)
        send();
    return result_;
}

void StampBatch::send()
{
    result_ = batch_dest->BatchBlit(batch_dest, batch_source, batch_rectangles, batch_points, batch_n_blits);
    batch_n_blits = 0;
}

} // namespace dtk
