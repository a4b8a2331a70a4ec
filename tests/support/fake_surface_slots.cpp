#include "support/fake_surface.h"

#include "support/transcript.h"

#include <gtest/gtest.h>

namespace fake {
namespace {

Surface& self(IDirectFBSurface* thiz)
{
    return *static_cast<Surface*>(thiz);
}

/// DirectFB refuses to draw on an interface that holds its own lock; the library must never try.
Surface& unlocked(IDirectFBSurface* thiz)
{
    EXPECT_FALSE(self(thiz).locked) << self(thiz).name << " is drawn on while it is locked";
    return self(thiz);
}

std::string rectangle(const DFBRectangle& r)
{
    return text("[%d %d %d %d]", r.x, r.y, r.w, r.h);
}

DFBResult get_sub_surface(IDirectFBSurface* thiz, const DFBRectangle* area, IDirectFBSurface** ret_surface)
{
    Surface& parent = self(thiz);
    if (DFBResult result = parent.call("GetSubSurface(" + (area ? rectangle(*area) : "NULL") + ")"))
        return result;
    *ret_surface = &new_surface(parent.sub_surface_name, parent.width, parent.height, parent.format);
    return DFB_OK;
}

DFBResult lock(IDirectFBSurface* thiz, DFBSurfaceLockFlags flags, void** ret_pointer, int* ret_pitch)
{
    const DFBResult result = unlocked(thiz).call(text("Lock(%d)", int(flags)));
    self(thiz).last_lock_failed = result != DFB_OK;
    if (result)
        return result;
    self(thiz).locked = true;
    *ret_pointer = self(thiz).pixels();
    *ret_pitch = self(thiz).pitch;
    return DFB_OK;
}

DFBResult unlock(IDirectFBSurface* thiz)
{
    EXPECT_TRUE(self(thiz).locked || self(thiz).last_lock_failed) << self(thiz).name << " is unlocked twice";
    self(thiz).locked = false;
    return self(thiz).call("Unlock()");
}

DFBResult fill_rectangle(IDirectFBSurface* thiz, int x, int y, int w, int h)
{
    Surface& surface = unlocked(thiz);
    if (DFBResult result = surface.call(text("FillRectangle(%d, %d, %d, %d)", x, y, w, h)))
        return result;
    if (surface.refuses_empty_fills && (w <= 0 || h <= 0))
        return DFB_INVARG;
    surface.fill(x, y, w, h, surface.color);
    return DFB_OK;
}

DFBResult set_color(IDirectFBSurface* thiz, u8 r, u8 g, u8 b, u8 a)
{
    self(thiz).color = u32(a) << 24 | u32(r) << 16 | u32(g) << 8 | b;
    return self(thiz).call(text("SetColor(%d, %d, %d, %d)", r, g, b, a));
}

DFBResult clear(IDirectFBSurface* thiz, u8 r, u8 g, u8 b, u8 a)
{
    Surface& surface = unlocked(thiz);
    if (DFBResult result = surface.call(text("Clear(%d, %d, %d, %d)", r, g, b, a)))
        return result;
    const u32 color = u32(a) << 24 | u32(r) << 16 | u32(g) << 8 | b;
    surface.fill(0, 0, surface.width, surface.height, surface.bytes_per_pixel() == 1 ? a : color);
    return DFB_OK;
}

DFBResult blit(IDirectFBSurface* thiz, IDirectFBSurface* source, const DFBRectangle* area, int x, int y)
{
    const std::string from = area ? rectangle(*area) : "NULL";
    return unlocked(thiz).call("Blit(" + name_of(source) + ", " + from + text(", %d, %d)", x, y));
}

/// A batch of the same source rectangles is written as the rectangle once and the points in order.
DFBResult batch_blit(IDirectFBSurface* thiz, IDirectFBSurface* source, const DFBRectangle* areas,
                     const DFBPoint* points, int count)
{
    std::string line = "BatchBlit(" + name_of(source) + ", " + (count > 0 ? rectangle(areas[0]) : "none") + ",";
    for (int i = 0; i < count; i++) {
        EXPECT_EQ(rectangle(areas[i]), rectangle(areas[0]));
        line += " " + std::to_string(points[i].x) + "," + std::to_string(points[i].y);
    }
    return unlocked(thiz).call(line + ")");
}

DFBResult get_palette(IDirectFBSurface* thiz, IDirectFBPalette** ret_palette)
{
    if (DFBResult result = self(thiz).call("GetPalette()"))
        return result;
    if (!self(thiz).palette)
        return DFB_OK;
    self(thiz).palette->references++;
    *ret_palette = self(thiz).palette;
    return DFB_OK;
}

void fill_counting_slots(IDirectFBSurface& slots)
{
    slots.AddRef = [](IDirectFBSurface* thiz) {
        EXPECT_GT(self(thiz).references, 0) << self(thiz).name << " is referenced after its last Release";
        transcript().note(self(thiz).name + ".AddRef()");
        self(thiz).references++;
        return DirectResult(DFB_OK);
    };
    slots.Release = [](IDirectFBSurface* thiz) {
        EXPECT_GT(self(thiz).references, 0) << self(thiz).name << " is released too often";
        transcript().note(self(thiz).name + ".Release()");
        self(thiz).references--;
        return DirectResult(DFB_OK);
    };
    slots.GetSubSurface = get_sub_surface;
    slots.GetPalette = get_palette;
}

void fill_asking_slots(IDirectFBSurface& slots)
{
    slots.GetSize = [](IDirectFBSurface* thiz, int* ret_width, int* ret_height) {
        if (DFBResult result = self(thiz).call("GetSize()"))
            return result;
        *ret_width = self(thiz).width;
        *ret_height = self(thiz).height;
        return DFB_OK;
    };
    slots.GetPixelFormat = [](IDirectFBSurface* thiz, DFBSurfacePixelFormat* ret_format) {
        if (DFBResult result = self(thiz).call("GetPixelFormat()"))
            return result;
        *ret_format = self(thiz).format;
        return DFB_OK;
    };
    slots.GetID = [](IDirectFBSurface* thiz, DFBSurfaceID* ret_id) {
        if (DFBResult result = self(thiz).call("GetID()"))
            return result;
        *ret_id = self(thiz).id;
        return DFB_OK;
    };
}

void fill_state_slots(IDirectFBSurface& slots)
{
    slots.SetColor = set_color;
    slots.SetColorIndex = [](IDirectFBSurface* thiz, unsigned int index) {
        self(thiz).color = index;
        return self(thiz).call(text("SetColorIndex(%u)", index));
    };
    slots.SetSrcColorKeyIndex = [](IDirectFBSurface* thiz, unsigned int index) {
        return self(thiz).call(text("SetSrcColorKeyIndex(%u)", index));
    };
    slots.SetBlittingFlags = [](IDirectFBSurface* thiz, DFBSurfaceBlittingFlags flags) {
        return self(thiz).call(text("SetBlittingFlags(%u)", static_cast<unsigned int>(flags)));
    };
}

void fill_drawing_slots(IDirectFBSurface& slots)
{
    slots.Lock = lock;
    slots.Unlock = unlock;
    slots.Clear = clear;
    slots.FillRectangle = fill_rectangle;
    slots.Blit = blit;
    slots.BatchBlit = batch_blit;
    slots.DrawRectangle = [](IDirectFBSurface* thiz, int x, int y, int w, int h) {
        return unlocked(thiz).call(text("DrawRectangle(%d, %d, %d, %d)", x, y, w, h));
    };
    slots.DrawLine = [](IDirectFBSurface* thiz, int x1, int y1, int x2, int y2) {
        return unlocked(thiz).call(text("DrawLine(%d, %d, %d, %d)", x1, y1, x2, y2));
    };
    slots.Flip = [](IDirectFBSurface* thiz, const DFBRegion* region, DFBSurfaceFlipFlags flags) {
        return unlocked(thiz).call(text("Flip(%s, %d)", region ? "region" : "NULL", int(flags)));
    };
}

} // namespace

Surface::Surface(const std::string& name_of_surface, int w, int h, DFBSurfacePixelFormat pixel_format)
    : IDirectFBSurface(), name(name_of_surface), width(w), height(h), format(pixel_format),
      pitch(w * int(DFB_BYTES_PER_PIXEL(pixel_format)))
{
    fill_counting_slots(*this);
    fill_asking_slots(*this);
    fill_state_slots(*this);
    fill_drawing_slots(*this);
}

} // namespace fake
