#include "engine.h"

#include "engine/surface/surface.h"
#include "geometry/color.h"
#include "start/options.h"
#include "start/platform.h"

namespace zuvo {

Engine engine;

namespace {

const unsigned int engine_handle = 1;

bool is_there()
{
    return is_started() && read_options().engine;
}

} // namespace

bool is_engine(unsigned int handle)
{
    return handle == engine_handle && is_there();
}

void reset_engine()
{
    static_cast<State&>(engine) = {};
}

} // namespace zuvo

using zuvo::engine;

unsigned int zuvo_dtk_get_handle(void)
{
    return zuvo::is_there() ? zuvo::engine_handle : 0;
}

int zuvo_dtk_sync(unsigned int dtk)
{
    return zuvo::is_engine(dtk) ? ZUVO_OK : ZUVO_NO_SUCH_ENGINE;
}

int zuvo_dtk_set_output_surface(unsigned int dtk, unsigned int surface)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;

    engine.output = 0;
    if (int error = zuvo::check_surface(surface))
        return error;
    engine.output = surface;
    return ZUVO_OK;
}

int zuvo_dtk_set_fill_color(unsigned int dtk, u8 r, u8 g, u8 b, u8 a)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;

    engine.fill = zuvo::Fill::colour;
    engine.fill_colour = geometry::color_word({a, r, g, b});
    return ZUVO_OK;
}

int zuvo_dtk_set_fill_pattern(unsigned int dtk, unsigned int surface)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;

    engine.fill = zuvo::Fill::none;
    if (int error = zuvo::check_surface(surface))
        return error;
    engine.fill = zuvo::Fill::pattern;
    engine.pattern = surface;
    return ZUVO_OK;
}

int zuvo_dtk_set_pen(unsigned int dtk, const zuvo_dtk_pen* pen)
{
    if (!zuvo::is_engine(dtk))
        return ZUVO_NO_SUCH_ENGINE;

    engine.has_pen = false;
    if (!pen)
        return ZUVO_NULL_ARGUMENT;

    if (int error = engine.render_pen(*pen))
        return error;
    engine.pen = *pen;
    engine.has_pen = true;
    return ZUVO_OK;
}
