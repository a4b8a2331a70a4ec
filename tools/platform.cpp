#include "platform.h"

#include <stdexcept>

#include <dtkhddvd.h>
#include <zuvo.h>

namespace tools {

namespace {

// The numbers that the platform gives to the parts of it that a drawing program needs.
constexpr unsigned int components = 4108;
constexpr unsigned int display_index = 1;
constexpr unsigned int directfb_mode = 6;
constexpr unsigned int graphics_layer = 7;

/// With or without a window, the graphics layer is that of a presentation engine.
std::string layer_words(int width, int height)
{
    return "--dfb:quiet,no-sighandler,no-cursor,pixelformat=ARGB,mode=" + std::to_string(width) + "x" +
           std::to_string(height);
}

IDirectFB* start_directfb(std::vector<std::string> arguments)
{
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    auto count = static_cast<int>(pointers.size());
    pointers.push_back(nullptr);

    char** vector = pointers.data();
    return zuvo_dfb_ext_open_with_params(directfb_mode, &count, &vector);
}

Owned<IDirectFBDisplayLayer> open_layer(IDirectFB* dfb)
{
    zuvo_dfb_ext_layer_settings settings = {};
    if (zuvo_dfb_ext_layer_get(zuvo_dfb_ext_layer_open(graphics_layer), &settings) != 0)
        throw std::runtime_error("the platform has no graphics layer");

    IDirectFBDisplayLayer* layer = nullptr;
    check(dfb->GetDisplayLayer(dfb, settings.layer_id, &layer), "cannot open the graphics layer");
    return Owned<IDirectFBDisplayLayer>(layer);
}

/// DirectFB has no texts for the toolkit's own results; the toolkit has said already what failed.
std::string text_of(DFBResult result)
{
    if (static_cast<unsigned int>(result) <= DTKHDDVD_THIZNULL)
        return "the toolkit's result is " + std::to_string(result);
    return DirectFBErrorString(result);
}

void configure(IDirectFBDisplayLayer* layer, int width, int height)
{
    DFBDisplayLayerConfig config = {};
    config.flags = static_cast<DFBDisplayLayerConfigFlags>(DLCONF_WIDTH | DLCONF_HEIGHT);
    config.width = width;
    config.height = height;
    check(layer->SetCooperativeLevel(layer, DLSCL_ADMINISTRATIVE), "cannot take over the graphics layer");
    check(layer->SetConfiguration(layer, &config), "cannot give the graphics layer its size");
    check(layer->SetBackgroundMode(layer, DLBM_COLOR), "cannot set the background");
}

DFBEnumerationResult count_device(DFBInputDeviceID, DFBInputDeviceDescription, void* count)
{
    ++*static_cast<int*>(count);
    return DFENUM_OK;
}

} // namespace

BackEnd back_end_named(const std::string& name)
{
    if (name == "software")
        return BackEnd::software;
    if (name == "hardware")
        return BackEnd::hardware;
    throw std::invalid_argument("the back end is software or hardware, not '" + name + "'");
}

const char* name_of(BackEnd back_end)
{
    return back_end == BackEnd::hardware ? "hardware" : "software";
}

bool is_platform_word(const std::string& argument)
{
    return argument.compare(0, 6, "--dfb:") == 0 || argument.compare(0, 7, "--zuvo:") == 0;
}

void check(DFBResult result, const std::string& what)
{
    if (result != DFB_OK)
        throw std::runtime_error(what + ": " + text_of(result));
}

Owned<IDirectFBSurface> create_surface(IDirectFB* dfb, int width, int height, DFBSurfacePixelFormat format)
{
    DFBSurfaceDescription description = {};
    description.flags = static_cast<DFBSurfaceDescriptionFlags>(DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT);
    description.width = width;
    description.height = height;
    description.pixelformat = format;
    IDirectFBSurface* surface = nullptr;
    check(dfb->CreateSurface(dfb, &description, &surface), "cannot create a surface");
    return Owned<IDirectFBSurface>(surface);
}

Platform::Platform(int width, int height, BackEnd back_end, const std::vector<std::string>& words)
{
    std::vector<std::string> arguments = {"dtk", layer_words(width, height)};
    arguments.insert(arguments.end(), words.begin(), words.end());
    if (back_end == BackEnd::software)
        arguments.push_back("--zuvo:dtk=off");

    zuvo_init(components);
    display_ = zuvo_display_open(display_index);
    dfb_ = start_directfb(arguments);
    const char* failure = nullptr;
    if (!dfb_)
        failure = "DirectFB does not start; --dfb:no-quiet tells why";
    else if (back_end == BackEnd::hardware && !has_engine())
        failure = "the platform has no drawing engine";
    if (failure) {
        stop();
        throw std::runtime_error(failure);
    }
}

Platform::~Platform()
{
    stop();
}

void Platform::stop()
{
    if (dfb_)
        dfb_->Release(dfb_);
    zuvo_dfb_ext_close();
    zuvo_display_close(display_);
    zuvo_uninit();
}

Owned<IDirectFBSurface> Platform::layer_surface(int width, int height) const
{
    const Owned<IDirectFBDisplayLayer> layer = open_layer(dfb_);
    configure(layer.get(), width, height);

    IDirectFBSurface* surface = nullptr;
    check(layer->GetSurface(layer.get(), &surface), "cannot get the surface of the graphics layer");
    return Owned<IDirectFBSurface>(surface);
}

/// A display comes with a keyboard; where DirectFB draws into memory alone there is none.
void Platform::require_display() const
{
    int count = 0;
    check(dfb_->EnumInputDevices(dfb_, count_device, &count), "cannot look for a keyboard");
    if (count == 0)
        throw std::runtime_error("there is no display; without --window none is needed");
}

bool Platform::has_engine() const
{
    return zuvo_dtk_get_handle() != 0;
}

bool Platform::is_accelerated() const
{
    // A driver need not list what it accelerates, so its name is what tells it from DirectFB's own.
    DFBGraphicsDeviceDescription device = {};
    return dfb_->GetDeviceDescription(dfb_, &device) == DFB_OK && device.name != std::string("Software Rasterizer");
}

} // namespace tools
