#include "platform/hosted_session.h"
#include "platform/surface_pool.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace {

/// Looks every millisecond, for 20 seconds at most. Returns its last answer.
template <typename Condition>
bool is_reached(const Condition& condition)
{
    for (int i = 0; i < 20000 && !condition(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return condition();
}

/// The surface that is found is not destroyed before its use has ended.
TEST(SurfaceUse, IsWaitedForBeforeTheSurfaceIsDestroyed)
{
    const HostedSession session;
    if (!use_is_waited_for())
        GTEST_SKIP() << "the pool is locked during a use";
    watch_destruction();
    HostedSession::Surface surface = session.make_surface(40, 30);
    ASSERT_TRUE(begin_use(handle_of(surface)));
    surface.reset();
    EXPECT_TRUE(is_reached([] { return get_destruction() != NOT_BEGUN; }));
    EXPECT_EQ(get_destruction(), WAITS_FOR_USE);
    end_use();
    EXPECT_TRUE(is_reached([] { return get_destruction() == DESTROYED; }));
    end_watch();
}

/// Anything out of the ordinary is left to DirectFB's own lock.
TEST(SurfaceUse, HoldsTheMemoryOfAnOrdinarySurfaceOnly)
{
    const HostedSession session;
    if (!use_is_waited_for())
        GTEST_SKIP() << "surfaces are never held";
    const HostedSession::Surface surface = session.make_surface(40, 30);
    const unsigned int handle = handle_of(surface);
    EXPECT_TRUE(can_be_held(handle));
    EXPECT_TRUE(can_be_held(handle));

    set_thrifty(true);
    EXPECT_FALSE(can_be_held(handle));
    set_thrifty(false);
    mark_destroyed(handle, true);
    EXPECT_FALSE(can_be_held(handle));
    mark_destroyed(handle, false);
    EXPECT_TRUE(can_be_held(handle));
    EXPECT_FALSE(can_be_held(handle + 1000));
    end_lookups();
}

TEST(SurfaceUse, DoesNotHoldWhatHasNoMemoryYet)
{
    const HostedSession session;
    DFBSurfaceDescription description = {};
    description.flags = static_cast<DFBSurfaceDescriptionFlags>(DSDESC_WIDTH | DSDESC_HEIGHT);
    description.width = description.height = 20;
    IDirectFBSurface* surface = nullptr;
    ASSERT_EQ(session.directfb->CreateSurface(session.directfb, &description, &surface), DFB_OK);
    const HostedSession::Surface owner(surface);
    EXPECT_FALSE(can_be_held(handle_of(owner)));
    end_lookups();
}

} // namespace
