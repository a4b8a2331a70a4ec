#include "accel_canvases.h"

#include <algorithm>
#include <string_view>

#include "accel_session.h"
#include "common/surface.h"
#include "directfb_variant.h"

namespace accel {
namespace {

/// New memory is not cleared by DirectFB; both buffers of a double surface are.
void clear(const Canvas& canvas)
{
    for (int i = 0; i < 2; ++i) {
        must(canvas.surface->Clear(canvas.surface, 0, 0, 0, 0));
        DFBSurfaceCapabilities caps;
        must(canvas.surface->GetCapabilities(canvas.surface, &caps));
        if (caps & DSCAPS_FLIPPING)
            must(canvas.surface->Flip(canvas.surface, nullptr, DSFLIP_NONE));
    }
    if (canvas.format == DSPF_LUT8)
        must(canvas.surface->SetSrcColorKeyIndex(canvas.surface, 2));
}

} // namespace

Canvases::Canvases(IDirectFB& directfb) : directfb_(directfb)
{
    add_layer();
    add("argb_video", DSPF_ARGB, DSCAPS_VIDEOONLY, width, height);
    add("argb_system", DSPF_ARGB, DSCAPS_SYSTEMONLY, width, height);
    add("argb_double", DSPF_ARGB, DSCAPS_DOUBLE, width, height);
    add("argb_premultiplied", DSPF_ARGB, DSCAPS_PREMULTIPLIED, width, height);
    add("rgb32_video", DSPF_RGB32, DSCAPS_VIDEOONLY, width, height);
    add("rgb32", DSPF_RGB32, DSCAPS_NONE, width, height);
    add("lut8_pad", DSPF_LUT8, DSCAPS_VIDEOONLY, width, height);
    add("lut8_pen4", DSPF_LUT8, DSCAPS_VIDEOONLY, 4, 5);
    add("lut8_pen17", DSPF_LUT8, DSCAPS_VIDEOONLY, 17, 9);
    add("lut8_pen64", DSPF_LUT8, DSCAPS_SYSTEMONLY, 64, 66);
    add("a8_system", DSPF_A8, DSCAPS_SYSTEMONLY, width, height);
    add("rgb16", DSPF_RGB16, DSCAPS_NONE, width, height);
    add_part("argb_part", {11, 7, 60, 40});
    add_part("argb_all", {0, 0, width, height});
}

Canvases::~Canvases()
{
    std::for_each(canvases_.rbegin(), canvases_.rend(),
                  [](const Canvas& canvas) { canvas.surface->Release(canvas.surface); });
}

void Canvases::add(const std::string& name, DFBSurfacePixelFormat format, DFBSurfaceCapabilities caps, int w, int h)
{
    const DFBSurfaceDescription description = common::describe(w, h, format, caps);
    Canvas canvas{name, nullptr, format, w, h, false};
    must(directfb_.CreateSurface(&directfb_, &description, &canvas.surface));
    clear(canvas);
    canvases_.push_back(canvas);
}

void Canvases::add_part(const std::string& name, const DFBRectangle& rect)
{
    Canvas canvas{name, nullptr, DSPF_ARGB, rect.w, rect.h, true};
    IDirectFBSurface* surface = named("argb_video").surface;
    must(surface->GetSubSurface(surface, &rect, &canvas.surface));
    canvases_.push_back(canvas);
}

void Canvases::add_layer()
{
    IDirectFBDisplayLayer* layer = nullptr;
    must(directfb_.GetDisplayLayer(&directfb_, DLID_PRIMARY, &layer));
    must(layer->SetCooperativeLevel(layer, DLSCL_ADMINISTRATIVE));
    DFBDisplayLayerConfig config{};
    config.flags = DLCONF_WIDTH | DLCONF_HEIGHT | DLCONF_BUFFERMODE;
    config.width = width;
    config.height = height;
    config.buffermode = DIRECTFB_LAYER_BUFFERS;
    must(layer->SetConfiguration(layer, &config));
    Canvas canvas{"layer", nullptr, DSPF_UNKNOWN, width, height, false};
    must(layer->GetSurface(layer, &canvas.surface));
    must(canvas.surface->GetPixelFormat(canvas.surface, &canvas.format));
    layer->Release(layer);
    clear(canvas);
    canvases_.push_back(canvas);
}

Canvas& Canvases::any(Dice& dice)
{
    return canvases_[static_cast<size_t>(dice.number(0, static_cast<int>(canvases_.size()) - 1))];
}

/// Not the same memory: DirectFB's renderer reads and writes beyond the surface then.
Canvas& Canvases::any_source_for(const Canvas& target, Dice& dice)
{
    for (;;) {
        Canvas& source = any(dice);
        const bool share = source.name.substr(0, 5) == "argb_" && target.name.substr(0, 5) == "argb_"
                           && (source.is_part || target.is_part);
        if (&source != &target && !share)
            return source;
    }
}

Canvas& Canvases::named(const std::string& name)
{
    return *std::find_if(canvases_.begin(), canvases_.end(), [&](const Canvas& canvas) { return canvas.name == name; });
}

Canvas& Canvases::any_pen(Dice& dice)
{
    const char* const names[] = {"lut8_pen4", "lut8_pen17", "lut8_pen64"};
    return named(names[dice.number(0, 2)]);
}

Canvas& Canvases::any_flipped(Dice& dice) { return named(dice.one_in(2) ? "layer" : "argb_double"); }

size_t hash_of(const Canvas& canvas)
{
    IDirectFBSurface* surface = canvas.surface;
    void* memory = nullptr;
    int pitch = 0;
    must(surface->Lock(surface, DSLF_READ | DSLF_WRITE, &memory, &pitch));
    const size_t row_bytes = static_cast<size_t>(DFB_BYTES_PER_LINE(canvas.format, canvas.width));
    size_t hash = 0;
    for (int y = 0; y < canvas.height; ++y) {
        const std::string_view row(static_cast<const char*>(memory) + y * pitch, row_bytes);
        hash = hash * 31 + std::hash<std::string_view>()(row);
    }
    must(surface->Unlock(surface));
    return hash;
}

} // namespace accel
