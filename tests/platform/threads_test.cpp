#include "platform/hosted_session.h"
#include "common/surface.h"

#include <atomic>
#include <dtkhddvd.h>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>

/// What threads may do at the same time: one draws with the toolkit while others use DirectFB, and toolkits take turns.

namespace {

struct ReleaseToolkit {
    void operator()(DTKHDDVD* toolkit) const { toolkit->Release(toolkit); }
};
using Toolkit = std::unique_ptr<DTKHDDVD, ReleaseToolkit>;

enum class BackEnd { software, hardware };

class Threads : public testing::TestWithParam<BackEnd> {
protected:
    Threads()
    {
        if (GetParam() == BackEnd::software)
            zuvo_uninit(); // Pens ask the platform and not the toolkit.
    }

    Toolkit make_toolkit(IDirectFBSurface* surface) const
    {
        DTKHDDVD* toolkit = nullptr;
        EXPECT_EQ(CreateDrawingToolkit_HDDVD(session.directfb, surface, 1, &toolkit), DFB_OK);
        const DTKHDDVDPenShape shape = {-2, -2, 2, -2, 2, 2, -2, 2};
        DTKHDDVDPen* pen = nullptr;
        EXPECT_EQ(toolkit->CreatePen(toolkit, &shape, &pen), DFB_OK);
        EXPECT_EQ(toolkit->SetPen(toolkit, pen), DFB_OK);
        pen->Release(pen);
        return Toolkit(toolkit);
    }

    HostedSession session;
};

void draw_everything(const Toolkit& toolkit, int i)
{
    const DFBRectangle box = {5 + i % 30, 6, 60, 40};
    const DFBPoint corners[] = {{10, 10}, {90, 20 + i % 20}, {40, 70}};
    const u8 alpha = i % 2 ? 255 : 100;
    toolkit->SetStrokeColor(toolkit.get(), 200, 30, 30, alpha);
    toolkit->SetFillColor(toolkit.get(), 30, 200, 30, alpha);
    EXPECT_EQ(toolkit->Rectangle(toolkit.get(), &box, 3), DFB_OK);
    EXPECT_EQ(toolkit->Ellipse(toolkit.get(), &box, 3), DFB_OK);
    EXPECT_EQ(toolkit->Polygon(toolkit.get(), corners, 3, 1, 3), DFB_OK);
    EXPECT_EQ(toolkit->Line(toolkit.get(), 1, 1, 90, 70), DFB_OK);
}

/// Makes a surface, uses it in every way and gives it back.
void use_another_surface(IDirectFB* dfb)
{
    const DFBSurfaceDescription description = common::describe(50, 50, DSPF_ARGB, DSCAPS_DOUBLE);
    IDirectFBSurface* surface = nullptr;
    ASSERT_EQ(dfb->CreateSurface(dfb, &description, &surface), DFB_OK);
    void* pixels = nullptr;
    int pitch = 0;
    EXPECT_EQ(surface->Lock(surface, DSLF_WRITE, &pixels, &pitch), DFB_OK);
    *static_cast<u32*>(pixels) = 1;
    EXPECT_EQ(surface->Unlock(surface), DFB_OK);
    EXPECT_EQ(surface->FillRectangle(surface, 3, 3, 20, 20), DFB_OK);
    EXPECT_EQ(surface->Flip(surface, nullptr, DSFLIP_NONE), DFB_OK);
    surface->Release(surface);
}

TEST_P(Threads, OneDrawsWhileAnotherUsesDirectFB)
{
    const auto surface = session.make_surface(100, 80);
    const Toolkit toolkit = make_toolkit(surface.get());
    IDirectFBSurface* same = nullptr;
    ASSERT_EQ(surface->GetSubSurface(surface.get(), nullptr, &same), DFB_OK);

    std::atomic<bool> is_over = false;
    std::thread other([&] {
        while (!is_over) {
            use_another_surface(session.directfb);
            EXPECT_EQ(same->FillRectangle(same, 95, 0, 4, 4), DFB_OK);
        }
    });
    for (int i = 0; i < 300; ++i)
        draw_everything(toolkit, i);
    is_over = true;
    other.join();
    same->Release(same);
    toolkit->SetPen(toolkit.get(), nullptr);
}

TEST_P(Threads, ToolkitsTakeTurns)
{
    std::mutex turn;
    const auto draw = [&] {
        HostedSession::Surface surface;
        Toolkit toolkit;
        for (int i = 0; i < 150; ++i) {
            const std::lock_guard<std::mutex> lock(turn);
            if (!toolkit) {
                surface = session.make_surface(100, 80);
                toolkit = make_toolkit(surface.get());
            }
            draw_everything(toolkit, i);
        }
        const std::lock_guard<std::mutex> lock(turn);
        toolkit->SetPen(toolkit.get(), nullptr);
        toolkit.reset();
    };
    std::thread one(draw), other(draw);
    one.join();
    other.join();
}

INSTANTIATE_TEST_SUITE_P(, Threads, testing::Values(BackEnd::software, BackEnd::hardware));

} // namespace
