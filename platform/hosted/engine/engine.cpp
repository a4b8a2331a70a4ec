#include "engine.h"

#include "../platform.h"
#include "../words.h"
#include "surface.h"

#include <cstring>

namespace zuvo {

Engine engine;

namespace {

const unsigned int engine_handle = 1;

bool is_there()
{
    return is_started() && read_wishes().engine;
}

bool has_same_shape(const zuvo_dtk_pen& one, const zuvo_dtk_pen& other)
{
    return !std::memcmp(&one, &other, offsetof(zuvo_dtk_pen, color));
}

int render_pen()
{
    engine.is_pen_rendered = false;
    if (int error = engine.pen_rows.render(engine.polygon, engine.pen))
        return error;
    engine.is_pen_rendered = true;
    return ZUVO_OK;
}

} // namespace

bool is_engine(unsigned int handle)
{
    return handle == engine_handle && is_there();
}

void reset_engine()
{
    engine.output = 0;
    engine.fill = Fill::none;
    engine.has_pen = false;
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
    engine.fill_colour = uint32_t(a) << 24 | uint32_t(r) << 16 | uint32_t(g) << 8 | b;
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

    const bool is_rendered = engine.is_pen_rendered && zuvo::has_same_shape(*pen, engine.pen);
    engine.pen = *pen;
    if (!is_rendered) {
        if (int error = zuvo::render_pen())
            return error;
    }
    engine.has_pen = true;
    return ZUVO_OK;
}
