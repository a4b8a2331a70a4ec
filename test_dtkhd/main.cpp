#include <cstdio>

#include "toolkit/report.h"
#include "zuvo.h"

namespace {

// The numbers that the platform gives to the parts of it that the program needs.
constexpr unsigned int platform_components = 4108;
constexpr unsigned int platform_display = 1;
constexpr unsigned int directfb_mode = 6;
constexpr unsigned int graphics_layer = 7;
constexpr u32 video_format_1080 = 9;

struct Display {
    unsigned int handle;
    zuvo_display_settings settings;
};

Display open_display()
{
    Display display = {};
    display.handle = zuvo_display_open(platform_display);
    zuvo_display_get(display.handle, &display.settings);
    display.settings.video_format = 0;
    zuvo_display_set(display.handle, &display.settings);
    return display;
}

IDirectFB* start_directfb(const Display& display, int* argc, char*** argv)
{
    IDirectFB* dfb = zuvo_dfb_ext_open_with_params(directfb_mode, argc, argv);
    if (!dfb)
        return nullptr;
    if (display.settings.video_format == video_format_1080)
        dfb->SetVideoMode(dfb, 1920, 1080, 32);
    std::fputs("--DirectFB Initialized--\n", stderr);
    return dfb;
}

DFBResult get_layer(IDirectFB* dfb, IDirectFBDisplayLayer** ret_layer)
{
    const unsigned int layer = zuvo_dfb_ext_layer_open(graphics_layer);
    zuvo_dfb_ext_layer_settings settings = {};
    if (layer == 0 || zuvo_dfb_ext_layer_get(layer, &settings) != 0)
        return DFB_FAILURE;
    return dfb->GetDisplayLayer(dfb, settings.layer_id, ret_layer);
}

DFBResult configure(const Display& display, IDirectFBDisplayLayer* layer)
{
    if (display.settings.video_format != video_format_1080) {
        std::puts("not re-configured");
        return DFB_OK;
    }
    DFBDisplayLayerConfig config = {};
    config.flags = static_cast<DFBDisplayLayerConfigFlags>(DLCONF_WIDTH | DLCONF_HEIGHT);
    config.width = 1920;
    config.height = 1080;
    return layer->SetConfiguration(layer, &config);
}

DFBResult get_configured_surface(const Display& display, IDirectFBDisplayLayer* layer, IDirectFBSurface** ret_surface)
{
    if (DFBResult result = layer->SetCooperativeLevel(layer, DLSCL_ADMINISTRATIVE))
        return result;
    if (DFBResult result = configure(display, layer))
        return result;
    if (DFBResult result = layer->SetBackgroundMode(layer, DLBM_COLOR))
        return result;
    return layer->GetSurface(layer, ret_surface);
}

DFBResult get_layer_surface(const Display& display, IDirectFB* dfb, IDirectFBSurface** ret_surface)
{
    IDirectFBDisplayLayer* layer = nullptr;
    if (DFBResult result = get_layer(dfb, &layer))
        return result;
    const DFBResult result = get_configured_surface(display, layer, ret_surface);
    layer->Release(layer);
    return result;
}

void print_error(DFBResult result)
{
    std::fprintf(stderr, "ERROR!! %s\n", dtk::error_text(result));
}

void run(const Display& display, IDirectFB* dfb)
{
    IDirectFBSurface* surface = nullptr;
    DFBResult result = get_layer_surface(display, dfb, &surface);
    if (!result)
        result = test_dtkhd(dfb, surface);
    if (result)
        print_error(result);
    if (surface)
        surface->Release(surface);
}

} // namespace

int main(int argc, char** argv)
{
    zuvo_init(platform_components);
    const Display display = open_display();

    if (IDirectFB* dfb = start_directfb(display, &argc, &argv)) {
        run(display, dfb);
        dfb->Release(dfb);
    } else {
        print_error(DFB_INIT);
    }

    zuvo_dfb_ext_close();
    zuvo_display_close(display.handle);
    zuvo_uninit();
    return 0;
}
