/// Reads bytes as a program of drawing engine calls on surfaces in guarded memory; DirectFB does not run.
#include "bytes.h"
#include "engine/surface/directfb_core.h"
#include "engine/surface/directfb_part.h"
#include "guarded_memory.h"
#include "start/options.h"
#include "start/platform.h"
#include "zuvo.h"

#include <algorithm>
#include <memory>
#include <vector>

using namespace fuzz;

namespace {

constexpr unsigned dtk = 1;
constexpr unsigned surface_count = 3;
constexpr int most_operations = 64;

struct Surface {
    int width, height, pitch;
    DFBSurfacePixelFormat format;
    std::unique_ptr<GuardedMemory> memory;
    bool refuses_locks;
    int locks;
};

Surface surfaces[surface_count];

/// Surfaces are known by the handles 1, 2 and 3.
Surface* find_surface(DFBSurfaceID id)
{
    return id >= 1 && id <= surface_count ? &surfaces[id - 1] : nullptr;
}

DFBSurfaceID opened[3];

void make_surfaces(Bytes& bytes)
{
    static const DFBSurfacePixelFormat formats[] = {DSPF_ARGB, DSPF_RGB32, DSPF_ARGB, DSPF_RGB32, DSPF_LUT8};
    for (Surface& surface : surfaces) {
        surface.format = formats[bytes.below(5)];
        surface.width = 1 + static_cast<int>(bytes.below(128)) * (bytes.flag() ? 1 : 8);
        surface.height = 1 + static_cast<int>(bytes.below(96));
        surface.pitch = (surface.width * DFB_BYTES_PER_PIXEL(surface.format) + 3) / 4 * 4;
        surface.memory =
            std::make_unique<GuardedMemory>(static_cast<std::size_t>(surface.pitch) * static_cast<std::size_t>(surface.height));
        surface.refuses_locks = false;
        surface.locks = 0;
    }
}

/// The engine outlives an input, and each starts with an engine that holds nothing.
void forget_settings()
{
    zuvo_dtk_set_output_surface(dtk, 0);
    zuvo_dtk_set_fill_pattern(dtk, 0);
    zuvo_dtk_set_pen(dtk, nullptr);
}

DFBRectangle read_box(Bytes& bytes)
{
    const int x = bytes.coordinate(), y = bytes.coordinate(), width = bytes.coordinate();
    return {x, y, width, bytes.coordinate()};
}

void set_fill(Bytes& bytes)
{
    const std::uint8_t choice = bytes.byte();
    if (choice < 96) {
        zuvo_dtk_set_fill_pattern(dtk, choice % 5);
        return;
    }
    const u8 r = bytes.byte(), g = bytes.byte(), b = bytes.byte();
    zuvo_dtk_set_fill_color(dtk, r, g, b, bytes.byte());
}

void set_pen(Bytes& bytes)
{
    zuvo_dtk_pen pen;
    for (int* number : {&pen.x0, &pen.y0, &pen.x1, &pen.y1, &pen.x2, &pen.y2, &pen.x3, &pen.y3})
        *number = bytes.coordinate() / 4;
    pen.color = static_cast<u32>(bytes.word());
    zuvo_dtk_set_pen(dtk, &pen);
}

void draw_line(Bytes& bytes)
{
    const DFBRectangle ends = read_box(bytes);
    zuvo_dtk_draw_line(dtk, ends.x, ends.y, ends.w, ends.h, bytes.byte());
}

void draw_box(Bytes& bytes)
{
    static int (*const draws[])(unsigned, const DFBRectangle*, unsigned) = {
        zuvo_dtk_draw_rectangle, zuvo_dtk_draw_rectangle_border, zuvo_dtk_draw_ellipse, zuvo_dtk_draw_ellipse_border};
    const auto draw = draws[bytes.below(4)];
    const DFBRectangle rect = read_box(bytes);
    draw(dtk, &rect, bytes.byte());
}

void draw_polygon(Bytes& bytes)
{
    // On the heap and of the exact size, so that a read beyond the end is seen.
    std::vector<DFBPoint> points(bytes.below(10));
    for (DFBPoint& point : points) {
        point.x = bytes.coordinate();
        point.y = bytes.coordinate();
    }
    zuvo_dtk_draw_polygon(dtk, points.data(), static_cast<unsigned>(points.size()), bytes.byte());
}

void run_operation(Bytes& bytes)
{
    switch (bytes.below(8)) {
    case 0:
        zuvo_dtk_set_output_surface(dtk, bytes.below(5));
        break;
    case 1:
        set_fill(bytes);
        break;
    case 2:
        set_pen(bytes);
        break;
    case 3:
        draw_line(bytes);
        break;
    case 4:
        draw_polygon(bytes);
        break;
    case 5:
        surfaces[bytes.below(surface_count)].refuses_locks = bytes.flag();
        break;
    default:
        draw_box(bytes);
    }
    for (const Surface& surface : surfaces) {
        surface.memory->check();
        require(surface.locks == 0, "a surface stayed locked");
    }
}

} // namespace

namespace zuvo {

bool is_started()
{
    return true;
}

const Options& read_options()
{
    static const Options everything = {true, true, nullptr, {}};
    return everything;
}

} // namespace zuvo

/// There are no interfaces of DirectFB, and no parts.
bool directfb_get_part(const IDirectFBSurface*, DirectFBPart*)
{
    return false;
}

DirectFBCoreResult directfb_core_get_format(DFBSurfaceID id, DFBSurfacePixelFormat* ret_format)
{
    const Surface* surface = find_surface(id);
    if (!surface)
        return DIRECTFB_CORE_UNKNOWN;
    *ret_format = surface->format;
    return DIRECTFB_CORE_OK;
}

DirectFBCoreResult directfb_core_open(DirectFBCoreUse use, DFBSurfaceID id, DirectFBCorePixels* ret_pixels)
{
    Surface* surface = find_surface(id);
    if (!surface)
        return DIRECTFB_CORE_UNKNOWN;
    if (surface->refuses_locks)
        return DIRECTFB_CORE_NOT_LOCKED;
    opened[use] = id;
    ++surface->locks;
    *ret_pixels = {surface->memory->bytes(), static_cast<unsigned>(surface->pitch), surface->width, surface->height,
                   surface->format};
    return DIRECTFB_CORE_OK;
}

void directfb_core_close(DirectFBCoreUse use)
{
    --find_surface(opened[use])->locks;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    make_surfaces(bytes);
    forget_settings();
    for (int i = 0; i < most_operations && !bytes.is_at_end(); ++i)
        run_operation(bytes);
    return 0;
}
