#include "targets.h"

using namespace recorder;

namespace {

DFBResult line(Form form, DTKHDDVD* thiz, int x1, int y1, int x2, int y2)
{
    const auto write = [=](Encoder& encoder) {
        encoder.natural(state().toolkits.of(thiz));
        encoder.point(bits(x1), bits(y1));
        encoder.point(bits(x2), bits(y2));
    };
    return pass_on(Number::line, form, DTKHDDVD_Line, write, thiz, x1, y1, x2, y2);
}

/// A rectangle or an ellipse.
DFBResult box(Number number, Form form, DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    if (Call().is_outermost())
        take_drawn_texture(thiz, flags);
    const auto write = [=](Encoder& encoder) {
        encoder.natural(state().toolkits.of(thiz));
        put_box(encoder, rect);
        encoder.natural(flags);
    };
    return pass_on(number, form, DTKHDDVD_Rectangle, write, thiz, rect, flags);
}

/// Points that the toolkit does not look at, because there are fewer than two, are none.
void put_points(Encoder& encoder, const DFBPoint* points, u32 num_points)
{
    const bool is_read = points && num_points > 1;
    encoder.byte(is_read);
    encoder.natural(num_points);
    for (u32 i = 0; is_read && i < num_points; ++i)
        encoder.point(bits(points[i].x), bits(points[i].y));
}

DFBResult polygon(Form form, DTKHDDVD* thiz, const DFBPoint* points, u32 num_points, u8 closed, u32 flags)
{
    const auto next = reinterpret_cast<decltype(&DTKHDDVD_Polygon)>(next_function(trace::code_of(Number::polygon, form)));
    const Call call;
    if (!call.is_outermost())
        return next(thiz, points, num_points, closed, flags);
    take_drawn_texture(thiz, flags);
    const std::size_t most_size = trace::most_call + std::size_t(num_points) * trace::most_point;
    const auto index = record(Number::polygon, form, points ? most_size : trace::most_call, [=](Encoder& encoder) {
        encoder.natural(state().toolkits.of(thiz));
        put_points(encoder, points, num_points);
        encoder.byte(closed);
        encoder.natural(flags);
    });
    const DFBResult result = next(thiz, points, num_points, closed, flags);
    if (result)
        record_result(index, result);
    return result;
}

} // namespace

DFBResult DTKHDDVD_Line(DTKHDDVD* thiz, int x1, int y1, int x2, int y2)
{
    return line(Form::plain, thiz, x1, y1, x2, y2);
}

DFBResult DTKHDDVD_Line_SW(DTKHDDVD* thiz, int x1, int y1, int x2, int y2)
{
    return line(Form::software, thiz, x1, y1, x2, y2);
}

DFBResult DTKHDDVD_Line_HW(DTKHDDVD* thiz, int x1, int y1, int x2, int y2)
{
    return line(Form::hardware, thiz, x1, y1, x2, y2);
}

DFBResult DTKHDDVD_Rectangle(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    return box(Number::rectangle, Form::plain, thiz, rect, flags);
}

DFBResult DTKHDDVD_Rectangle_SW(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    return box(Number::rectangle, Form::software, thiz, rect, flags);
}

DFBResult DTKHDDVD_Rectangle_HW(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    return box(Number::rectangle, Form::hardware, thiz, rect, flags);
}

DFBResult DTKHDDVD_Ellipse(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    return box(Number::ellipse, Form::plain, thiz, rect, flags);
}

DFBResult DTKHDDVD_Ellipse_SW(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    return box(Number::ellipse, Form::software, thiz, rect, flags);
}

DFBResult DTKHDDVD_Ellipse_HW(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    return box(Number::ellipse, Form::hardware, thiz, rect, flags);
}

DFBResult DTKHDDVD_Polygon(DTKHDDVD* thiz, const DFBPoint* points, u32 num_points, u8 closed, u32 flags)
{
    return polygon(Form::plain, thiz, points, num_points, closed, flags);
}

DFBResult DTKHDDVD_Polygon_SW(DTKHDDVD* thiz, const DFBPoint* points, u32 num_points, u8 closed, u32 flags)
{
    return polygon(Form::software, thiz, points, num_points, closed, flags);
}

DFBResult DTKHDDVD_Polygon_HW(DTKHDDVD* thiz, const DFBPoint* points, u32 num_points, u8 closed, u32 flags)
{
    return polygon(Form::hardware, thiz, points, num_points, closed, flags);
}
