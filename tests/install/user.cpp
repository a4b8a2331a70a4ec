// Draws a patterned polygon, which needs cairo, through the installed library's C++ interface and looks at one pixel of it.
#include <cstdint>
#include <cstdio>
#include <cstring>

#include <dtkhddvd.hpp>

namespace {

void check(DFBResult result)
{
    if (result)
        DirectFBErrorFatal("user", result);
}

IDirectFBSurface* create_surface(IDirectFB* dfb, u8 blue)
{
    DFBSurfaceDescription description;
    std::memset(&description, 0, sizeof description);
    description.flags = static_cast<DFBSurfaceDescriptionFlags>(DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT);
    description.width = 64;
    description.height = 64;
    description.pixelformat = DSPF_ARGB;
    IDirectFBSurface* surface = nullptr;
    check(dfb->CreateSurface(dfb, &description, &surface));
    check(surface->Clear(surface, 0, 0, blue, 0xFF));
    return surface;
}

std::uint32_t pixel_at(IDirectFBSurface* surface, int x, int y)
{
    void* pixels = nullptr;
    int pitch = 0;
    check(surface->Lock(surface, static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE), &pixels, &pitch));
    std::uint32_t pixel;
    std::memcpy(&pixel, static_cast<char*>(pixels) + y * pitch + 4 * x, sizeof pixel);
    check(surface->Unlock(surface));
    return pixel;
}

void draw(dtkhddvd::ThrowingToolkit toolkit, IDirectFBSurface* texture)
{
    const DFBPoint corners[] = {{4, 4}, {60, 4}, {4, 60}};
    toolkit.set_fill_pattern(texture);
    toolkit.polygon(corners, dtkhddvd::Outline::closed, dtkhddvd::Draw::fill);
}

} // namespace

int main(int argc, char** argv)
{
    check(DirectFBInit(&argc, &argv));
    IDirectFB* dfb = nullptr;
    check(DirectFBCreate(&dfb));
    IDirectFBSurface* surface = create_surface(dfb, 0);
    IDirectFBSurface* texture = create_surface(dfb, 0xC0);

    draw(dtkhddvd::ThrowingToolkit::create(dfb, surface, dtkhddvd::ScratchPad::with), texture);
    const std::uint32_t inside = pixel_at(surface, 10, 10), outside = pixel_at(surface, 50, 50);
    texture->Release(texture);
    surface->Release(surface);
    dfb->Release(dfb);
    std::printf("%08x %08x\n", static_cast<unsigned int>(inside), static_cast<unsigned int>(outside));
    return inside == 0xFF0000C0 && outside == 0xFF000000 ? 0 : 1;
}
