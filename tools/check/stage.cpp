#include "stage.h"

#include <stdexcept>

#include <zuvo.h>

#include "engine_switch.h"

namespace conformance {
namespace {

/// Calls `visit(pixel, index)` for every pixel of a surface.
template <typename Visit>
void visit_pixels(IDirectFBSurface* surface, const Visit& visit)
{
    int width = 0, height = 0, pitch = 0;
    void* memory = nullptr;
    surface->GetSize(surface, &width, &height);
    const auto both = static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE);
    if (surface->Lock(surface, both, &memory, &pitch) != DFB_OK)
        throw std::runtime_error("a surface cannot be locked");
    std::size_t index = 0;
    for (int y = 0; y < height; ++y) {
        u32* const row = static_cast<u32*>(memory) + y * (pitch / 4);
        for (int x = 0; x < width; ++x)
            visit(row[x], index++);
    }
    surface->Unlock(surface);
}

void fill_with_noise(IDirectFBSurface* surface, unsigned seed)
{
    std::mt19937 random(seed);
    visit_pixels(surface, [&random](u32& pixel, std::size_t) { pixel = static_cast<u32>(random()); });
}

/// cairo takes an ARGB texture as premultiplied, so no colour of it exceeds its alpha.
void fill_with_premultiplied_noise(IDirectFBSurface* surface, unsigned seed)
{
    std::mt19937 random(seed);
    visit_pixels(surface, [&random](u32& pixel, std::size_t) {
        const u32 alpha = static_cast<u32>(random() % 256);
        const auto channel = [&] { return static_cast<u32>(random() % (alpha + 1)); };
        pixel = alpha << 24 | channel() << 16 | channel() << 8 | channel();
    });
}

void write(IDirectFBSurface* surface, const Picture& picture)
{
    visit_pixels(surface, [&picture](u32& pixel, std::size_t index) { pixel = picture[index]; });
}

DFBResult draw_primitive(DTKHDDVD* toolkit, const Scene& scene)
{
    const std::vector<DFBPoint>& points = scene.points;
    switch (scene.primitive) {
    case Primitive::line:
        return toolkit->Line(toolkit, points[0].x, points[0].y, points[1].x, points[1].y);
    case Primitive::rectangle:
        return toolkit->Rectangle(toolkit, &scene.rect, scene.flags);
    case Primitive::polygon:
        return toolkit->Polygon(toolkit, points.data(), static_cast<u32>(points.size()), scene.is_closed, scene.flags);
    default:
        return toolkit->Ellipse(toolkit, &scene.rect, scene.flags);
    }
}

/// The engine draws nothing without a pen; one of one pixel is its way to say none.
std::optional<DTKHDDVDPenShape> pen_for(BackEnd back_end, const Scene& scene)
{
    if (back_end == BackEnd::hardware && !scene.pen)
        return DTKHDDVDPenShape{0, 0, 1, 0, 1, 1, 0, 1};
    return scene.pen;
}

} // namespace

Picture read(IDirectFBSurface* surface)
{
    if (const unsigned int engine = zuvo_dtk_get_handle())
        zuvo_dtk_sync(engine);
    Picture picture;
    visit_pixels(surface, [&picture](u32& pixel, std::size_t) { picture.push_back(pixel); });
    return picture;
}

Surface part_of(IDirectFBSurface* surface, const DFBRectangle& rect)
{
    IDirectFBSurface* part = nullptr;
    if (surface->GetSubSurface(surface, &rect, &part) != DFB_OK)
        throw std::runtime_error("no part of a surface");
    return Surface(part);
}

Picture random_picture(std::mt19937& random)
{
    Picture picture(surface_width * surface_height);
    for (u32& pixel : picture)
        pixel = static_cast<u32>(random());
    return picture;
}

Stage::Stage(IDirectFB* dfb) : dfb_(dfb)
{
    argb_target_ = make_surface(surface_width, surface_height, DSPF_ARGB);
    rgb32_target_ = make_surface(surface_width, surface_height, DSPF_RGB32);
    textures_[Texture::argb] = make_surface(15, 15, DSPF_ARGB);
    fill_with_premultiplied_noise(textures_[Texture::argb].get(), 1);
    textures_[Texture::rgb32] = make_surface(33, 7, DSPF_RGB32);
    fill_with_noise(textures_[Texture::rgb32].get(), 2);
    for (const Texture mark : {Texture::first_mark, Texture::second_mark}) {
        textures_[mark] = make_surface(1, 1, DSPF_RGB32);
        fill_with_noise(textures_[mark].get(), static_cast<unsigned>(mark));
    }
}

Surface Stage::make_surface(int width, int height, DFBSurfacePixelFormat format) const
{
    DFBSurfaceDescription description = {};
    description.flags = static_cast<DFBSurfaceDescriptionFlags>(DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT);
    description.width = width;
    description.height = height;
    description.pixelformat = format;
    IDirectFBSurface* surface = nullptr;
    if (dfb_->CreateSurface(dfb_, &description, &surface) != DFB_OK)
        throw std::runtime_error("no surface");
    surface->Clear(surface, 0, 0, 0, 0);
    return Surface(surface);
}

Toolkit Stage::make_toolkit(BackEnd back_end, IDirectFBSurface* surface) const
{
    const bool is_hardware = back_end == BackEnd::hardware;
    tools::show_engine(is_hardware);
    const auto create = is_hardware ? CreateDrawingToolkit_HDDVD_HW : CreateDrawingToolkit_HDDVD_SW;
    DTKHDDVD* toolkit = nullptr;
    if (create(dfb_, surface, 1, &toolkit) != DFB_OK)
        throw std::runtime_error("no toolkit");
    return Toolkit(toolkit);
}

Surface& Stage::target(DFBSurfacePixelFormat format)
{
    return format == DSPF_ARGB ? argb_target_ : rgb32_target_;
}

bool Stage::draw_on(IDirectFBSurface* surface, BackEnd back_end, const Scene& scene)
{
    const Toolkit owner = make_toolkit(back_end, surface);
    DTKHDDVD* const toolkit = owner.get();
    toolkit->SetStrokeColor(toolkit, scene.stroke.r, scene.stroke.g, scene.stroke.b, scene.stroke.a);
    toolkit->SetFillColor(toolkit, scene.fill.r, scene.fill.g, scene.fill.b, scene.fill.a);
    if (scene.texture != Texture::none)
        toolkit->SetFillPattern(toolkit, textures_.at(scene.texture).get());
    if (const auto shape = pen_for(back_end, scene)) {
        DTKHDDVDPen* pen = nullptr;
        if (toolkit->CreatePen(toolkit, &*shape, &pen) != DFB_OK)
            throw std::runtime_error("no pen");
        toolkit->SetPen(toolkit, pen);
        pen->Release(pen);
    }
    const DFBResult result = draw_primitive(toolkit, scene);
    toolkit->SetPen(toolkit, nullptr);
    return result == DFB_OK;
}

std::optional<Picture> Stage::draw(BackEnd back_end, const Scene& scene, const Picture& background)
{
    IDirectFBSurface* const surface = target(scene.target_format).get();
    write(surface, background);
    const Surface part = scene.part ? part_of(surface, *scene.part) : nullptr;
    if (!draw_on(part ? part.get() : surface, back_end, scene))
        return std::nullopt;
    return read(surface);
}

} // namespace conformance
