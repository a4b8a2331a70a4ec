#include "direct.h"
#include "examinations.h"

#include <atomic>
#include <mutex>
#include <thread>

/// When things are drawn: an engine may work late, but nobody may see that.

namespace conformance {
namespace {

constexpr auto read_and_write = static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE);
constexpr DFBRectangle inner_box = {10, 10, 20, 20};
constexpr DFBRectangle all = {0, 0, Direct::size, Direct::size};

std::string found(const std::string& what, u32 pixel)
{
    return what + ": the pixel in the middle is " + hexadecimal(pixel);
}

void check_middle(Verdict& verdict, const std::string& what, u32 pixel, u32 expected)
{
    verdict.check((pixel & 0xffffff) == (expected & 0xffffff), found(what, pixel));
}

/// Shapes that take an engine a while, over everything; the last one has the colour.
void draw_slowly(const Direct& direct, unsigned int target, u32 color)
{
    direct.set(0xff101010);
    zuvo_dtk_set_output_surface(direct.engine(), target);
    for (int i = 0; i < 5; ++i)
        direct.fill_ellipse();
    direct.set_fill(color);
    direct.fill_ellipse();
}

/// An ellipse, then `wait`, then a rectangle that need not wait for the ellipse: it has to lie on top.
template <typename Wait>
void check_rectangle_is_later(const Examination& examination, const std::string& what, const Wait& wait)
{
    for (int i = 0; i < 5; ++i) {
        const Direct direct(examination);
        draw_slowly(direct, direct.target(), red);
        wait(direct);
        direct.set_fill(green);
        direct.fill_box(inner_box);
        check_middle(examination.verdict, what, direct.middle(), green);
    }
}

Toolkit make_toolkit(const Examination& examination, IDirectFBSurface* surface)
{
    Toolkit toolkit = examination.stage.make_toolkit(BackEnd::hardware, surface);
    toolkit->SetFillColor(toolkit.get(), 255, 0, 0, 255);
    return toolkit;
}

DFBResult fill_with_directfb(IDirectFBSurface* surface)
{
    surface->SetColor(surface, 0, 0, 255, 255);
    return surface->FillRectangle(surface, inner_box.x, inner_box.y, inner_box.w, inner_box.h);
}

/// What DirectFB draws after an ellipse of the toolkit lies on top, and is below a rectangle that comes later.
void check_order(const Examination& examination)
{
    const Direct direct(examination);
    const Toolkit toolkit = make_toolkit(examination, direct.surface());
    Verdict& verdict = examination.verdict;
    for (int i = 0; i < 5; ++i)
        verdict.check(toolkit->Ellipse(toolkit.get(), &all, DTKHDDVD_FILL) == DFB_OK, "Ellipse fails");
    verdict.check(fill_with_directfb(direct.surface()) == DFB_OK, "FillRectangle fails");
    check_middle(verdict, "FillRectangle after Ellipse", direct.middle(), blue);

    for (int i = 0; i < 5; ++i)
        toolkit->Ellipse(toolkit.get(), &all, DTKHDDVD_FILL);
    toolkit->SetFillColor(toolkit.get(), 0, 255, 0, 255);
    verdict.check(toolkit->Rectangle(toolkit.get(), &inner_box, DTKHDDVD_FILL) == DFB_OK, "Rectangle fails");
    check_middle(verdict, "Rectangle after Ellipse", direct.middle(), green);
    toolkit->SetFillColor(toolkit.get(), 255, 0, 0, 255);
    toolkit->Ellipse(toolkit.get(), &all, DTKHDDVD_FILL);
    check_middle(verdict, "Ellipse after Rectangle", direct.middle(), red);
}

/// One of several threads that take turns, with a surface and a toolkit of its own.
void take_turns(const Examination& examination, std::mutex& turn, std::atomic<int>& good_turns)
{
    Surface surface;
    Toolkit toolkit;
    for (int i = 0; i < 40; ++i) {
        const std::lock_guard<std::mutex> lock(turn);
        if (!toolkit) {
            surface = examination.stage.make_surface(Direct::size, Direct::size, DSPF_ARGB);
            toolkit = make_toolkit(examination, surface.get());
        }
        const u8 shade = i % 2 ? 255 : 0;
        toolkit->SetFillColor(toolkit.get(), shade, 100, 200, 255);
        const DFBResult result = toolkit->Ellipse(toolkit.get(), &all, DTKHDDVD_FILL);
        const u32 pixel = pixel_by_lock(surface.get(), 20, 20, read_and_write);
        good_turns += result == DFB_OK && (pixel >> 16 & 255) == shade;
    }
    const std::lock_guard<std::mutex> lock(turn);
    zuvo_dtk_sync(zuvo_dtk_get_handle());
    toolkit.reset();
    surface.reset();
}

void use_directfb(const Examination& examination, const std::atomic<bool>& is_over)
{
    while (!is_over) {
        const Surface surface = examination.stage.make_surface(30, 30, DSPF_ARGB);
        fill_with_directfb(surface.get());
        pixel_by_lock(surface.get(), 1, 1, read_and_write);
    }
}

} // namespace

void examine_lock(const Examination& examination)
{
    for (int i = 0; i < 5; ++i) {
        const Direct direct(examination);
        draw_slowly(direct, direct.target(), red);
        const u32 pixel = pixel_by_lock(direct.surface(), 20, 20, read_and_write);
        check_middle(examination.verdict, "Lock after an ellipse", pixel, red);
        zuvo_dtk_sync(direct.engine());
    }
}

void examine_sync(const Examination& examination)
{
    check_rectangle_is_later(examination, "a rectangle after zuvo_dtk_sync after an ellipse",
                             [](const Direct& direct) { zuvo_dtk_sync(direct.engine()); });
}

void examine_idle(const Examination& examination)
{
    IDirectFB* const dfb = examination.stage.dfb();
    check_rectangle_is_later(examination, "a rectangle after WaitIdle after an ellipse",
                             [dfb](const Direct&) { dfb->WaitIdle(dfb); });
}

void examine_flip(const Examination& examination)
{
    const Direct direct(examination);
    IDirectFBSurface* const layer = examination.layer;
    for (const u32 color : {red, green, blue}) {
        draw_slowly(direct, handle_of(layer), color);
        examination.verdict.check(layer->Flip(layer, nullptr, DSFLIP_NONE) == DFB_OK, "Flip fails");
        check_middle(examination.verdict, "Flip after an ellipse", pixel_by_lock(layer, 20, 20, DSLF_READ), color);
        zuvo_dtk_sync(direct.engine());
    }
}

void examine_order(const Examination& examination)
{
    for (int i = 0; i < 3; ++i)
        check_order(examination);
}

void examine_threads(const Examination& examination)
{
    std::mutex turn;
    std::atomic<int> good_turns = 0;
    std::atomic<bool> is_over = false;
    std::thread user([&] { use_directfb(examination, is_over); });
    std::thread one([&] { take_turns(examination, turn, good_turns); });
    std::thread other([&] { take_turns(examination, turn, good_turns); });
    one.join();
    other.join();
    is_over = true;
    user.join();
    examination.verdict.check(good_turns == 80, std::to_string(80 - good_turns) + " of 80 drawings are wrong");
}

} // namespace conformance
