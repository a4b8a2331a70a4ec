#include "toolkit/memory_image.h"

#include "toolkit/image_format.h"

#include <algorithm>
#include <cstddef>

namespace dtk {

namespace {

/// Where a surface lies while it is locked, and what its parent has of it: all, if it lies inside.
struct Memory {
    u8* first = nullptr;
    int pitch = 0;
    DFBRectangle place = {0, 0, 0, 0};
};

/// An image that lacks one of these is in error, and never ready.
const cairo_user_data_key_t surface_key = {}, format_key = {};

IDirectFBSurface* surface_of(cairo_surface_t* image)
{
    return static_cast<IDirectFBSurface*>(cairo_surface_get_user_data(image, &surface_key));
}

const ImageFormat* format_of(cairo_surface_t* image)
{
    return static_cast<const ImageFormat*>(cairo_surface_get_user_data(image, &format_key));
}

void release(void* surface)
{
    auto* released = static_cast<IDirectFBSurface*>(surface);
    released->Release(released);
}

const ImageFormat* find_format(IDirectFBSurface* surface)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    surface->GetPixelFormat(surface, &format);
    return find_image_format(format);
}

/// Another thread may resize a surface unless it is locked.
DFBResult lock_memory(IDirectFBSurface* surface, Memory& memory)
{
    void* pixels = nullptr;
    const auto access = static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE);
    if (DFBResult result = surface->Lock(surface, access, &pixels, &memory.pitch))
        return result;
    memory.first = static_cast<u8*>(pixels);
    const DFBResult result = surface->GetVisibleRectangle(surface, &memory.place);
    if (result)
        surface->Unlock(surface);
    return result;
}

/// Nothing where it cannot be locked; the image is then empty, and stale at its first use.
Memory find_memory(IDirectFBSurface* surface)
{
    Memory memory;
    if (lock_memory(surface, memory))
        return {};
    surface->Unlock(surface);
    return memory;
}

/// A part that lies outside its parent has nothing to draw on.
DFBDimension size_of(const Memory& memory)
{
    return {std::max(memory.place.w, 0), std::max(memory.place.h, 0)};
}

/// Of a copy only the pages that something is drawn on are ever touched.
cairo_surface_t* create_image(const ImageFormat* format, const Memory& memory)
{
    if (!format)
        return cairo_image_surface_create(CAIRO_FORMAT_INVALID, 0, 0);
    const DFBDimension size = size_of(memory);
    if (format->is_copied())
        return cairo_image_surface_create(format->image, size.w, size.h);
    return cairo_image_surface_create_for_data(memory.first, format->image, size.w, size.h, memory.pitch);
}

bool shows(cairo_surface_t* image, const ImageFormat* format, const Memory& memory)
{
    const DFBDimension size = size_of(memory);
    if (!format || format != format_of(image) || cairo_image_surface_get_width(image) != size.w ||
        cairo_image_surface_get_height(image) != size.h)
        return false;
    return format->is_copied() || (cairo_image_surface_get_data(image) == memory.first &&
                                   cairo_image_surface_get_stride(image) == memory.pitch);
}

/// What lies in `area`, which may reach to the left or upwards; the right and lower ends of the region are outside.
DFBRegion clip(const DFBRectangle& area, cairo_surface_t* image)
{
    const int width = cairo_image_surface_get_width(image), height = cairo_image_surface_get_height(image);
    const auto clamped = [](long long position, int size) {
        return static_cast<int>(std::clamp<long long>(position, 0, size));
    };
    const long long x = area.x, y = area.y;
    return {clamped(x + std::min(area.w, 0), width), clamped(y + std::min(area.h, 0), height),
            clamped(x + std::max(area.w, 0), width), clamped(y + std::max(area.h, 0), height)};
}

/// Calls `copy_row(format, row, row of the copy, left, right)` for each row that cairo draws on or reads.
template <typename CopyRow>
void for_each_row(cairo_surface_t* image, const LockedPixels& locked, CopyRow&& copy_row)
{
    const ImageFormat& format = *format_of(image);
    const DFBRegion region = clip(locked.area, image);
    const int stride = cairo_image_surface_get_stride(image);
    u8* const copy = cairo_image_surface_get_data(image);
    for (std::ptrdiff_t y = region.y1; y < region.y2; ++y)
        copy_row(format, locked.first + y * locked.pitch, reinterpret_cast<u32*>(copy + y * stride), region.x1, region.x2);
}

} // namespace

cairo_surface_t* create_memory_image(IDirectFBSurface* surface)
{
    const ImageFormat* format = find_format(surface);
    const Memory memory = find_memory(surface);
    cairo_surface_t* image = create_image(format, memory);
    cairo_surface_set_device_offset(image, -memory.place.x, -memory.place.y);
    if (cairo_surface_set_user_data(image, &surface_key, surface, release) == CAIRO_STATUS_SUCCESS)
        surface->AddRef(surface);
    cairo_surface_set_user_data(image, &format_key, const_cast<ImageFormat*>(format), nullptr);
    return image;
}

Pixels lock_memory_image(cairo_surface_t* image, const DFBRectangle& area, LockedPixels& ret_locked)
{
    IDirectFBSurface* surface = surface_of(image);
    if (!surface)
        return Pixels::stale;
    Memory memory;
    if (lock_memory(surface, memory))
        return Pixels::refused;
    const ImageFormat* format = find_format(surface);
    if (!shows(image, format, memory)) {
        surface->Unlock(surface);
        return Pixels::stale;
    }
    ret_locked = {surface, memory.first, memory.pitch,
                  {area.x - memory.place.x, area.y - memory.place.y, area.w, area.h}};
    if (format->is_copied())
        for_each_row(image, ret_locked, unpack_row);
    cairo_surface_mark_dirty(image);
    return Pixels::ready;
}

void unlock_memory_image(cairo_surface_t* image, LockedPixels& locked)
{
    if (format_of(image)->is_copied())
        for_each_row(image, locked, pack_row);
    locked.surface->Unlock(locked.surface);
    locked = {};
}

} // namespace dtk
