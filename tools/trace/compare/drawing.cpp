#include "drawing.h"

namespace trace {

namespace {

void read_geometry(const Call& call, Drawing& drawing)
{
    Arguments arguments(call);
    arguments.number();
    if (call.number() == Number::line) {
        const DFBPoint from = arguments.point();
        drawing.points = {from, arguments.point()};
        drawing.flags = DTKHDDVD_STROKE;
    } else if (call.number() == Number::polygon) {
        drawing.points = arguments.points().points;
        drawing.is_closed = arguments.byte();
        drawing.flags = arguments.number();
    } else {
        drawing.box = arguments.box();
        drawing.flags = arguments.number();
    }
}

} // namespace

Drawing drawing_of(const Call& call, Player& player)
{
    const Toolkit& toolkit = player.toolkit(call.numbers[0]);
    Drawing drawing = {call.number(), {}, {}, false, 0, toolkit.stroke, toolkit.fill, nullptr, {}};
    drawing.texture = player.surface(toolkit.texture).surface.get();
    if (toolkit.pen)
        drawing.pen = player.pen(toolkit.pen).shape;
    read_geometry(call, drawing);
    return drawing;
}

DFBResult draw(const Drawing& drawing, DTKHDDVD* toolkit)
{
    const auto& points = drawing.points;
    switch (drawing.primitive) {
    case Number::line:
        return toolkit->Line(toolkit, points[0].x, points[0].y, points[1].x, points[1].y);
    case Number::polygon:
        return toolkit->Polygon(toolkit, points.data(), static_cast<u32>(points.size()), drawing.is_closed, drawing.flags);
    case Number::rectangle:
        return toolkit->Rectangle(toolkit, pointer(drawing.box), drawing.flags);
    default:
        return toolkit->Ellipse(toolkit, pointer(drawing.box), drawing.flags);
    }
}

} // namespace trace
