#include "surface_painter.h"

namespace bench {

using tools::check;

Owned<IDirectFBSurface> create_surface(IDirectFB* dfb, int width, int height, DFBSurfaceCapabilities capabilities)
{
    DFBSurfaceDescription description = {};
    description.flags =
        static_cast<DFBSurfaceDescriptionFlags>(DSDESC_CAPS | DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT);
    description.caps = capabilities;
    description.width = width;
    description.height = height;
    description.pixelformat = DSPF_ARGB;
    IDirectFBSurface* surface = nullptr;
    check(dfb->CreateSurface(dfb, &description, &surface), "cannot create a surface");
    return Owned<IDirectFBSurface>(surface);
}

Owned<IDirectFBSurface> create_texture(IDirectFB* dfb)
{
    auto texture = create_surface(dfb, texture_size, texture_size, DSCAPS_NONE);
    for (int y = 0; y < texture_size; ++y) {
        for (int x = 0; x < texture_size; ++x) {
            const Colour colour = texture_pixel(x, y);
            texture->SetColor(texture.get(), static_cast<u8>(red(colour)), static_cast<u8>(green(colour)),
                              static_cast<u8>(blue(colour)), static_cast<u8>(alpha(colour)));
            texture->FillRectangle(texture.get(), x, y, 1, 1);
        }
    }
    return texture;
}

Owned<IDirectFBSurface> sub_surface(IDirectFBSurface* surface)
{
    IDirectFBSurface* sub = nullptr;
    check(surface->GetSubSurface(surface, nullptr, &sub), "cannot get a sub-surface");
    return Owned<IDirectFBSurface>(sub);
}

Memory memory_of(IDirectFBSurface* surface)
{
    void* pixels = nullptr;
    int pitch = 0;
    check(surface->Lock(surface, static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE), &pixels, &pitch),
          "cannot lock a surface");
    surface->Unlock(surface);
    return {static_cast<std::uint32_t*>(pixels), pitch / 4};
}

void SurfacePainter::clear()
{
    surface_->Clear(surface(), static_cast<u8>(red(background)), static_cast<u8>(green(background)),
                    static_cast<u8>(blue(background)), static_cast<u8>(alpha(background)));
}

Picture SurfacePainter::picture()
{
    return read(memory_of(surface()));
}

} // namespace bench
