#include "toolkit_painter.h"

#include "engine_switch.h"

namespace bench {

using tools::BackEnd;
using tools::check;

Owned<DTKHDDVD> create_toolkit(IDirectFB* dfb, IDirectFBSurface* surface, BackEnd back_end)
{
    const auto create =
        back_end == BackEnd::hardware ? CreateDrawingToolkit_HDDVD_HW : CreateDrawingToolkit_HDDVD_SW;
    DTKHDDVD* toolkit = nullptr;
    check(create(dfb, surface, 1, &toolkit), "cannot create a toolkit");
    return Owned<DTKHDDVD>(toolkit);
}

Owned<DTKHDDVDPen> create_pen(DTKHDDVD* toolkit, int size)
{
    const DTKHDDVDPenShape shape = pen_shape(size);
    DTKHDDVDPen* pen = nullptr;
    check(toolkit->CreatePen(toolkit, &shape, &pen), "cannot create a pen");
    return Owned<DTKHDDVDPen>(pen);
}

std::vector<DFBPoint> to_points(const std::vector<Point>& points)
{
    std::vector<DFBPoint> result;
    for (const Point& point : points)
        result.push_back({point.x, point.y});
    return result;
}

DTKHDDVDPenShape pen_shape(int size)
{
    const int near = -(size / 2);
    const int far = near + size;
    return {near, near, far, near, far, far, near, far};
}

ToolkitPainter::ToolkitPainter(IDirectFB* dfb, IDirectFBSurface* shared, BackEnd back_end)
    : SurfacePainter(shared), back_end_(back_end), texture_(create_texture(dfb))
{
    activate();
    toolkit_ = create_toolkit(dfb, surface(), back_end);
    wide_pen_ = create_pen(toolkit_.get(), 5);
    thin_pen_ = create_pen(toolkit_.get(), 1);
}

void ToolkitPainter::activate()
{
    tools::show_engine(back_end_ == BackEnd::hardware);
}

void ToolkitPainter::set_paint(Paint paint)
{
    DTKHDDVD* toolkit = toolkit_.get();
    const Colour colour = colour_of(paint);
    const auto r = static_cast<u8>(red(colour)), g = static_cast<u8>(green(colour)), b = static_cast<u8>(blue(colour));
    const auto a = static_cast<u8>(alpha(colour));
    check(toolkit->SetStrokeColor(toolkit, r, g, b, a), "cannot set the stroke colour");
    check(toolkit->SetFillColor(toolkit, r, g, b, a), "cannot set the fill colour");
    if (paint == Paint::textured)
        check(toolkit->SetFillPattern(toolkit, texture_.get()), "cannot set the fill pattern");
}

/// In software an outline of one pixel needs no pen, on the engine one of one pixel.
void ToolkitPainter::set_pen(Style style)
{
    DTKHDDVD* toolkit = toolkit_.get();
    DTKHDDVDPen* thin_pen = back_end_ == BackEnd::hardware ? thin_pen_.get() : nullptr;
    check(toolkit->SetPen(toolkit, style == Style::thick ? wide_pen_.get() : thin_pen), "cannot set the pen");
}

Draw ToolkitPainter::prepare(const Task& task)
{
    const Shape& shape = task.shape;
    activate();
    set_pen(shape.style);
    set_paint(shape.paint);

    DTKHDDVD* toolkit = toolkit_.get();
    const u32 flags = shape.style == Style::filled ? DTKHDDVD_FILL : DTKHDDVD_STROKE;
    const DFBRectangle box = to_rectangle(shape.box);
    const auto points = to_points(shape.points);
    switch (shape.figure) {
    case Figure::ellipse: return [=] { toolkit->Ellipse(toolkit, &box, flags); };
    case Figure::rectangle: return [=] { toolkit->Rectangle(toolkit, &box, flags); };
    case Figure::polygon:
        return [=] { toolkit->Polygon(toolkit, points.data(), static_cast<u32>(points.size()), 1, flags); };
    case Figure::line: break;
    }
    return [=] { toolkit->Line(toolkit, points[0].x, points[0].y, points[1].x, points[1].y); };
}

} // namespace bench
