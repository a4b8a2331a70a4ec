/// The engine's functions, in front of the platform library's own.
#include "faults/faults.h"

#include "zuvo.h"

#include <dlfcn.h>

namespace {

template <class... Arguments>
int pass_on(const char* name, int (*)(Arguments...), const void* caller, Arguments... arguments)
{
    if (faults::fails(name, caller))
        return faults::engine_refusal;
    using Function = int (*)(Arguments...);
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name))(arguments...);
}

} // namespace

extern "C" {

int zuvo_dtk_sync(unsigned int dtk)
{
    return pass_on("zuvo_dtk_sync", zuvo_dtk_sync, __builtin_return_address(0), dtk);
}

int zuvo_dtk_set_output_surface(unsigned int dtk, unsigned int surface)
{
    return pass_on("zuvo_dtk_set_output_surface", zuvo_dtk_set_output_surface, __builtin_return_address(0), dtk,
                   surface);
}

int zuvo_dtk_set_fill_color(unsigned int dtk, u8 r, u8 g, u8 b, u8 a)
{
    return pass_on("zuvo_dtk_set_fill_color", zuvo_dtk_set_fill_color, __builtin_return_address(0), dtk, r, g, b, a);
}

int zuvo_dtk_set_fill_pattern(unsigned int dtk, unsigned int surface)
{
    return pass_on("zuvo_dtk_set_fill_pattern", zuvo_dtk_set_fill_pattern, __builtin_return_address(0), dtk, surface);
}

int zuvo_dtk_set_pen(unsigned int dtk, const zuvo_dtk_pen* pen)
{
    return pass_on("zuvo_dtk_set_pen", zuvo_dtk_set_pen, __builtin_return_address(0), dtk, pen);
}

int zuvo_dtk_draw_line(unsigned int dtk, int x1, int y1, int x2, int y2, unsigned int flags)
{
    return pass_on("zuvo_dtk_draw_line", zuvo_dtk_draw_line, __builtin_return_address(0), dtk, x1, y1, x2, y2, flags);
}

int zuvo_dtk_draw_rectangle(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    return pass_on("zuvo_dtk_draw_rectangle", zuvo_dtk_draw_rectangle, __builtin_return_address(0), dtk, rect, flags);
}

int zuvo_dtk_draw_rectangle_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    return pass_on("zuvo_dtk_draw_rectangle_border", zuvo_dtk_draw_rectangle_border, __builtin_return_address(0), dtk,
                   rect, flags);
}

int zuvo_dtk_draw_ellipse(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    return pass_on("zuvo_dtk_draw_ellipse", zuvo_dtk_draw_ellipse, __builtin_return_address(0), dtk, rect, flags);
}

int zuvo_dtk_draw_ellipse_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    return pass_on("zuvo_dtk_draw_ellipse_border", zuvo_dtk_draw_ellipse_border, __builtin_return_address(0), dtk, rect,
                   flags);
}

int zuvo_dtk_draw_polygon(unsigned int dtk, const DFBPoint* points, unsigned int num_points, unsigned int reserved)
{
    return pass_on("zuvo_dtk_draw_polygon", zuvo_dtk_draw_polygon, __builtin_return_address(0), dtk, points, num_points,
                   reserved);
}

} // extern "C"
