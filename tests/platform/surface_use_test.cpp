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

} // namespace
