#include "platform/hosted_session.h"
#include "common/surface.h"

#include <stdexcept>

HostedSession::HostedSession() : directfb(nullptr), engine(0)
{
    char name[] = "hosted_platform";
    char options[] = "--dfb:system=dummy,quiet,no-cursor,no-sighandler,mode=640x480";
    char* arguments[] = {name, options, nullptr};
    char** vector = arguments;
    int count = 2;
    zuvo_init(4108);
    directfb = zuvo_dfb_ext_open_with_params(6, &count, &vector);
    if (!directfb)
        throw std::runtime_error("DirectFB does not start");
    engine = zuvo_dtk_get_handle();
}

HostedSession::~HostedSession()
{
    directfb->Release(directfb);
    zuvo_dfb_ext_close();
    zuvo_uninit();
}

HostedSession::Surface HostedSession::make_surface(int width, int height, DFBSurfacePixelFormat format) const
{
    const DFBSurfaceDescription description = common::describe(width, height, format);
    IDirectFBSurface* surface = nullptr;
    if (directfb->CreateSurface(directfb, &description, &surface) != DFB_OK)
        throw std::runtime_error("no surface");
    surface->Clear(surface, 0, 0, 0, 0);
    return Surface(surface);
}

unsigned int handle_of(const HostedSession::Surface& surface)
{
    unsigned int handle = 0;
    zuvo_dtk_surface_handle(surface.get(), &handle);
    return handle;
}

std::vector<u32> read(const HostedSession::Surface& surface)
{
    int width = 0, height = 0, pitch = 0;
    void* memory = nullptr;
    surface->GetSize(surface.get(), &width, &height);
    const auto both = static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE);
    if (surface->Lock(surface.get(), both, &memory, &pitch) != DFB_OK)
        throw std::runtime_error("a surface cannot be locked");
    std::vector<u32> pixels;
    for (int y = 0; y < height; ++y) {
        const u32* const row = static_cast<const u32*>(memory) + y * (pitch / 4);
        pixels.insert(pixels.end(), row, row + width);
    }
    surface->Unlock(surface.get());
    return pixels;
}

std::string text_of(const HostedSession::Surface& surface)
{
    int width = 0, height = 0;
    surface->GetSize(surface.get(), &width, &height);
    std::string text;
    for (u32 pixel : read(surface)) {
        text += pixel ? '#' : '.';
        if (text.size() % static_cast<std::size_t>(width + 1) == static_cast<std::size_t>(width))
            text += '\n';
    }
    return text;
}
