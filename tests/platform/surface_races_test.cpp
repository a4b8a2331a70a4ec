#include "platform/hosted_session.h"
#include "common/surface.h"
#include "platform/meanwhile.h"
#include "platform/surface_pool.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

/// The engine finds the surface that it drew on last without DirectFB's locks. Other threads release, resize and flip it
/// meanwhile: nothing is drawn into memory that is gone, and every call that reports success has drawn.

namespace {

const DFBRectangle box = {3, 4, 10, 10};
const u32 green = 0xff00ff00;
const auto both_ways = static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE);

struct SurfaceRaces : testing::Test {
    HostedSession session;

    void SetUp() override
    {
        const zuvo_dtk_pen pen = {0, 0, 1, 0, 1, 1, 0, 1, green};
        ASSERT_EQ(zuvo_dtk_set_pen(session.engine, &pen), ZUVO_OK);
    }

    /// What the toolkit does for each small shape.
    int fill(unsigned int handle, const DFBRectangle& rect = box) const
    {
        if (int error = zuvo_dtk_set_output_surface(session.engine, handle))
            return error;
        EXPECT_EQ(zuvo_dtk_set_fill_color(session.engine, 0, 0xff, 0, 0xff), ZUVO_OK);
        return zuvo_dtk_draw_rectangle(session.engine, &rect, 0);
    }

    int draw_all(unsigned int handle) const
    {
        const DFBPoint corners[] = {{0, 0}, {39, 5}, {12, 29}};
        const DFBRectangle wide = {1, 1, 34, 22};
        int error = fill(handle, wide);
        error = error ? error : zuvo_dtk_draw_ellipse(session.engine, &box, 1);
        error = error ? error : zuvo_dtk_draw_polygon(session.engine, corners, 3, 1);
        error = error ? error : zuvo_dtk_draw_ellipse_border(session.engine, &box, 1);
        error = error ? error : zuvo_dtk_draw_rectangle_border(session.engine, &wide, 1);
        return error ? error : zuvo_dtk_draw_line(session.engine, 1, 1, 35, 25, 1);
    }

    HostedSession::Surface make_double(int width, int height) const
    {
        const DFBSurfaceDescription description = common::describe(width, height, DSPF_ARGB, DSCAPS_DOUBLE);
        IDirectFBSurface* surface = nullptr;
        EXPECT_EQ(session.directfb->CreateSurface(session.directfb, &description, &surface), DFB_OK);
        return HostedSession::Surface(surface);
    }
};

TEST_F(SurfaceRaces, AnotherThreadReleasesTheSurface)
{
    for (int i = 0; i < 300; ++i) {
        HostedSession::Surface surface = session.make_surface(40, 30);
        const unsigned int handle = handle_of(surface);
        std::atomic<int> drawn = 0;
        std::thread other([&, wanted = i % 7] {
            while (drawn < wanted)
                std::this_thread::yield();
            surface.reset();
        });
        int error = ZUVO_OK;
        for (; !error; ++drawn)
            error = draw_all(handle);
        other.join();
        EXPECT_EQ(error, ZUVO_NO_SUCH_SURFACE);
        EXPECT_EQ(draw_all(handle), ZUVO_NO_SUCH_SURFACE);
    }
}

TEST_F(SurfaceRaces, AnotherThreadMakesAndReleasesOtherSurfaces)
{
    const HostedSession::Surface surface = session.make_surface(40, 30);
    const unsigned int handle = handle_of(surface);
    const Meanwhile others([this] { session.make_surface(50, 50); });
    for (int i = 0; i < 500 || !others.is_enough(); ++i) {
        surface->Clear(surface.get(), 0, 0, 0, 0);
        ASSERT_EQ(fill(handle), ZUVO_OK);
        ASSERT_EQ(read(surface)[5 * 40 + 5], green);
    }
}

TEST_F(SurfaceRaces, AnotherThreadResizesTheSurface)
{
    IDirectFBDisplayLayer* layer = nullptr;
    ASSERT_EQ(session.directfb->GetDisplayLayer(session.directfb, DLID_PRIMARY, &layer), DFB_OK);
    DFBWindowDescription description = {};
    description.flags = static_cast<DFBWindowDescriptionFlags>(DWDESC_WIDTH | DWDESC_HEIGHT | DWDESC_CAPS);
    description.caps = DWCAPS_ALPHACHANNEL;
    description.width = description.height = 200;
    IDirectFBWindow* window = nullptr;
    ASSERT_EQ(layer->CreateWindow(layer, &description, &window), DFB_OK);
    IDirectFBSurface* surface = nullptr;
    ASSERT_EQ(window->GetSurface(window, &surface), DFB_OK);
    {
        unsigned int handle = 0;
        ASSERT_EQ(zuvo_dtk_surface_handle(surface, &handle), ZUVO_OK);
        std::atomic<int> size = 40;
        const Meanwhile resizes([&] { window->Resize(window, size = size % 400 + 40, 30); });
        const DFBRectangle everything = {0, 0, 500, 500};
        for (int i = 0; i < 2000 || !resizes.is_enough(); ++i) {
            ASSERT_EQ(fill(handle, everything), ZUVO_OK);
            ASSERT_EQ(draw_all(handle), ZUVO_OK);
        }
    }
    surface->Release(surface);
    window->Release(window);
    layer->Release(layer);
}

TEST_F(SurfaceRaces, AnotherThreadFlipsTheSurface)
{
    const HostedSession::Surface surface = make_double(40, 30);
    const unsigned int handle = handle_of(surface);
    const Meanwhile flips([&] { EXPECT_EQ(surface->Flip(surface.get(), nullptr, DSFLIP_NONE), DFB_OK); });
    for (int i = 0; i < 2000 || !flips.is_enough(); ++i)
        ASSERT_EQ(draw_all(handle), ZUVO_OK);
}

TEST_F(SurfaceRaces, AnotherThreadDrawsOnTheSurface)
{
    const HostedSession::Surface surface = session.make_surface(40, 30);
    const unsigned int handle = handle_of(surface);
    IDirectFBSurface* same = nullptr;
    ASSERT_EQ(surface->GetSubSurface(surface.get(), nullptr, &same), DFB_OK);
    {
        const Meanwhile drawings([same] { EXPECT_EQ(same->FillRectangle(same, 36, 0, 4, 4), DFB_OK); });
        for (int i = 0; i < 2000 || !drawings.is_enough(); ++i)
            ASSERT_EQ(draw_all(handle), ZUVO_OK);
    }
    same->Release(same);
}

/// Without its lock the surface could be replaced under the drawing.
TEST_F(SurfaceRaces, ALockedSurfaceIsWaitedFor)
{
    const HostedSession::Surface surface = session.make_surface(40, 30);
    const unsigned int handle = handle_of(surface);
    ASSERT_EQ(fill(handle), ZUVO_OK);
    for (int i = 0; i < 3; ++i) {
        std::atomic<bool> is_drawn = false;
        lock_core_surface(handle);
        std::thread drawing([&] {
            errno = i;
            EXPECT_EQ(fill(handle), ZUVO_OK);
            is_drawn = true;
        });
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        EXPECT_FALSE(is_drawn);
        unlock_core_surface(handle);
        drawing.join();
    }
}

/// After a flip the next call has to draw into the other buffer.
TEST_F(SurfaceRaces, EachDrawingGoesToTheBackBuffer)
{
    const HostedSession::Surface surface = make_double(40, 30);
    const unsigned int handle = handle_of(surface);
    for (int i = 0; i < 6; ++i) {
        surface->Clear(surface.get(), 0, 0, 0, 0);
        ASSERT_EQ(fill(handle), ZUVO_OK);
        ASSERT_EQ(read(surface)[5 * 40 + 5], green) << i;
        surface->Flip(surface.get(), nullptr, DSFLIP_NONE);
    }
}

/// What the graphics driver drew before lies below, what it draws afterwards above.
TEST_F(SurfaceRaces, EngineAndDirectFBTakeTurns)
{
    const HostedSession::Surface one = session.make_surface(40, 30), other = session.make_surface(40, 30);
    for (int i = 0; i < 50; ++i) {
        for (const HostedSession::Surface* surface : {&one, &other, &one}) {
            (*surface)->Clear(surface->get(), 0, 0, 0, 0);
            ASSERT_EQ(fill(handle_of(*surface)), ZUVO_OK);
            (*surface)->SetColor(surface->get(), 1, 1, 1, 1);
            (*surface)->FillRectangle(surface->get(), 6, 4, 5, 5);
            ASSERT_EQ(read(*surface)[5 * 40 + 5], green);
            ASSERT_EQ(read(*surface)[5 * 40 + 6], 0x01010101u);
        }
    }
}

/// DirectFB destroys a surface some time after it is released.
TEST_F(SurfaceRaces, ASurfaceIsNotFoundOnceItIsReleased)
{
    for (int i = 0; i < 10; ++i) {
        HostedSession::Surface surface = session.make_surface(40, 30);
        const unsigned int handle = handle_of(surface);
        ASSERT_EQ(fill(handle), ZUVO_OK);
        surface.reset();
        for (int j = 0; j < 5; ++j) {
            EXPECT_EQ(fill(handle), ZUVO_NO_SUCH_SURFACE);
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }
}

TEST_F(SurfaceRaces, TheEndGivesDirectFBItsOwnFunctionBack)
{
    const DestroySurface own = get_destroy_surface();
    const HostedSession::Surface surface = session.make_surface(40, 30);
    for (int i = 0; i < 3; ++i) {
        ASSERT_EQ(fill(handle_of(surface)), ZUVO_OK);
        zuvo_uninit();
        EXPECT_EQ(get_destroy_surface(), own);
        zuvo_init(4108);
    }
    HostedSession::Surface gone = session.make_surface(20, 20);
    const unsigned int handle = handle_of(gone);
    ASSERT_EQ(fill(handle), ZUVO_OK);
    gone.reset();
    EXPECT_EQ(fill(handle), ZUVO_NO_SUCH_SURFACE);
}

/// The platform need not end with DirectFB.
TEST_F(SurfaceRaces, DirectFBStartsAgainUnderThePlatform)
{
    for (int i = 0; i < 5; ++i) {
        HostedSession::Surface surface = session.make_surface(40, 30);
        ASSERT_EQ(fill(handle_of(surface)), ZUVO_OK);
        ASSERT_EQ(read(surface)[5 * 40 + 5], green);
        const unsigned int handle = handle_of(surface);
        surface.reset();
        session.directfb->Release(session.directfb);
        zuvo_dfb_ext_close();
        EXPECT_EQ(fill(handle), ZUVO_NO_SUCH_SURFACE);
        session.directfb = zuvo_dfb_ext_open_with_params(6, nullptr, nullptr);
        ASSERT_TRUE(session.directfb);
    }
}

} // namespace
