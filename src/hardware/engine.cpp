#include "hardware/engine.h"

#include "geometry/color.h"

#include <cstdio>

namespace dtk {

namespace {

/// A blended border asks for the pen's size, as one that is stamped does, and does not use it.
void ask_pen_size(const DTKHDDVD_data& toolkit)
{
    int width = 0, height = 0;
    toolkit.pen->GetSize(toolkit.pen, &width, &height);
}

DFBResult fill_box(const DTKHDDVD_data& toolkit, const BoxPrimitive& primitive, const DFBRectangle& box, bool blends)
{
    return draw_fill(toolkit, primitive.messages,
                     [&] { return primitive.fill(toolkit.dtk, &box, draw_flags(blends)); });
}

DFBResult outline_box(const DTKHDDVD_data& toolkit, const BoxPrimitive& primitive, const DFBRectangle& box, bool blends)
{
    return draw_outline(toolkit, primitive.messages, [&](EngineErrors& errors) {
        errors.check(primitive.messages.draw_outline, primitive.border(toolkit.dtk, &box, draw_flags(blends)));
        if (blends)
            ask_pen_size(toolkit);
    });
}

} // namespace

void EngineErrors::print(const char* message, int error)
{
    std::fprintf(stderr, "%s: %s err 0x%x\n", messages_.operation, message, static_cast<unsigned>(error));
    remember_failure();
}

void bind_target(const DTKHDDVD_data& toolkit, EngineErrors& errors)
{
    // No target has the handle 0, which the engine refuses.
    unsigned handle = 0;
    if (toolkit.target)
        zuvo_dtk_surface_handle(toolkit.target, &handle);
    errors.check(errors.messages().bind_target, zuvo_dtk_set_output_surface(toolkit.dtk, handle));
}

void load_fill(const DTKHDDVD_data& toolkit, EngineErrors& errors)
{
    const DFBColor& color = toolkit.palette[fill_index];
    const int error = toolkit.has_fill_pattern
                          ? zuvo_dtk_set_fill_pattern(toolkit.dtk, toolkit.fill_pattern_handle)
                          : zuvo_dtk_set_fill_color(toolkit.dtk, color.r, color.g, color.b, color.a);
    errors.check(errors.messages().set_fill, error);
}

void load_pen(const DTKHDDVD_data& toolkit, EngineErrors& errors)
{
    const DTKHDDVDPenShape* shape = nullptr;
    DTKHDDVDPen_GetShape(toolkit.pen, &shape);
    const zuvo_dtk_pen pen = {shape->x0, shape->y0, shape->x1, shape->y1, shape->x2,
                              shape->y2, shape->x3, shape->y3, geometry::color_word(toolkit.palette[stroke_index])};
    errors.check(errors.messages().set_pen, zuvo_dtk_set_pen(toolkit.dtk, &pen));
}

DFBResult draw_box(const DTKHDDVD_data& toolkit, const BoxPrimitive& primitive, const DFBRectangle* box, u32 flags)
{
    if (!draws(flags))
        return result::ok;
    if (!box)
        return result::invalid_argument;

    // The engine never sees the caller's memory.
    const DFBRectangle copy = *box;
    const bool blends = needs_blending(toolkit, flags, toolkit.has_fill_pattern);
    if (flags & DTKHDDVD_FILL) {
        if (DFBResult result = fill_box(toolkit, primitive, copy, blends))
            return result;
    }
    return flags & DTKHDDVD_STROKE ? outline_box(toolkit, primitive, copy, blends) : result::ok;
}

} // namespace dtk
