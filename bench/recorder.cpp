#include "recorder.h"

#include <dtkhddvd.h>

#include "toolkit_painter.h"

namespace bench {

namespace {

/// Replaces an operation of one interface record until the end of the scope; records are plain tables.
template <typename Operation>
class Replaced {
public:
    Replaced(Operation& slot, Operation replacement) : slot_(slot), original_(slot) { slot = replacement; }
    Replaced(const Replaced&) = delete;
    Replaced& operator=(const Replaced&) = delete;
    ~Replaced() { slot_ = original_; }

private:
    Operation& slot_;
    Operation original_;
};

DFBRectangle recorded_block;
std::vector<Stamps> recorded_stamps;

DFBResult keep_block(IDirectFBSurface*, int x, int y, int w, int h)
{
    recorded_block = {x, y, w, h};
    return DFB_OK;
}

DFBResult keep_stamps(IDirectFBSurface*, IDirectFBSurface*, const DFBRectangle* rectangles, const DFBPoint* points,
                      int count)
{
    recorded_stamps.push_back({{rectangles, rectangles + count}, {points, points + count}});
    return DFB_OK;
}

} // namespace

DFBRectangle record_block(IDirectFBSurface* surface, const DFBRectangle& box, u32 colour)
{
    const Replaced replaced(surface->FillRectangle, keep_block);
    fill_ellipse_argb(surface, &box, nullptr, colour);
    return recorded_block;
}

std::vector<Stamps> record_stamps(IDirectFBSurface* surface, IDirectFBSurface* pen, const Shape& shape)
{
    recorded_stamps.clear();
    const Replaced replaced(surface->BatchBlit, keep_stamps);
    const DFBRectangle box = to_rectangle(shape.box);
    if (shape.figure == Figure::ellipse)
        stamp_ellipse(surface, &box, pen);
    else if (shape.figure == Figure::rectangle)
        stamp_rectangle(surface, &box, pen);
    else
        stamp_line(surface, shape.points[0].x, shape.points[0].y, shape.points[1].x, shape.points[1].y, pen);
    return recorded_stamps;
}

} // namespace bench
