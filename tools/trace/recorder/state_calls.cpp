#include "surfaces.h"
#include "targets.h"

using namespace recorder;

namespace {

DFBResult set_color(Number number, Form form, DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    const auto write = [=](Encoder& encoder) {
        encoder.natural(state().toolkits.of(thiz));
        put_color(encoder, r, g, b, a);
    };
    return pass_on(number, form, DTKHDDVD_SetStrokeColor, write, thiz, r, g, b, a);
}

DFBResult set_fill_color(Form form, DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    if (state().takes_drawn_textures && Call().is_outermost() && thiz)
        texture_was_set(thiz, nullptr);
    return set_color(Number::set_fill_color, form, thiz, r, g, b, a);
}

DFBResult set_fill_pattern(Form form, DTKHDDVD* thiz, IDirectFBSurface* texture)
{
    if (Call().is_outermost()) {
        take_picture(texture);
        if (thiz)
            texture_was_set(thiz, texture);
    }
    const auto write = [=](Encoder& encoder) {
        encoder.natural(state().toolkits.of(thiz));
        encoder.natural(state().surfaces.of(texture));
    };
    return pass_on(Number::set_fill_pattern, form, DTKHDDVD_SetFillPattern, write, thiz, texture);
}

DFBResult create_pen(Form form, DTKHDDVD* thiz, const DTKHDDVDPenShape* shape, DTKHDDVDPen** ret_pen)
{
    const bool is_outermost = Call().is_outermost();
    std::uint32_t number = 0;
    const auto write = [&](Encoder& encoder) {
        number = ret_pen ? state().pens.next() : 0;
        encoder.natural(state().toolkits.of(thiz));
        put_shape(encoder, shape);
        encoder.natural(number);
    };
    const DFBResult result = pass_on(Number::create_pen, form, DTKHDDVD_CreatePen, write, thiz, shape, ret_pen);
    if (is_outermost && !result && number) {
        const Turn turn;
        state().pens.name(*ret_pen, number);
    }
    return result;
}

DFBResult set_pen(Form form, DTKHDDVD* thiz, DTKHDDVDPen* pen)
{
    const auto write = [=](Encoder& encoder) {
        encoder.natural(state().toolkits.of(thiz));
        encoder.natural(state().pens.of(pen));
    };
    return pass_on(Number::set_pen, form, DTKHDDVD_SetPen, write, thiz, pen);
}

} // namespace

DFBResult DTKHDDVD_SetStrokeColor(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    return set_color(Number::set_stroke_color, Form::plain, thiz, r, g, b, a);
}

DFBResult DTKHDDVD_SetStrokeColor_SW(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    return set_color(Number::set_stroke_color, Form::software, thiz, r, g, b, a);
}

DFBResult DTKHDDVD_SetStrokeColor_HW(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    return set_color(Number::set_stroke_color, Form::hardware, thiz, r, g, b, a);
}

DFBResult DTKHDDVD_SetFillColor(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    return set_fill_color(Form::plain, thiz, r, g, b, a);
}

DFBResult DTKHDDVD_SetFillColor_SW(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    return set_fill_color(Form::software, thiz, r, g, b, a);
}

DFBResult DTKHDDVD_SetFillColor_HW(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    return set_fill_color(Form::hardware, thiz, r, g, b, a);
}

DFBResult DTKHDDVD_SetFillPattern(DTKHDDVD* thiz, IDirectFBSurface* texture)
{
    return set_fill_pattern(Form::plain, thiz, texture);
}

DFBResult DTKHDDVD_SetFillPattern_SW(DTKHDDVD* thiz, IDirectFBSurface* texture)
{
    return set_fill_pattern(Form::software, thiz, texture);
}

DFBResult DTKHDDVD_SetFillPattern_HW(DTKHDDVD* thiz, IDirectFBSurface* texture)
{
    return set_fill_pattern(Form::hardware, thiz, texture);
}

DFBResult DTKHDDVD_CreatePen(DTKHDDVD* thiz, const DTKHDDVDPenShape* shape, DTKHDDVDPen** ret_pen)
{
    return create_pen(Form::plain, thiz, shape, ret_pen);
}

DFBResult DTKHDDVD_CreatePen_SW(DTKHDDVD* thiz, const DTKHDDVDPenShape* shape, DTKHDDVDPen** ret_pen)
{
    return create_pen(Form::software, thiz, shape, ret_pen);
}

DFBResult DTKHDDVD_CreatePen_HW(DTKHDDVD* thiz, const DTKHDDVDPenShape* shape, DTKHDDVDPen** ret_pen)
{
    return create_pen(Form::hardware, thiz, shape, ret_pen);
}

DFBResult DTKHDDVD_SetPen(DTKHDDVD* thiz, DTKHDDVDPen* pen)
{
    return set_pen(Form::plain, thiz, pen);
}

DFBResult DTKHDDVD_SetPen_SW(DTKHDDVD* thiz, DTKHDDVDPen* pen)
{
    return set_pen(Form::software, thiz, pen);
}

DFBResult DTKHDDVD_SetPen_HW(DTKHDDVD* thiz, DTKHDDVDPen* pen)
{
    return set_pen(Form::hardware, thiz, pen);
}
