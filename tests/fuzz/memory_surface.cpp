#include "memory_surface.h"

#include <algorithm>
#include <cstring>

namespace fuzz {
namespace {

MemorySurface& self(IDirectFBSurface* thiz)
{
    require(thiz != nullptr, "an operation of no surface was called");
    return *static_cast<MemorySurface*>(thiz);
}

MemoryDirectFB& self(IDirectFB* thiz)
{
    MemoryDirectFB& directfb = *static_cast<MemoryDirectFB*>(thiz);
    require(directfb.references > 0, "DirectFB was used after its last Release");
    return directfb;
}

void fill_counting_slots(IDirectFBSurface& slots)
{
    slots.AddRef = [](IDirectFBSurface* thiz) {
        require(self(thiz).references++ > 0, "a surface was referenced after its last Release");
        return DirectResult(DFB_OK);
    };
    slots.Release = [](IDirectFBSurface* thiz) {
        require(self(thiz).references-- > 0, "a surface was released too often");
        return DirectResult(DFB_OK);
    };
}

DFBResult get_sub_surface(IDirectFBSurface* thiz, const DFBRectangle*, IDirectFBSurface** ret_surface)
{
    MemorySurface& parent = self(thiz);
    if (DFBResult result = parent.call())
        return result;
    MemorySurface* child = parent.owner.create(parent.width, parent.height, parent.format);
    child->memory = parent.memory;
    *ret_surface = child;
    return DFB_OK;
}

DFBResult get_palette(IDirectFBSurface* thiz, IDirectFBPalette** ret_palette)
{
    if (DFBResult result = self(thiz).call())
        return result;
    if (!DFB_PIXELFORMAT_IS_INDEXED(self(thiz).format))
        return DFB_UNSUPPORTED;
    *ret_palette = &self(thiz).owner.palette;
    return DFB_OK;
}

/// Cairo asks too and does not look at the results, so that the answers are right even when a call fails.
void fill_asking_slots(IDirectFBSurface& slots)
{
    slots.GetSize = [](IDirectFBSurface* thiz, int* ret_width, int* ret_height) {
        *ret_width = self(thiz).width;
        *ret_height = self(thiz).height;
        return self(thiz).call();
    };
    slots.GetVisibleRectangle = [](IDirectFBSurface* thiz, DFBRectangle* ret_rect) {
        *ret_rect = {0, 0, self(thiz).width, self(thiz).height};
        return self(thiz).call();
    };
    slots.GetPixelFormat = [](IDirectFBSurface* thiz, DFBSurfacePixelFormat* ret_format) {
        *ret_format = self(thiz).format;
        return self(thiz).call();
    };
    slots.GetCapabilities = [](IDirectFBSurface*, DFBSurfaceCapabilities* ret_caps) {
        *ret_caps = DSCAPS_NONE;
        return DFB_OK;
    };
    slots.GetID = [](IDirectFBSurface* thiz, DFBSurfaceID* ret_id) {
        *ret_id = 1;
        return self(thiz).call();
    };
    slots.GetSubSurface = get_sub_surface;
    slots.GetPalette = get_palette;
}

DFBResult lock(IDirectFBSurface* thiz, DFBSurfaceLockFlags, void** ret_pixels, int* ret_pitch)
{
    MemorySurface& surface = self(thiz);
    if (DFBResult result = surface.drawing_call())
        return result;
    surface.is_locked = true;
    *ret_pixels = surface.memory->bytes();
    *ret_pitch = surface.pitch;
    return DFB_OK;
}

DFBResult unlock(IDirectFBSurface* thiz)
{
    self(thiz).is_locked = false;
    return DFB_OK;
}

void fill_state_slots(IDirectFBSurface& slots)
{
    slots.Lock = lock;
    slots.Unlock = unlock;
    slots.SetColor = [](IDirectFBSurface* thiz, u8 r, u8 g, u8 b, u8 a) {
        self(thiz).color = u32(a) << 24 | u32(r) << 16 | u32(g) << 8 | b;
        return self(thiz).call();
    };
    slots.SetColorIndex = [](IDirectFBSurface* thiz, unsigned index) {
        self(thiz).color = index;
        return self(thiz).call();
    };
    slots.SetSrcColorKeyIndex = [](IDirectFBSurface* thiz, unsigned) { return self(thiz).call(); };
    slots.SetBlittingFlags = [](IDirectFBSurface* thiz, DFBSurfaceBlittingFlags) { return self(thiz).call(); };
}

DFBResult fill_rectangle(IDirectFBSurface* thiz, int x, int y, int w, int h)
{
    if (DFBResult result = self(thiz).drawing_call())
        return result;
    if (w <= 0 || h <= 0)
        return DFB_INVARG;
    self(thiz).fill(x, y, w, h);
    return DFB_OK;
}

DFBResult draw_rectangle(IDirectFBSurface* thiz, int, int, int w, int h)
{
    if (DFBResult result = self(thiz).drawing_call())
        return result;
    return w <= 0 || h <= 0 ? DFB_INVARG : DFB_OK;
}

DFBResult blit(IDirectFBSurface* thiz, IDirectFBSurface* source, const DFBRectangle* rect, int, int)
{
    if (DFBResult result = self(thiz).drawing_call())
        return result;
    if (self(source).is_locked)
        return DFB_LOCKED;
    return !rect || (rect->w > 0 && rect->h > 0) ? DFB_OK : DFB_INVAREA;
}

DFBResult batch_blit(IDirectFBSurface* thiz, IDirectFBSurface* source, const DFBRectangle* rects, const DFBPoint* points,
                     int count)
{
    require(self(source).references > 0, "a pen's picture was blitted after its last Release");
    require(count > 0 && count <= 64, "a batch has no stamps or too many");
    for (int i = 0; i < count; ++i) {
        require(rects[i].w == rects[0].w && rects[i].h == rects[0].h, "a batch has stamps of different sizes");
        self(thiz).store(points[i].x, points[i].y);
    }
    return self(thiz).drawing_call();
}

void fill_drawing_slots(IDirectFBSurface& slots)
{
    slots.Clear = [](IDirectFBSurface* thiz, u8, u8, u8, u8) { return self(thiz).drawing_call(); };
    slots.FillRectangle = fill_rectangle;
    slots.DrawRectangle = draw_rectangle;
    slots.DrawLine = [](IDirectFBSurface* thiz, int, int, int, int) { return self(thiz).drawing_call(); };
    slots.Blit = blit;
    slots.BatchBlit = batch_blit;
}

DFBResult create_surface(IDirectFB* thiz, const DFBSurfaceDescription* description, IDirectFBSurface** ret_surface)
{
    if (DFBResult result = self(thiz).next_result())
        return result;
    if (description->width <= 0 || description->height <= 0)
        return DFB_INVARG;
    if (1LL * description->width * description->height > 1 << 17)
        return DFB_NOVIDEOMEMORY;
    *ret_surface = self(thiz).create(description->width, description->height, description->pixelformat);
    return DFB_OK;
}

} // namespace

MemorySurface::MemorySurface(MemoryDirectFB& directfb, int w, int h, DFBSurfacePixelFormat pixel_format)
    : IDirectFBSurface(), owner(directfb), width(w), height(h),
      pitch((w * DFB_BYTES_PER_PIXEL(pixel_format) + 3) / 4 * 4), format(pixel_format),
      memory(std::make_shared<GuardedMemory>(static_cast<std::size_t>(pitch) * static_cast<std::size_t>(h)))
{
    fill_counting_slots(*this);
    fill_asking_slots(*this);
    fill_state_slots(*this);
    fill_drawing_slots(*this);
}

DFBResult MemorySurface::call()
{
    require(references > 0, "a surface was used after its last Release");
    return owner.next_result();
}

DFBResult MemorySurface::drawing_call()
{
    const DFBResult result = call();
    return is_locked ? DFB_LOCKED : result;
}

void MemorySurface::store(int x, int y)
{
    if (x < 0 || y < 0 || x >= width || y >= height)
        return;
    const auto size = static_cast<std::size_t>(DFB_BYTES_PER_PIXEL(format));
    std::memcpy(memory->bytes() + y * pitch + x * static_cast<int>(size), &color, size);
}

void MemorySurface::fill(long long left, long long top, long long w, long long h)
{
    for (long long y = std::max(top, 0LL); y < std::min<long long>(top + h, height); ++y) {
        for (long long x = std::max(left, 0LL); x < std::min<long long>(left + w, width); ++x)
            store(static_cast<int>(x), static_cast<int>(y));
    }
}

MemoryDirectFB::MemoryDirectFB() : IDirectFB()
{
    AddRef = [](IDirectFB* thiz) {
        self(thiz).references++;
        return DirectResult(DFB_OK);
    };
    Release = [](IDirectFB* thiz) {
        self(thiz).references--;
        return DirectResult(DFB_OK);
    };
    WaitIdle = [](IDirectFB* thiz) { return self(thiz).next_result(); };
    CreateSurface = create_surface;
    palette.Release = [](IDirectFBPalette*) { return DirectResult(DFB_OK); };
    palette.SetEntries = [](IDirectFBPalette*, const DFBColor*, unsigned, unsigned) { return DFB_OK; };
}

MemorySurface* MemoryDirectFB::create(int width, int height, DFBSurfacePixelFormat format)
{
    surfaces.push_back(std::make_unique<MemorySurface>(*this, width, height, format));
    return surfaces.back().get();
}

DFBResult MemoryDirectFB::next_result()
{
    return calls_until_failure > 0 && --calls_until_failure == 0 ? DFB_BUSY : DFB_OK;
}

void MemoryDirectFB::check(const MemorySurface* locked_by_application) const
{
    for (const auto& surface : surfaces) {
        surface->check();
        if (surface.get() != locked_by_application)
            require(!surface->is_locked || surface->references == 0, "a surface stayed locked");
    }
}

} // namespace fuzz
