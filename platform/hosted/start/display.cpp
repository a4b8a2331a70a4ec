#include "engine/surface/directfb_core.h"
#include "platform.h"
#include "options.h"
#include "zuvo.h"

namespace {

/// The one display of a hosted platform: its index and its handle.
const unsigned int display_index = 1;
const unsigned int display_handle = 1;

bool started = false;

} // namespace

bool zuvo::is_started()
{
    return started;
}

int zuvo_init(unsigned int)
{
    zuvo::read_start_options();
    zuvo::reset_engine();
    started = true;
    return ZUVO_OK;
}

void zuvo_uninit(void)
{
    started = false;
    directfb_core_forget_surfaces();
}

unsigned int zuvo_display_open(unsigned int index)
{
    return index == display_index ? display_handle : 0;
}

void zuvo_display_close(unsigned int)
{
}

int zuvo_display_get(unsigned int display, zuvo_display_settings* settings)
{
    if (display != display_handle)
        return ZUVO_NO_SUCH_DISPLAY;
    if (!settings)
        return ZUVO_NULL_ARGUMENT;

    *settings = {};
    settings->video_format = zuvo::options().format->video_format;
    return ZUVO_OK;
}

int zuvo_display_set(unsigned int display, zuvo_display_settings* settings)
{
    if (display != display_handle)
        return ZUVO_NO_SUCH_DISPLAY;
    if (!settings)
        return ZUVO_NULL_ARGUMENT;

    if (settings->video_format) {
        const zuvo::DisplayFormat* format = zuvo::find_format(settings->video_format);
        if (!format)
            return ZUVO_NO_SUCH_VIDEO_FORMAT;
        zuvo::set_format(format);
    }
    settings->video_format = zuvo::options().format->video_format;
    return ZUVO_OK;
}
