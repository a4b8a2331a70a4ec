#include "support/fake_directfb.h"

#include "support/fake_surface.h"
#include "support/transcript.h"

#include <gtest/gtest.h>

namespace fake {
namespace {

DirectFB& self(IDirectFB* thiz)
{
    return *static_cast<DirectFB*>(thiz);
}

DFBResult call(IDirectFB* thiz, const std::string& line)
{
    EXPECT_GT(self(thiz).references, 0) << "dfb." << line << " was called after its last Release";
    return transcript().call("dfb." + line);
}

std::string format_name(DFBSurfacePixelFormat format)
{
    switch (format) {
    case DSPF_ARGB:
        return "ARGB";
    case DSPF_A8:
        return "A8";
    case DSPF_LUT8:
        return "LUT8";
    default:
        return text("format 0x%08x", static_cast<unsigned int>(format));
    }
}

std::string purpose(const DFBSurfaceDescription& description)
{
    if (!(description.flags & DSDESC_CAPS))
        return "texture";
    return description.pixelformat == DSPF_A8 ? "alpha" : description.pixelformat == DSPF_LUT8 ? "pen" : "scratch";
}

/// A description without caps is written without them, whatever its field holds.
std::string words(const DFBSurfaceDescription& description)
{
    const int caps = description.flags & DSDESC_CAPS ? int(description.caps) : 0;
    return text("flags %d, caps %d, %d x %d, ", int(description.flags), caps, description.width, description.height)
        + format_name(description.pixelformat);
}

DFBResult create_surface(IDirectFB* thiz, const DFBSurfaceDescription* description, IDirectFBSurface** ret_surface)
{
    if (DFBResult result = call(thiz, "CreateSurface(" + words(*description) + ")"))
        return result;
    DFBSurfacePixelFormat format = description->pixelformat;
    if (format == DSPF_ARGB && self(thiz).replaced_format != DSPF_UNKNOWN)
        format = self(thiz).replaced_format;
    *ret_surface = &new_surface(purpose(*description), description->width, description->height, format);
    return DFB_OK;
}

DFBResult get_display_layer(IDirectFB* thiz, DFBDisplayLayerID id, IDirectFBDisplayLayer** ret_layer)
{
    if (DFBResult result = call(thiz, text("GetDisplayLayer(%u)", id)))
        return result;
    self(thiz).layer->references++;
    *ret_layer = self(thiz).layer;
    return DFB_OK;
}

DisplayLayer& self(IDirectFBDisplayLayer* thiz)
{
    DisplayLayer& layer = *static_cast<DisplayLayer*>(thiz);
    EXPECT_GT(layer.references, 0) << "the layer was called after its last Release";
    return layer;
}

DFBResult set_configuration(IDirectFBDisplayLayer* thiz, const DFBDisplayLayerConfig* config)
{
    self(thiz);
    return transcript().call(
        text("layer.SetConfiguration(flags %d, %d x %d)", int(config->flags), config->width, config->height));
}

DFBResult get_surface(IDirectFBDisplayLayer* thiz, IDirectFBSurface** ret_surface)
{
    IDirectFBSurface* surface = self(thiz).surface;
    if (DFBResult result = transcript().call("layer.GetSurface()"))
        return result;
    static_cast<Surface*>(surface)->references++;
    *ret_surface = surface;
    return DFB_OK;
}

} // namespace

DisplayLayer::DisplayLayer(IDirectFBSurface* surface_of_layer) : IDirectFBDisplayLayer(), surface(surface_of_layer)
{
    Release = [](IDirectFBDisplayLayer* thiz) {
        self(thiz).references--;
        transcript().note("layer.Release()");
        return DirectResult(DFB_OK);
    };
    SetCooperativeLevel = [](IDirectFBDisplayLayer* thiz, DFBDisplayLayerCooperativeLevel level) {
        self(thiz);
        return transcript().call(text("layer.SetCooperativeLevel(%d)", int(level)));
    };
    SetBackgroundMode = [](IDirectFBDisplayLayer* thiz, DFBDisplayLayerBackgroundMode mode) {
        self(thiz);
        return transcript().call(text("layer.SetBackgroundMode(%d)", int(mode)));
    };
    SetConfiguration = set_configuration;
    GetSurface = get_surface;
}

DirectFB::DirectFB() : IDirectFB()
{
    AddRef = [](IDirectFB* thiz) {
        EXPECT_GT(self(thiz).references, 0) << "dfb is referenced after its last Release";
        transcript().note("dfb.AddRef()");
        self(thiz).references++;
        return DirectResult(DFB_OK);
    };
    Release = [](IDirectFB* thiz) {
        EXPECT_GT(self(thiz).references, 0) << "dfb is released too often";
        transcript().note("dfb.Release()");
        self(thiz).references--;
        return DirectResult(DFB_OK);
    };
    WaitIdle = [](IDirectFB* thiz) { return call(thiz, "WaitIdle()"); };
    SetVideoMode = [](IDirectFB* thiz, int width, int height, int bits) {
        return call(thiz, text("SetVideoMode(%d, %d, %d)", width, height, bits));
    };
    CreateSurface = create_surface;
    GetDisplayLayer = get_display_layer;
}

} // namespace fake
