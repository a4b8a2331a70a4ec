#include "direct.h"

#include <algorithm>
#include <stdexcept>

#include "engine_switch.h"

namespace conformance {
namespace {

constexpr DFBRectangle box = {10, 10, 20, 20};
constexpr DFBPoint corners[] = {{5, 5}, {35, 6}, {20, 35}};

} // namespace

Direct::Direct(const Examination& examination) : surface_(examination.stage.make_surface(size, size, DSPF_ARGB))
{
    tools::show_engine(true);
    engine_ = zuvo_dtk_get_handle();
    target_ = handle_of(surface_.get());
}

Direct::~Direct()
{
    zuvo_dtk_sync(engine_);
}

void Direct::set(u32 color) const
{
    zuvo_dtk_set_output_surface(engine_, target_);
    set_fill(color);
    set_pen(color);
}

void Direct::set_fill(u32 color) const
{
    const auto byte = [color](int shift) { return static_cast<u8>(color >> shift); };
    zuvo_dtk_set_fill_color(engine_, byte(16), byte(8), byte(0), byte(24));
}

void Direct::set_pen(u32 color) const
{
    const zuvo_dtk_pen pen = {-1, -1, 2, -1, 2, 2, -1, 2, color};
    zuvo_dtk_set_pen(engine_, &pen);
}

int Direct::fill_box(const DFBRectangle& rect, unsigned int flags) const
{
    return zuvo_dtk_draw_rectangle(engine_, &rect, flags);
}

int Direct::fill_ellipse(unsigned int flags) const
{
    const DFBRectangle all = {0, 0, size, size};
    return zuvo_dtk_draw_ellipse(engine_, &all, flags);
}

std::vector<std::pair<std::string, std::function<int(unsigned int)>>> Direct::calls() const
{
    const unsigned int flags = ZUVO_DTK_DRAW;
    return {
        {"zuvo_dtk_draw_line", [](unsigned int dtk) { return zuvo_dtk_draw_line(dtk, 5, 5, 30, 30, flags); }},
        {"zuvo_dtk_draw_rectangle", [](unsigned int dtk) { return zuvo_dtk_draw_rectangle(dtk, &box, flags); }},
        {"zuvo_dtk_draw_rectangle_border",
         [](unsigned int dtk) { return zuvo_dtk_draw_rectangle_border(dtk, &box, flags); }},
        {"zuvo_dtk_draw_ellipse", [](unsigned int dtk) { return zuvo_dtk_draw_ellipse(dtk, &box, flags); }},
        {"zuvo_dtk_draw_ellipse_border",
         [](unsigned int dtk) { return zuvo_dtk_draw_ellipse_border(dtk, &box, flags); }},
        {"zuvo_dtk_draw_polygon", [](unsigned int dtk) { return zuvo_dtk_draw_polygon(dtk, corners, 3, 0); }},
    };
}

u32 Direct::at(int x, int y) const
{
    zuvo_dtk_sync(engine_);
    return pixel_by_lock(surface_.get(), x, y, static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE));
}

bool Direct::is_untouched() const
{
    const Picture pixels = read(surface_.get());
    return std::all_of(pixels.begin(), pixels.end(), [](u32 pixel) { return pixel == 0; });
}

unsigned int handle_of(IDirectFBSurface* surface)
{
    unsigned int handle = 0;
    return zuvo_dtk_surface_handle(surface, &handle) == DFB_OK ? handle : 0;
}

u32 pixel_by_lock(IDirectFBSurface* surface, int x, int y, DFBSurfaceLockFlags flags)
{
    void* memory = nullptr;
    int pitch = 0;
    if (surface->Lock(surface, flags, &memory, &pitch) != DFB_OK)
        throw std::runtime_error("a surface cannot be locked");
    const u32 pixel = reinterpret_cast<u32*>(static_cast<char*>(memory) + y * pitch)[x];
    surface->Unlock(surface);
    return pixel;
}

std::string hexadecimal(u32 number)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%08x", number);
    return text;
}

} // namespace conformance
