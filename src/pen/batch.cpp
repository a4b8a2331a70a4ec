#include "pen/batch.h"

#include <algorithm>
#include <cassert>

DFBRectangle batch_rectangles[DTKHDDVD_BATCH_SIZE];
DFBPoint batch_points[DTKHDDVD_BATCH_SIZE];
DFBRectangle batch_source_rect;
IDirectFBSurface* batch_source;
IDirectFBSurface* batch_dest;
int batch_n_blits;

namespace dtk {

StampBatch::Start StampBatch::start(IDirectFBSurface* dest, IDirectFBSurface* pen_surface)
{
    int width = 0, height = 0;
    pen_surface->GetSize(pen_surface, &width, &height);

    batch_dest = dest;
    batch_source = pen_surface;
    batch_n_blits = 0;
    batch_source_rect = {0, 0, 0, 0};
    return {width / 2, height / 2, pen_surface->GetSize(pen_surface, &batch_source_rect.w, &batch_source_rect.h)};
}

DFBResult StampBatch::send(int count, bool is_first)
{
    // All rectangles are the same, and the first batch is the longest.
    if (is_first)
        std::fill_n(batch_rectangles, count, batch_source_rect);
    assert(batch_n_blits == 0); // Two toolkits draw at the same moment otherwise.
    batch_n_blits = count;
    const DFBResult result = batch_dest->BatchBlit(batch_dest, batch_source, batch_rectangles, batch_points, count);
    batch_n_blits = 0;
    return result;
}

} // namespace dtk
