#include "speed.h"

#include <algorithm>
#include <chrono>

#include <zuvo.h>

namespace conformance {
namespace {

using Clock = std::chrono::steady_clock;
using Draw = DFBResult (*)(DTKHDDVD* toolkit);

constexpr DFBRectangle box = {20, 20, 100, 100};
constexpr DFBPoint corners[] = {{20, 20}, {119, 40}, {60, 119}};
constexpr u32 fill = DTKHDDVD_FILL, stroke = DTKHDDVD_STROKE;

struct Item {
    const char* name;
    Draw draw;
};

constexpr Item items[] = {
    {"line", [](DTKHDDVD* toolkit) { return toolkit->Line(toolkit, 20, 20, 119, 119); }},
    {"rectangle", [](DTKHDDVD* toolkit) { return toolkit->Rectangle(toolkit, &box, fill); }},
    {"rectangle border", [](DTKHDDVD* toolkit) { return toolkit->Rectangle(toolkit, &box, stroke); }},
    {"polygon", [](DTKHDDVD* toolkit) { return toolkit->Polygon(toolkit, corners, 3, 1, fill); }},
    {"polygon outline", [](DTKHDDVD* toolkit) { return toolkit->Polygon(toolkit, corners, 3, 1, stroke); }},
    {"ellipse", [](DTKHDDVD* toolkit) { return toolkit->Ellipse(toolkit, &box, fill); }},
    {"ellipse border", [](DTKHDDVD* toolkit) { return toolkit->Ellipse(toolkit, &box, stroke); }},
};

/// The time of one of so many drawings, the last of which is waited for.
double time_of(const Stage& stage, DTKHDDVD* toolkit, Draw draw, int count)
{
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < count; ++i)
        draw(toolkit);
    if (const unsigned int engine = zuvo_dtk_get_handle())
        zuvo_dtk_sync(engine);
    stage.dfb()->WaitIdle(stage.dfb());
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / count;
}

/// The least of some rounds, in a colour and with a pen of 5 x 5 pixels.
double measure(const Stage& stage, BackEnd back_end, Draw draw, u8 alpha)
{
    const Surface surface = stage.make_surface(140, 140, DSPF_ARGB);
    const Toolkit toolkit = stage.make_toolkit(back_end, surface.get());
    const DTKHDDVDPenShape shape = {-2, -2, 3, -2, 3, 3, -2, 3};
    DTKHDDVDPen* pen = nullptr;
    if (toolkit->CreatePen(toolkit.get(), &shape, &pen) == DFB_OK) {
        toolkit->SetPen(toolkit.get(), pen);
        pen->Release(pen);
    }
    toolkit->SetFillColor(toolkit.get(), 10, 200, 90, alpha);
    toolkit->SetStrokeColor(toolkit.get(), 200, 10, 90, alpha);
    double least = time_of(stage, toolkit.get(), draw, 5);
    for (int round = 0; round < 3; ++round)
        least = std::min(least, time_of(stage, toolkit.get(), draw, 20));
    toolkit->SetPen(toolkit.get(), nullptr);
    return least;
}

} // namespace

std::vector<Speed> measure_speeds(const Stage& stage)
{
    std::vector<Speed> speeds;
    for (const u8 alpha : {u8{255}, u8{128}}) {
        for (const Item& item : items)
            speeds.push_back({item.name + std::string(alpha == 255 ? "" : ", blended"),
                              measure(stage, BackEnd::software, item.draw, alpha),
                              measure(stage, BackEnd::hardware, item.draw, alpha)});
    }
    return speeds;
}

} // namespace conformance
