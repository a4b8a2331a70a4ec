#include "cairo_pixels.h"

#include "platform.h"

/// Missing in a cairo without the DirectFB back end.
extern "C" [[gnu::weak]] cairo_surface_t* cairo_directfb_surface_create(IDirectFB* dfb, IDirectFBSurface* surface);

namespace bench {

namespace {

struct Memory {
    void* first;
    int pitch;
};

Memory lock(IDirectFBSurface* surface)
{
    Memory memory = {nullptr, 0};
    const auto access = static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE);
    tools::check(surface->Lock(surface, access, &memory.first, &memory.pitch), "cannot lock a surface");
    return memory;
}

bool has_back_end()
{
    return cairo_directfb_surface_create != nullptr;
}

cairo_surface_t* create_image(IDirectFBSurface* surface)
{
    int width = 0, height = 0;
    surface->GetSize(surface, &width, &height);
    const Memory memory = lock(surface);
    surface->Unlock(surface);
    return cairo_image_surface_create_for_data(static_cast<unsigned char*>(memory.first), CAIRO_FORMAT_ARGB32, width, height,
                                               memory.pitch);
}

} // namespace

cairo_surface_t* create_cairo_surface(IDirectFB* dfb, IDirectFBSurface* surface)
{
    return has_back_end() ? cairo_directfb_surface_create(dfb, surface) : create_image(surface);
}

CairoPixels::CairoPixels(IDirectFBSurface* surface) : locked_(has_back_end() ? nullptr : surface)
{
    if (locked_)
        lock(locked_);
}

CairoPixels::~CairoPixels()
{
    if (locked_)
        locked_->Unlock(locked_);
}

} // namespace bench
