#ifndef BENCH_TOOLKIT_PAINTER_H
#define BENCH_TOOLKIT_PAINTER_H

#include <dtkhddvd.h>

#include "surface_painter.h"

namespace bench {

inline DFBRectangle to_rectangle(const Box& box)
{
    return {box.x, box.y, box.w, box.h};
}

std::vector<DFBPoint> to_points(const std::vector<Point>& points);

/// The shape of the pen that leaves @p size x @p size pixels with both back ends: a pen is as wide as its corners are
/// apart.
DTKHDDVDPenShape pen_shape(int size);

/// A toolkit with a scratch pad.
Owned<DTKHDDVD> create_toolkit(IDirectFB* dfb, IDirectFBSurface* surface, tools::BackEnd back_end);

/// A pen that leaves @p size x @p size pixels.
Owned<DTKHDDVDPen> create_pen(DTKHDDVD* toolkit, int size);

/// Draws with the toolkit, in software or on the drawing engine.
class ToolkitPainter : public SurfacePainter {
public:
    ToolkitPainter(IDirectFB* dfb, IDirectFBSurface* shared, tools::BackEnd back_end);

    void activate() override;
    Draw prepare(const Task& task) override;

private:
    void set_paint(Paint paint);
    void set_pen(Style style);

    tools::BackEnd back_end_;
    Owned<IDirectFBSurface> texture_;
    Owned<DTKHDDVD> toolkit_;
    Owned<DTKHDDVDPen> wide_pen_;
    Owned<DTKHDDVDPen> thin_pen_;
};

} // namespace bench

#endif
