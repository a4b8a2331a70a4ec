#include <stdexcept>

#include "player.h"

/// Colours, shapes, what pens tell, and the pixel routines.
namespace trace {

namespace {

bool is_inside(const DFBRectangle& box, const Surface& surface)
{
    return box.x >= 0 && box.y >= 0 && box.w >= 0 && box.h >= 0 && box.w <= surface.width - box.x &&
           box.h <= surface.height - box.y;
}

/// The outline of a box of even size reaches one column and one row further, a thin one may on every side.
bool holds_outline(const DFBRectangle& box, const Surface& surface)
{
    if (!is_inside(box, surface))
        return false;
    if (box.w < 3 || box.h < 3)
        return is_inside({box.x - 2, box.y - 2, box.w + 4, box.h + 4}, surface);
    return is_inside({box.x, box.y, box.w | 1, box.h | 1}, surface);
}

void require(bool condition, const char* otherwise)
{
    if (!condition)
        throw std::runtime_error(otherwise);
}

constexpr char no_box[] = "it passes no box to a routine that needs one";
constexpr char no_surface[] = "it passes no surface to a routine that needs one";

} // namespace

DFBResult Player::set_stroke_color(Arguments& arguments)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    const DFBColor color = toolkit.stroke = arguments.color();
    return DTKHDDVD_SetStrokeColor(toolkit.toolkit, color.r, color.g, color.b, color.a);
}

DFBResult Player::set_fill_color(Arguments& arguments)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    const DFBColor color = toolkit.fill = arguments.color();
    toolkit.texture = 0;
    return DTKHDDVD_SetFillColor(toolkit.toolkit, color.r, color.g, color.b, color.a);
}

DFBResult Player::set_fill_pattern(Arguments& arguments)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    const std::uint32_t texture = arguments.number();
    IDirectFBSurface* surface = living_surface(texture).surface.get();
    const DFBResult result = DTKHDDVD_SetFillPattern(toolkit.toolkit, surface);
    toolkit.texture = result ? 0 : texture;
    return result;
}

DFBResult Player::line(Arguments& arguments)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    const DFBPoint from = arguments.point(), to = arguments.point();
    return DTKHDDVD_Line(toolkit.toolkit, from.x, from.y, to.x, to.y);
}

DFBResult Player::draw_box(Arguments& arguments, decltype(&DTKHDDVD_Rectangle) draw)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    const Box box = arguments.box();
    return draw(toolkit.toolkit, pointer(box), arguments.number());
}

DFBResult Player::rectangle(Arguments& arguments)
{
    return draw_box(arguments, DTKHDDVD_Rectangle);
}

DFBResult Player::ellipse(Arguments& arguments)
{
    return draw_box(arguments, DTKHDDVD_Ellipse);
}

DFBResult Player::polygon(Arguments& arguments)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    const Arguments::Points points = arguments.points();
    const u8 closed = arguments.byte();
    return DTKHDDVD_Polygon(toolkit.toolkit, points.get(), points.count, closed, arguments.number());
}

DFBResult Player::pen_get_size(Arguments& arguments)
{
    int width, height;
    return DTKHDDVDPen_GetSize(living_pen(arguments.number()).pen, &width, &height);
}

DFBResult Player::pen_get_shape(Arguments& arguments)
{
    const DTKHDDVDPenShape* shape;
    return DTKHDDVDPen_GetShape(living_pen(arguments.number()).pen, &shape);
}

DFBResult Player::compute_size(Arguments& arguments)
{
    int width, height;
    const auto shape = arguments.shape();
    require(shape.has_value(), "it asks for the size of no shape");
    ComputeSize(&*shape, &width, &height);
    return DFB_OK;
}

/// Keeps a surface that a call has made under its number. There may be none.
DFBResult Player::keep(IDirectFBSurface* made, DFBResult result, std::uint32_t number)
{
    Surface& surface = surfaces_.add(number);
    if (result || !made)
        return result;
    if (surface.surface)
        replaced_.push_back(std::move(surface));
    surface = {tools::Owned<IDirectFBSurface>(made), 0, 0, DSPF_UNKNOWN};
    made->GetSize(made, &surface.width, &surface.height);
    made->GetPixelFormat(made, &surface.format);
    return result;
}

DFBResult Player::pen_get_surface(Arguments& arguments)
{
    Pen& pen = living_pen(arguments.number());
    const std::uint32_t number = arguments.number();
    IDirectFBSurface* surface = nullptr;
    const DFBResult result = DTKHDDVDPen_GetSurface(pen.pen, number ? &surface : nullptr);
    return keep(surface, result, number);
}

DFBResult Player::render_a8(Arguments& arguments)
{
    const bool has_directfb = arguments.number();
    const auto shape = arguments.shape();
    const std::uint32_t number = arguments.number();
    require(has_directfb && shape && number, "it draws a pen's shape without DirectFB, a shape or a place for it");
    spend_pen(*shape);
    IDirectFBSurface* surface = nullptr;
    const DFBResult result = render_pen_shape_a8(dfb_, &*shape, &surface);
    return keep(surface, result, number);
}

DFBResult Player::render_lut8(Arguments& arguments)
{
    const bool has_directfb = arguments.number();
    const auto shape = arguments.shape();
    const u8 background = arguments.byte(), foreground = arguments.byte();
    const std::uint32_t number = arguments.number();
    require(has_directfb && shape && number, "it draws a pen's shape without DirectFB, a shape or a place for it");
    spend_pen(*shape);
    IDirectFBSurface* surface = nullptr;
    const DFBResult result = render_pen_shape_lut8(dfb_, &*shape, background, foreground, &surface);
    return keep(surface, result, number);
}

DFBResult Player::stamp_along_line(Arguments& arguments)
{
    Surface& dest = living_surface(arguments.number());
    const DFBPoint from = arguments.point(), to = arguments.point();
    Surface& pen = living_surface(arguments.number());
    require(dest.surface && pen.surface, no_surface);
    return stamp_line(dest.surface.get(), from.x, from.y, to.x, to.y, pen.surface.get());
}

DFBResult Player::stamp_box(Arguments& arguments, decltype(&stamp_rectangle) stamp)
{
    Surface& dest = living_surface(arguments.number());
    const Box box = arguments.box();
    Surface& pen = living_surface(arguments.number());
    require(dest.surface && pen.surface, no_surface);
    require(box.has_value(), no_box);
    return stamp(dest.surface.get(), &*box, pen.surface.get());
}

DFBResult Player::stamp_along_rectangle(Arguments& arguments)
{
    return stamp_box(arguments, stamp_rectangle);
}

DFBResult Player::stamp_along_ellipse(Arguments& arguments)
{
    return stamp_box(arguments, stamp_ellipse);
}

DFBResult Player::fill_alone(Arguments& arguments, decltype(&fill_ellipse_argb) fill)
{
    Surface& dest = living_surface(arguments.number());
    const Box box = arguments.box(), clip = arguments.box();
    require(dest.surface != nullptr, no_surface);
    require(box.has_value(), no_box);
    require(!clip || is_inside(*clip, dest), "it fills an ellipse with a clip outside the surface");
    return fill(dest.surface.get(), &*box, pointer(clip), arguments.number());
}

DFBResult Player::fill_argb(Arguments& arguments)
{
    return fill_alone(arguments, fill_ellipse_argb);
}

DFBResult Player::fill_lut8(Arguments& arguments)
{
    return fill_alone(arguments, fill_ellipse_lut8);
}

DFBResult Player::outline_argb(Arguments& arguments)
{
    Surface& dest = living_surface(arguments.number());
    const Box box = arguments.box();
    require(dest.surface != nullptr, no_surface);
    require(box && holds_outline(*box, dest), "it draws an ellipse's outline outside the surface");
    return outline_ellipse_argb(dest.surface.get(), &*box, arguments.number());
}

std::uint32_t drawn_surface(const Call& call, Player& player)
{
    if (call.number() >= Number::line && call.number() <= Number::ellipse)
        return player.toolkit(call.numbers[0]).target;
    return call.number() >= Number::stamp_line ? call.numbers[0] : 0;
}

} // namespace trace
