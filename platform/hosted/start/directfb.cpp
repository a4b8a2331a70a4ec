#include "directfb_start.h"
#include "driver/accel.h"
#include "options.h"
#include "platform.h"
#include "window/window.h"
#include "zuvo.h"

namespace {

/// The one graphics layer of a hosted platform: the platform's number, its handle, and DirectFB's number of it.
const unsigned int layer_number = 7;
const unsigned int layer_handle = 1;
const u32 directfb_layer_id = DLID_PRIMARY;

} // namespace

IDirectFB* zuvo_dfb_ext_open_with_params(unsigned int, int* argc, char*** argv)
{
    if (!zuvo::is_started())
        zuvo::read_start_options();
    zuvo::take_argument_options(argc, argv);

    if (DirectFBInit(argc, argv) != DFB_OK)
        return nullptr;
    const zuvo::DisplayFormat& format = *zuvo::options().format;
    directfb_complete_options(format.width, format.height, window_is_wanted());
    if (zuvo::options().accel)
        accel_register();

    IDirectFB* dfb = nullptr;
    if (DirectFBCreate(&dfb) != DFB_OK)
        return nullptr;
    directfb_note_start();
    return dfb;
}

void zuvo_dfb_ext_close(void)
{
    directfb_await_end();
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
    settings->layer_id = directfb_layer_id;
    return ZUVO_OK;
}
