#include "platform/hosted_session.h"

#include <chrono>
#include <gtest/gtest.h>
#include <random>

namespace {

/// Numbers that overflow when they are added to, and ordinary ones.
int extreme_number(std::mt19937& random)
{
    const int numbers[] = {-2147483647 - 1, -2147483647, -1073741824, -16777217, -8388608, -65536, -40, -2, -1, 0, 1, 2,
                           7, 31, 40, 65536, 8388607, 16777217, 1073741824, 2147483646, 2147483647};
    return random() % 3 ? numbers[random() % std::size(numbers)] : static_cast<int>(random());
}

struct Extreme : testing::Test {
    HostedSession session;
    HostedSession::Surface target = session.make_surface(40, 30);
    HostedSession::Surface texture = session.make_surface(5, 3);
    std::mt19937 random{8};

    int number() { return extreme_number(random); }
    DFBRectangle box() { return {number(), number(), number(), number()}; }

    int draw(unsigned int kind, unsigned int flags)
    {
        const DFBRectangle rect = box();
        std::vector<DFBPoint> points;
        for (unsigned i = 0; i < 2 + random() % 9; ++i)
            points.push_back({number(), number()});
        switch (kind % 6) {
        case 0:
            return zuvo_dtk_draw_line(session.engine, rect.x, rect.y, rect.w, rect.h, flags);
        case 1:
            return zuvo_dtk_draw_rectangle(session.engine, &rect, flags);
        case 2:
            return zuvo_dtk_draw_rectangle_border(session.engine, &rect, flags);
        case 3:
            return zuvo_dtk_draw_ellipse(session.engine, &rect, flags);
        case 4:
            return zuvo_dtk_draw_ellipse_border(session.engine, &rect, flags);
        default:
            return zuvo_dtk_draw_polygon(session.engine, points.data(), static_cast<unsigned>(points.size()), 0);
        }
    }

    void set_random_pen()
    {
        const int reach = random() % 4 ? 5 : 2000;
        zuvo_dtk_pen pen = {};
        for (int* value : {&pen.x0, &pen.y0, &pen.x1, &pen.y1, &pen.x2, &pen.y2, &pen.x3, &pen.y3})
            *value = static_cast<int>(random() % static_cast<unsigned>(2 * reach + 1)) - reach;
        pen.color = static_cast<u32>(random());
        ASSERT_EQ(zuvo_dtk_set_pen(session.engine, &pen), ZUVO_OK);
    }
};

TEST_F(Extreme, NumbersAreDrawnInLittleTime)
{
    const auto start = std::chrono::steady_clock::now();
    for (unsigned int i = 0; i < 6000; ++i) {
        ASSERT_EQ(zuvo_dtk_set_output_surface(session.engine, handle_of(target)), ZUVO_OK);
        if (random() % 2)
            ASSERT_EQ(zuvo_dtk_set_fill_color(session.engine, 1, 2, 3, static_cast<u8>(random())), ZUVO_OK);
        else
            ASSERT_EQ(zuvo_dtk_set_fill_pattern(session.engine, handle_of(texture)), ZUVO_OK);
        set_random_pen();
        const int error = draw(i, static_cast<unsigned int>(random() % 2));
        ASSERT_TRUE(error == ZUVO_OK || error == ZUVO_EMPTY_RECTANGLE) << i << ": " << error;
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

TEST_F(Extreme, RectangleAroundEverythingFillsTheSurface)
{
    ASSERT_EQ(zuvo_dtk_set_output_surface(session.engine, handle_of(target)), ZUVO_OK);
    ASSERT_EQ(zuvo_dtk_set_fill_color(session.engine, 1, 2, 3, 255), ZUVO_OK);
    const DFBRectangle everything = {-2147483647 - 1, -2147483647 - 1, 2147483647, 2147483647};
    ASSERT_EQ(zuvo_dtk_draw_rectangle(session.engine, &everything, 0), ZUVO_OK);
    EXPECT_EQ(read(target), std::vector<u32>(1200, 0));

    const DFBRectangle around = {-1000000000, -1000000000, 2147483647, 2147483647};
    ASSERT_EQ(zuvo_dtk_draw_rectangle(session.engine, &around, 0), ZUVO_OK);
    EXPECT_EQ(read(target), std::vector<u32>(1200, 0xff010203));
}

TEST_F(Extreme, LineAcrossAllNumbersCrossesTheSurface)
{
    const zuvo_dtk_pen point = {0, 0, 0, 0, 0, 0, 0, 0, 0xffffffff};
    ASSERT_EQ(zuvo_dtk_set_output_surface(session.engine, handle_of(target)), ZUVO_OK);
    ASSERT_EQ(zuvo_dtk_set_pen(session.engine, &point), ZUVO_OK);
    ASSERT_EQ(zuvo_dtk_draw_line(session.engine, -2147483647, -2147483647, 2147483647, 2147483647, 0), ZUVO_OK);
    const std::vector<u32> pixels = read(target);
    for (unsigned y = 0; y < 30; ++y) {
        for (unsigned x = 0; x < 40; ++x)
            ASSERT_EQ(pixels[y * 40 + x], x == y ? 0xffffffff : 0) << x << ' ' << y;
    }
}

} // namespace
