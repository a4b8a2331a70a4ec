#include "platform.h"

#include "zuvo.h"

/// Start-up, the display and DirectFB: one display of one format, one graphics layer.

namespace {

constexpr unsigned int display_index = 1, display_handle = 1;
constexpr unsigned int layer_number = 7, layer_handle = 1;
constexpr u32 video_format = 9;

bool started = false;

} // namespace

bool board::is_started()
{
    return started;
}

int zuvo_init(unsigned int)
{
    board::reset_engine();
    started = true;
    return ZUVO_OK;
}

void zuvo_uninit(void)
{
    started = false;
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
    settings->video_format = video_format;
    return ZUVO_OK;
}

int zuvo_display_set(unsigned int display, zuvo_display_settings* settings)
{
    if (settings && settings->video_format != 0 && settings->video_format != video_format)
        return ZUVO_NO_SUCH_VIDEO_FORMAT;
    return zuvo_display_get(display, settings);
}

/// DirectFB's options come from its own configuration; a board adds those of its system here.
IDirectFB* zuvo_dfb_ext_open_with_params(unsigned int, int* argc, char*** argv)
{
    if (DirectFBInit(argc, argv) != DFB_OK)
        return nullptr;
    board::prepare_directfb();
    IDirectFB* dfb = nullptr;
    return DirectFBCreate(&dfb) == DFB_OK ? dfb : nullptr;
}

void zuvo_dfb_ext_close(void)
{
    board::finish_directfb();
}

unsigned int zuvo_dfb_ext_layer_open(unsigned int layer)
{
    return layer == layer_number ? layer_handle : 0;
}

int zuvo_dfb_ext_layer_get(unsigned int layer, zuvo_dfb_ext_layer_settings* settings)
{
    if (layer != layer_handle)
        return ZUVO_NO_SUCH_LAYER;
    if (!settings)
        return ZUVO_NULL_ARGUMENT;
    *settings = {};
    settings->layer_id = DLID_PRIMARY;
    return ZUVO_OK;
}

const char* zuvo_error_text(int error)
{
    switch (error) {
    case ZUVO_OK:
        return "success";
    case ZUVO_NO_SUCH_DISPLAY:
    case ZUVO_NO_SUCH_VIDEO_FORMAT:
    case ZUVO_NO_SUCH_LAYER:
    case ZUVO_NO_SUCH_ENGINE:
        return "no such display, format, layer or engine";
    case ZUVO_NO_SUCH_SURFACE:
        return "no such surface, or it was released";
    case ZUVO_WRONG_PIXEL_FORMAT:
        return "a surface is neither ARGB nor RGB32";
    case ZUVO_NO_OUTPUT:
    case ZUVO_NO_FILL:
    case ZUVO_NO_PEN:
        return "an output surface, a fill or a pen is not set";
    case ZUVO_NULL_ARGUMENT:
    case ZUVO_PATTERN_IS_OUTPUT:
    case ZUVO_PEN_TOO_LARGE:
    case ZUVO_EMPTY_RECTANGLE:
        return "an argument is wrong";
    case ZUVO_LOCK_FAILED:
        return "the surface's memory cannot be reached";
    default:
        return "unknown error";
    }
}
