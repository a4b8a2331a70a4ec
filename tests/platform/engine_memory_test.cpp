/// The engine without memory: each of its allocations fails once.
#include "platform/hosted_session.h"
#include "support/allocation.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

class EngineMemory : public testing::Test {
protected:
    EngineMemory()
    {
        fake::watch_allocations_of("libzuvo");
        zuvo_dtk_set_output_surface(engine, handle_of(target));
        zuvo_dtk_set_fill_color(engine, 255, 255, 255, 255);
        set_pen(2);
    }

    ~EngineMemory() override { fake::fail_allocation(0); }

    /// A slanted pen, whose rows are computed.
    int set_pen(int size)
    {
        const zuvo_dtk_pen pen = {-size, 0, 0, -size, size, 0, 0, size, 0xffffffff};
        return zuvo_dtk_set_pen(engine, &pen);
    }

    /// What the engine has grows to each new size and is kept: the n-th allocation for the n-th of growing sizes.
    void expect_each_failure_returned(int first_size, const std::function<int(int size)>& call)
    {
        int size = first_size;
        for (int n = 1;; ++n, size *= 2) {
            zuvo_dtk_set_output_surface(engine, handle_of(target));
            fake::fail_allocation(n);
            const int error = call(size);
            const bool has_failed = fake::allocation_failed();
            fake::fail_allocation(0);
            EXPECT_EQ(error, has_failed ? ZUVO_NO_MEMORY : ZUVO_OK) << n << ", size " << size;
            if (!has_failed) {
                EXPECT_GT(n, 1) << "nothing was allocated";
                return;
            }
        }
    }

    HostedSession session;
    HostedSession::Surface target = session.make_surface(2000, 2000);
    unsigned int engine = session.engine;
};

TEST_F(EngineMemory, ForTheRowsOfASlantedPen)
{
    expect_each_failure_returned(16, [&](int size) { return set_pen(size); });
}

TEST_F(EngineMemory, ForTheRowsOfAPenWithoutWidth)
{
    expect_each_failure_returned(16, [&](int size) {
        const zuvo_dtk_pen pen = {1, 0, 1, 0, 1, size, 1, size, 0xffffffff};
        return zuvo_dtk_set_pen(engine, &pen);
    });
}

TEST_F(EngineMemory, ForAPenLeavesNone)
{
    fake::fail_allocation(1);
    EXPECT_EQ(set_pen(1000), ZUVO_NO_MEMORY);
    fake::fail_allocation(0);
    EXPECT_EQ(zuvo_dtk_draw_line(engine, 1, 1, 9, 9, 0x30), ZUVO_NO_PEN);
    EXPECT_EQ(set_pen(1000), ZUVO_OK);
    EXPECT_EQ(zuvo_dtk_draw_line(engine, 1, 1, 9, 9, 0x30), ZUVO_OK);
}

TEST_F(EngineMemory, ForTheEdgesOfAPolygon)
{
    expect_each_failure_returned(200, [&](int size) {
        std::vector<DFBPoint> points;
        for (int i = 0; i < size; ++i)
            points.push_back({i % 1999, (i * 7) % 1999});
        return zuvo_dtk_draw_polygon(engine, points.data(), static_cast<unsigned int>(size), 0);
    });
}

TEST_F(EngineMemory, ForEllipses)
{
    for (const auto& draw : {zuvo_dtk_draw_ellipse, zuvo_dtk_draw_ellipse_border})
        expect_each_failure_returned(60, [&](int size) {
            const DFBRectangle rect = {1, 1, size, size};
            return draw(engine, &rect, 0x30);
        });
}

TEST_F(EngineMemory, ForBorders)
{
    expect_each_failure_returned(60, [&](int size) {
        const DFBRectangle rect = {1, 1, size, size};
        return zuvo_dtk_draw_rectangle_border(engine, &rect, 0x31);
    });
}

TEST_F(EngineMemory, ForLines)
{
    expect_each_failure_returned(60, [&](int size) { return zuvo_dtk_draw_line(engine, 1, 1, size, size / 2, 0x31); });
}

} // namespace
