#include "surfaces.h"

using namespace recorder;

namespace {

/// Draws a pen's shape on a new surface. @p write puts what is between the shape and the surface.
template <typename Function, typename Write, typename... Arguments>
DFBResult render(Number number, Function* function, const Write& write, IDirectFB* dfb, const DTKHDDVDPenShape* shape,
                 IDirectFBSurface** ret_surface, Arguments... arguments)
{
    const bool is_outermost = Call().is_outermost();
    std::uint32_t surface = 0;
    const auto write_all = [&](Encoder& encoder) {
        surface = ret_surface ? state().surfaces.next() : 0;
        encoder.byte(dfb != nullptr);
        put_shape(encoder, shape);
        write(encoder);
        encoder.natural(surface);
    };
    const DFBResult result = pass_on(number, Form::plain, function, write_all, dfb, shape, arguments..., ret_surface);
    if (is_outermost && !result && surface)
        name_picture(*ret_surface, surface);
    return result;
}

/// Before a stamp: what it is drawn on, and what with.
void take_stamp(IDirectFBSurface* dest, IDirectFBSurface* pen_surface)
{
    if (!Call().is_outermost())
        return;
    describe(dest);
    take_picture(pen_surface);
}

DFBResult stamp_box(Number number, IDirectFBSurface* dest, const DFBRectangle* rect, IDirectFBSurface* pen_surface)
{
    take_stamp(dest, pen_surface);
    const auto write = [=](Encoder& encoder) {
        encoder.natural(state().surfaces.of(dest));
        put_box(encoder, rect);
        encoder.natural(state().surfaces.of(pen_surface));
    };
    return pass_on(number, Form::plain, stamp_rectangle, write, dest, rect, pen_surface);
}

DFBResult fill(Number number, IDirectFBSurface* dest, const DFBRectangle* rect, const DFBRectangle* clip, u32 color)
{
    if (Call().is_outermost())
        describe(dest);
    const auto write = [=](Encoder& encoder) {
        encoder.natural(state().surfaces.of(dest));
        put_box(encoder, rect);
        put_box(encoder, clip);
        encoder.word(color);
    };
    return pass_on(number, Form::plain, fill_ellipse_argb, write, dest, rect, clip, color);
}

} // namespace

DFBResult render_pen_shape_a8(IDirectFB* dfb, const DTKHDDVDPenShape* shape, IDirectFBSurface** ret_surface)
{
    return render(Number::render_pen_shape_a8, render_pen_shape_a8, [](Encoder&) {}, dfb, shape, ret_surface);
}

DFBResult render_pen_shape_lut8(IDirectFB* dfb, const DTKHDDVDPenShape* shape, u8 background_index, u8 foreground_index,
                                IDirectFBSurface** ret_surface)
{
    const auto write = [=](Encoder& encoder) {
        encoder.byte(background_index);
        encoder.byte(foreground_index);
    };
    return render(Number::render_pen_shape_lut8, render_pen_shape_lut8, write, dfb, shape, ret_surface, background_index,
                  foreground_index);
}

DFBResult stamp_line(IDirectFBSurface* dest, int x1, int y1, int x2, int y2, IDirectFBSurface* pen_surface)
{
    take_stamp(dest, pen_surface);
    const auto write = [=](Encoder& encoder) {
        encoder.natural(state().surfaces.of(dest));
        encoder.point(bits(x1), bits(y1));
        encoder.point(bits(x2), bits(y2));
        encoder.natural(state().surfaces.of(pen_surface));
    };
    return pass_on(Number::stamp_line, Form::plain, stamp_line, write, dest, x1, y1, x2, y2, pen_surface);
}

DFBResult stamp_rectangle(IDirectFBSurface* dest, const DFBRectangle* rect, IDirectFBSurface* pen_surface)
{
    return stamp_box(Number::stamp_rectangle, dest, rect, pen_surface);
}

DFBResult stamp_ellipse(IDirectFBSurface* dest, const DFBRectangle* rect, IDirectFBSurface* pen_surface)
{
    return stamp_box(Number::stamp_ellipse, dest, rect, pen_surface);
}

DFBResult fill_ellipse_argb(IDirectFBSurface* dest, const DFBRectangle* rect, const DFBRectangle* clip, u32 color)
{
    return fill(Number::fill_ellipse_argb, dest, rect, clip, color);
}

DFBResult fill_ellipse_lut8(IDirectFBSurface* dest, const DFBRectangle* rect, const DFBRectangle* clip, u32 color)
{
    return fill(Number::fill_ellipse_lut8, dest, rect, clip, color);
}

DFBResult outline_ellipse_argb(IDirectFBSurface* dest, const DFBRectangle* rect, u32 color)
{
    if (Call().is_outermost())
        describe(dest);
    const auto write = [=](Encoder& encoder) {
        encoder.natural(state().surfaces.of(dest));
        put_box(encoder, rect);
        encoder.word(color);
    };
    return pass_on(Number::outline_ellipse_argb, Form::plain, outline_ellipse_argb, write, dest, rect, color);
}
