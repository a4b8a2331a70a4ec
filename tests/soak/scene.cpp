#include "scene.h"

#include <dtkhddvd.h>
#include <random>
#include <vector>

namespace soak {
namespace {

constexpr int operations_in_a_scene = 40;

class Painter {
public:
    Painter(DTKHDDVD* toolkit, IDirectFBSurface* texture, DFBDimension size, unsigned seed)
        : toolkit_(toolkit), texture_(texture), size_(size), random_(seed)
    {
    }

    void paint()
    {
        static void (Painter::*const operations[])() = {
            &Painter::set_colors, &Painter::set_pattern,  &Painter::set_pen,       &Painter::draw_line,
            &Painter::draw_line,  &Painter::draw_polygon, &Painter::draw_rectangle, &Painter::draw_ellipse};
        for (int i = 0; i < operations_in_a_scene; ++i)
            (this->*operations[between(0, 7)])();
        toolkit_->SetPen(toolkit_, nullptr);
    }

private:
    int between(int low, int high) { return low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1)); }
    u8 component() { return static_cast<u8>(between(0, 255)); }
    u8 alpha() { return between(0, 1) ? u8(255) : component(); }

    void set_colors()
    {
        const u8 r = component(), g = component(), b = component(), fill_alpha = alpha(), stroke_alpha = alpha();
        toolkit_->SetFillColor(toolkit_, r, g, b, fill_alpha);
        toolkit_->SetStrokeColor(toolkit_, b, r, g, stroke_alpha);
    }

    void set_pattern() { toolkit_->SetFillPattern(toolkit_, between(0, 1) ? texture_ : nullptr); }

    void set_pen()
    {
        const int width = between(1, 9), height = between(1, 9);
        const DTKHDDVDPenShape shape = {-width, 0, 0, -height, width, 0, 0, height};
        DTKHDDVDPen* pen = nullptr;
        if (toolkit_->CreatePen(toolkit_, &shape, &pen))
            return;
        toolkit_->SetPen(toolkit_, pen);
        pen->Release(pen);
    }

    DFBPoint point()
    {
        const int x = between(-20, size_.w + 20);
        return {x, between(-20, size_.h + 20)};
    }

    /// The edges of the surface cut every other box; boxes inside need no clipping.
    DFBRectangle box()
    {
        const DFBPoint corner = point();
        const int width = between(4, 120);
        return {corner.x, corner.y, width, between(4, 120)};
    }

    u32 flags() { return static_cast<u32>(between(1, 3)); }

    /// The engine draws no line without a pen, and says so.
    void draw_line()
    {
        set_pen();
        const DFBPoint from = point(), to = point();
        toolkit_->Line(toolkit_, from.x, from.y, to.x, to.y);
    }

    void draw_rectangle()
    {
        const DFBRectangle rect = box();
        toolkit_->Rectangle(toolkit_, &rect, flags());
    }

    void draw_ellipse()
    {
        const DFBRectangle rect = box();
        toolkit_->Ellipse(toolkit_, &rect, flags());
    }

    void draw_polygon()
    {
        std::vector<DFBPoint> points(static_cast<std::size_t>(between(2, 12)));
        for (DFBPoint& corner : points)
            corner = point();
        const auto closed = static_cast<u8>(between(0, 1));
        toolkit_->Polygon(toolkit_, points.data(), static_cast<u32>(points.size()), closed, flags());
    }

    DTKHDDVD* toolkit_;
    IDirectFBSurface* texture_;
    DFBDimension size_;
    std::mt19937 random_;
};

std::uint64_t sum_of(IDirectFBSurface* surface, DFBDimension size)
{
    void* pixels = nullptr;
    int pitch = 0;
    if (surface->Lock(surface, static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE), &pixels, &pitch))
        return 0;
    std::uint64_t sum = 0;
    for (int y = 0; y < size.h; ++y) {
        const auto* row = reinterpret_cast<const u32*>(static_cast<const u8*>(pixels) + y * pitch);
        for (int x = 0; x < size.w; ++x)
            sum = (sum ^ row[x]) * 0x9e3779b97f4a7c15u;
    }
    surface->Unlock(surface);
    return sum;
}

} // namespace

std::uint64_t draw_scene(IDirectFB* dfb, IDirectFBSurface* target, IDirectFBSurface* texture, unsigned seed)
{
    DFBDimension size = {0, 0};
    target->GetSize(target, &size.w, &size.h);
    target->Clear(target, 0x80, 0x80, 0x80, 0xff);

    DTKHDDVD* toolkit = nullptr;
    if (CreateDrawingToolkit_HDDVD(dfb, target, 1, &toolkit))
        return 0;
    Painter(toolkit, texture, size, seed).paint();
    toolkit->Release(toolkit);
    return sum_of(target, size);
}

} // namespace soak
