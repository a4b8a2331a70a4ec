#include "faults/mode.h"

#include "faults/faults.h"
#include "support/capture.h"
#include "zuvo.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace faults {
namespace {

/// The platform has an engine exactly as long as a test of the hardware back end runs.
IDirectFB* start(const Mode& mode)
{
    if (mode.is_hardware)
        zuvo_init(0);
    else
        zuvo_uninit();
    watch(real::directfb());
    return real::directfb();
}

real::Toolkit make_toolkit(const Mode& mode, IDirectFBSurface* target)
{
    DTKHDDVD* toolkit = nullptr;
    EXPECT_EQ(CreateDrawingToolkit_HDDVD(real::directfb(), target, mode.uses_scratch_pad, &toolkit), 0);
    return real::Toolkit(toolkit);
}

void set_up(const real::Toolkit& toolkit, const Mode& mode, IDirectFBSurface* texture)
{
    const u8 alpha = mode.fill == Fill::translucent ? 0x60 : 0xff;
    toolkit->SetFillColor(toolkit.get(), 0x20, 0xa0, 0x40, alpha);
    toolkit->SetStrokeColor(toolkit.get(), 0xf0, 0x30, 0x10, alpha);
    if (mode.fill == Fill::pattern)
        run([&] { return toolkit->SetFillPattern(toolkit.get(), texture); });
    if (mode.has_pen)
        real::set_pen(toolkit, real::rectangular_pen(5, 5));
}

DFBResult draw_star(DTKHDDVD* toolkit)
{
    static const DFBPoint points[] = {{30, 4}, {52, 44}, {6, 16}, {56, 14}, {10, 40}};
    return toolkit->Polygon(toolkit, points, 5, 1, DTKHDDVD_FILL | DTKHDDVD_STROKE);
}

constexpr DFBRectangle box = {8, 6, 40, 30};

} // namespace

std::vector<Mode> all_modes()
{
    std::vector<Mode> modes;
    for (const Fill fill : {Fill::opaque, Fill::translucent, Fill::pattern}) {
        for (const bool has_pen : {false, true}) {
            modes.push_back({false, false, has_pen, fill});
            modes.push_back({false, true, has_pen, fill});
            modes.push_back({true, false, has_pen, fill});
        }
    }
    return modes;
}

std::string words_of(const Mode& mode)
{
    static const char* const fills[] = {"Opaque", "Translucent", "Pattern"};
    return std::string(mode.is_hardware ? "Hardware" : mode.uses_scratch_pad ? "ScratchPad" : "Direct") +
           fills[static_cast<int>(mode.fill)] + (mode.has_pen ? "Pen" : "Thin");
}

const std::vector<Drawing>& all_drawings()
{
    constexpr u32 both = DTKHDDVD_FILL | DTKHDDVD_STROKE;
    static const std::vector<Drawing> drawings = {
        {"DTKHDDVD_Line", [](DTKHDDVD* toolkit) { return toolkit->Line(toolkit, 5, 40, 55, 8); }},
        {"DTKHDDVD_Rectangle", [](DTKHDDVD* toolkit) { return toolkit->Rectangle(toolkit, &box, both); }},
        {"DTKHDDVD_Polygon", draw_star},
        {"DTKHDDVD_Ellipse", [](DTKHDDVD* toolkit) { return toolkit->Ellipse(toolkit, &box, both); }},
    };
    return drawings;
}

Session::Session(const Mode& mode, DFBSurfacePixelFormat target_format, DFBSurfacePixelFormat texture_format)
{
    start(mode);
    target_ = real::make_surface(64, 48, target_format);
    texture_ = real::make_surface(7, 5, texture_format);
    toolkit_ = make_toolkit(mode, target_.get());
    set_up(toolkit_, mode, texture_.get());
}

Session::~Session()
{
    fail_call(0);
    real::drop_pen(toolkit_);
}

real::Pixels Session::draw_twice(const Drawing& drawing) const
{
    run([&] { return drawing.draw(toolkit()); });
    real::clear(target_, real::background);
    run([&] { return drawing.draw(toolkit()); });
    return real::read(target_.get());
}

Outcome run(const std::function<DFBResult()>& operation)
{
    Capture error(stderr);
    const DFBResult result = operation();
    return {result, error.text()};
}

int line_count(const std::string& text)
{
    return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

} // namespace faults
