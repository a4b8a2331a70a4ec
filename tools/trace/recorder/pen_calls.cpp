#include "surfaces.h"

using namespace recorder;

namespace {

template <typename Function, typename... Arguments>
DFBResult pass_on_pen(Number number, Form form, Function* function, DTKHDDVDPen* thiz, Arguments... arguments)
{
    const auto write = [=](Encoder& encoder) { encoder.natural(state().pens.of(thiz)); };
    return pass_on(number, form, function, write, thiz, arguments...);
}

DFBResult get_surface(Form form, DTKHDDVDPen* thiz, IDirectFBSurface** ret_surface)
{
    const bool is_outermost = Call().is_outermost();
    std::uint32_t number = 0;
    const auto write = [&](Encoder& encoder) {
        number = ret_surface ? state().surfaces.next() : 0;
        encoder.natural(state().pens.of(thiz));
        encoder.natural(number);
    };
    const DFBResult result = pass_on(Number::pen_get_surface, form, DTKHDDVDPen_GetSurface, write, thiz, ret_surface);
    if (is_outermost && !result && number)
        name_picture(*ret_surface, number);
    return result;
}

} // namespace

DFBResult DTKHDDVDPen_AddRef(DTKHDDVDPen* thiz)
{
    return pass_on_pen(Number::pen_add_ref, Form::plain, DTKHDDVDPen_AddRef, thiz);
}

DFBResult DTKHDDVDPen_Release(DTKHDDVDPen* thiz)
{
    return pass_on_pen(Number::pen_release, Form::plain, DTKHDDVDPen_Release, thiz);
}

DFBResult DTKHDDVDPen_GetSize(DTKHDDVDPen* thiz, int* ret_width, int* ret_height)
{
    return pass_on_pen(Number::pen_get_size, Form::plain, DTKHDDVDPen_GetSize, thiz, ret_width, ret_height);
}

DFBResult DTKHDDVDPen_GetSize_SW(DTKHDDVDPen* thiz, int* ret_width, int* ret_height)
{
    return pass_on_pen(Number::pen_get_size, Form::software, DTKHDDVDPen_GetSize, thiz, ret_width, ret_height);
}

DFBResult DTKHDDVDPen_GetSize_HW(DTKHDDVDPen* thiz, int* ret_width, int* ret_height)
{
    return pass_on_pen(Number::pen_get_size, Form::hardware, DTKHDDVDPen_GetSize, thiz, ret_width, ret_height);
}

DFBResult DTKHDDVDPen_GetSurface(DTKHDDVDPen* thiz, IDirectFBSurface** ret_surface)
{
    return get_surface(Form::plain, thiz, ret_surface);
}

DFBResult DTKHDDVDPen_GetSurface_SW(DTKHDDVDPen* thiz, IDirectFBSurface** ret_surface)
{
    return get_surface(Form::software, thiz, ret_surface);
}

DFBResult DTKHDDVDPen_GetSurface_HW(DTKHDDVDPen* thiz, IDirectFBSurface** ret_surface)
{
    return get_surface(Form::hardware, thiz, ret_surface);
}

DFBResult DTKHDDVDPen_GetShape(DTKHDDVDPen* thiz, const DTKHDDVDPenShape** ret_shape)
{
    return pass_on_pen(Number::pen_get_shape, Form::plain, DTKHDDVDPen_GetShape, thiz, ret_shape);
}

/// It returns nothing, and is called by the toolkit's own creation of pens, too.
void ComputeSize(const DTKHDDVDPenShape* shape, int* ret_width, int* ret_height)
{
    const auto next = reinterpret_cast<decltype(&ComputeSize)>(
        next_function(trace::code_of(Number::compute_size, Form::plain)));
    const Call call;
    if (call.is_outermost())
        record(Number::compute_size, Form::plain, trace::most_call, [=](Encoder& encoder) { put_shape(encoder, shape); });
    next(shape, ret_width, ret_height);
}
