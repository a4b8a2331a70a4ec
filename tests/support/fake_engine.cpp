#include "support/fake_engine.h"

#include "support/transcript.h"

#include <zuvo.h>

namespace fake {
namespace {

std::string box(const DFBRectangle& r)
{
    platform().last_memory = &r;
    return text("[%d %d %d %d]", r.x, r.y, r.w, r.h);
}

/// Engine calls answer an int of their own; the failures that tests ask for are passed on as they are.
int engine_call(const std::string& line)
{
    return static_cast<int>(transcript().call("zuvo_dtk_" + line));
}

} // namespace

Platform& platform()
{
    static Platform the_platform;
    return the_platform;
}

} // namespace fake

using fake::engine_call;
using fake::platform;
using fake::text;
using fake::transcript;

extern "C" {

unsigned int zuvo_dtk_get_handle(void)
{
    platform().handle_queries++;
    return platform().engine_handle;
}

int zuvo_dtk_sync(unsigned int dtk)
{
    return engine_call(text("sync(%u)", dtk));
}

int zuvo_dtk_set_output_surface(unsigned int dtk, unsigned int surface)
{
    return engine_call(text("set_output_surface(%u, %u)", dtk, surface));
}

int zuvo_dtk_set_fill_color(unsigned int dtk, u8 r, u8 g, u8 b, u8 a)
{
    return engine_call(text("set_fill_color(%u, %d, %d, %d, %d)", dtk, r, g, b, a));
}

int zuvo_dtk_set_fill_pattern(unsigned int dtk, unsigned int surface)
{
    return engine_call(text("set_fill_pattern(%u, %u)", dtk, surface));
}

int zuvo_dtk_set_pen(unsigned int dtk, const zuvo_dtk_pen* pen)
{
    return engine_call(text("set_pen(%u, [%d,%d %d,%d %d,%d %d,%d], %08x)", dtk, pen->x0, pen->y0, pen->x1, pen->y1,
                            pen->x2, pen->y2, pen->x3, pen->y3, pen->color));
}

int zuvo_dtk_draw_line(unsigned int dtk, int x1, int y1, int x2, int y2, unsigned int flags)
{
    return engine_call(text("draw_line(%u, %d, %d, %d, %d, 0x%x)", dtk, x1, y1, x2, y2, flags));
}

int zuvo_dtk_draw_rectangle(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    return engine_call(text("draw_rectangle(%u, %s, 0x%x)", dtk, fake::box(*rect).c_str(), flags));
}

int zuvo_dtk_draw_rectangle_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    return engine_call(text("draw_rectangle_border(%u, %s, 0x%x)", dtk, fake::box(*rect).c_str(), flags));
}

int zuvo_dtk_draw_ellipse(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    return engine_call(text("draw_ellipse(%u, %s, 0x%x)", dtk, fake::box(*rect).c_str(), flags));
}

int zuvo_dtk_draw_ellipse_border(unsigned int dtk, const DFBRectangle* rect, unsigned int flags)
{
    return engine_call(text("draw_ellipse_border(%u, %s, 0x%x)", dtk, fake::box(*rect).c_str(), flags));
}

int zuvo_dtk_draw_polygon(unsigned int dtk, const DFBPoint* points, unsigned int num_points, unsigned int reserved)
{
    platform().last_memory = points;
    std::string list;
    for (unsigned int i = 0; i < num_points; i++)
        list += text("%d,%d ", points[i].x, points[i].y);
    return engine_call(text("draw_polygon(%u, [", dtk) + list + text("], %u, %u)", num_points, reserved));
}

int zuvo_init(unsigned int components)
{
    return static_cast<int>(transcript().call(text("zuvo_init(%u)", components)));
}

void zuvo_uninit(void)
{
    transcript().note("zuvo_uninit()");
}

unsigned int zuvo_display_open(unsigned int index)
{
    return transcript().call(text("zuvo_display_open(%u)", index)) ? 0 : 31;
}

void zuvo_display_close(unsigned int display)
{
    transcript().note(text("zuvo_display_close(%u)", display));
}

int zuvo_display_get(unsigned int display, zuvo_display_settings* settings)
{
    *settings = zuvo_display_settings();
    settings->video_format = 4;
    settings->reserved[30] = 77;
    return static_cast<int>(transcript().call(text("zuvo_display_get(%u)", display)));
}

int zuvo_display_set(unsigned int display, zuvo_display_settings* settings)
{
    const u32 asked = settings->video_format;
    settings->video_format = platform().video_format;
    return static_cast<int>(transcript().call(
        text("zuvo_display_set(%u, format %u, last %u)", display, asked, settings->reserved[30])));
}

IDirectFB* zuvo_dfb_ext_open_with_params(unsigned int mode, int* argc, char*** argv)
{
    const DFBResult result = transcript().call(
        text("zuvo_dfb_ext_open_with_params(%u, %d, %s)", mode, *argc, *argc > 0 ? (*argv)[0] : "nothing"));
    return result ? nullptr : platform().directfb;
}

void zuvo_dfb_ext_close(void)
{
    transcript().note("zuvo_dfb_ext_close()");
}

unsigned int zuvo_dfb_ext_layer_open(unsigned int layer)
{
    return transcript().call(text("zuvo_dfb_ext_layer_open(%u)", layer)) ? 0 : 53;
}

int zuvo_dfb_ext_layer_get(unsigned int layer, zuvo_dfb_ext_layer_settings* settings)
{
    *settings = zuvo_dfb_ext_layer_settings();
    settings->layer_id = platform().layer_id;
    return static_cast<int>(transcript().call(text("zuvo_dfb_ext_layer_get(%u)", layer)));
}

} // extern "C"
