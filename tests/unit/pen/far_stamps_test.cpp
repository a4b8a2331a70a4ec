#include "support/fixture.h"
#include "support/picture.h"

#include <cstdlib>
#include <vector>

/// Stamps that begin more than 65536 pixels from the surface's corner are left out, all others come in their order.

namespace {

using Points = std::vector<std::pair<long long, long long>>;

Points queued;

class FarStamps : public Fakes {
protected:
    FarStamps()
    {
        queued.clear();
        screen.BatchBlit = [](IDirectFBSurface*, IDirectFBSurface*, const DFBRectangle*, const DFBPoint* points,
                              int count) {
            EXPECT_LE(count, 64);
            for (int i = 0; i < count; ++i)
                queued.push_back({points[i].x, points[i].y});
            return DFB_OK;
        };
    }

    Points stamps_of_line(int x1, int y1, int x2, int y2)
    {
        queued.clear();
        EXPECT_EQ(stamp_line(&screen, x1, y1, x2, y2, &brush), 0);
        return queued;
    }

    Points stamps_of_rectangle(const DFBRectangle& rect)
    {
        queued.clear();
        EXPECT_EQ(stamp_rectangle(&screen, &rect, &brush), 0);
        return queued;
    }

    Points stamps_of_ellipse(const DFBRectangle& rect)
    {
        queued.clear();
        EXPECT_EQ(stamp_ellipse(&screen, &rect, &brush), 0);
        return queued;
    }

    fake::Surface& brush = fake::new_surface("brush", 5, 4, DSPF_LUT8);
};

/// Appends a stamp for a point, as the 5 x 4 pen is shifted, unless no surface reaches it.
void stamp(Points& points, long long x, long long y)
{
    if (std::abs(x - 2) <= 65536 && std::abs(y - 2) <= 65536)
        points.push_back({x - 2, y - 2});
}

Points line(long long x1, long long y1, long long x2, long long y2)
{
    Points points;
    const long long dx = std::abs(x2 - x1), dy = std::abs(y2 - y1), sx = x2 < x1 ? -1 : 1, sy = y2 < y1 ? -1 : 1;
    const bool is_steep = dx < dy;
    const long long steps = is_steep ? dy : dx, other = is_steep ? dx : dy;
    long long x = x1, y = y1, error = steps >> 1;
    stamp(points, x, y);
    for (long long step = 0; step < steps; ++step) {
        error += other;
        const bool turns = error >= steps;
        error -= turns ? steps : 0;
        x += is_steep && !turns ? 0 : sx;
        y += is_steep || turns ? sy : 0;
        stamp(points, x, y);
    }
    return points;
}

Points rectangle(long long x, long long y, long long w, long long h)
{
    Points points;
    for (long long column = x; column < x + w; ++column) {
        stamp(points, column, y);
        stamp(points, column, y + h - 1);
    }
    for (long long row = y; row < y + h; ++row) {
        stamp(points, x, row);
        stamp(points, x + w - 1, row);
    }
    return points;
}

/// What is stamped near by without looking at where it lies, moved away afterwards.
Points moved(const Points& points, int x, int y)
{
    Points result;
    for (const auto& point : points)
        stamp(result, point.first + 2 + x, point.second + 2 + y);
    return result;
}

TEST_F(FarStamps, LeaveNothingOfAnEarlierBatchBehind)
{
    batch_n_blits = 5;
    EXPECT_TRUE(stamps_of_line(100000, 0, 100100, 10).empty());
    EXPECT_EQ(batch_n_blits, 0);
}

TEST_F(FarStamps, OfLinesAreTheWalksThatMayBeSeen)
{
    fake::Random random(5);
    for (int i = 0; i < 200 && !HasFailure(); ++i) {
        const int reach = i % 2 ? 65536 + 100 : 300000;
        const auto number = [&] { return random.between(-reach, reach); };
        const int x1 = number(), y1 = number(), x2 = i % 7 ? number() : x1, y2 = i % 5 ? number() : y1;
        EXPECT_EQ(stamps_of_line(x1, y1, x2, y2), line(x1, y1, x2, y2)) << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2;
    }
}

TEST_F(FarStamps, OfRectanglesAreThoseThatMayBeSeen)
{
    fake::Random random(6);
    for (int i = 0; i < 200 && !HasFailure(); ++i) {
        const int x = random.between(-150000, 100000), y = random.between(-150000, 100000);
        const int w = random.between(-3, 200000), h = random.between(-3, 200000);
        EXPECT_EQ(stamps_of_rectangle({x, y, w, h}), rectangle(x, y, w, h)) << x << ' ' << y << ' ' << w << ' ' << h;
    }
}

TEST_F(FarStamps, OfEllipsesAreThoseThatMayBeSeen)
{
    fake::Random random(7);
    for (int i = 0; i < 60 && !HasFailure(); ++i) {
        const int w = random.between(-3, 60000), h = random.between(-3, 60000);
        const int x = random.between(-100000, 100000), y = random.between(-100000, 100000);
        const Points near_by = stamps_of_ellipse({0, 0, w, h});
        EXPECT_EQ(stamps_of_ellipse({x, y, w, h}), moved(near_by, x, y)) << x << ' ' << y << ' ' << w << ' ' << h;
    }
}

TEST_F(FarStamps, EndExactlyAtTheBorder)
{
    const auto far = 65536;
    EXPECT_EQ(stamps_of_line(far + 2, 2, far + 3, 2), (Points{{far, 0}}));
    EXPECT_EQ(stamps_of_line(2, -far + 2, 2, -far + 1), (Points{{0, -far}}));
    EXPECT_EQ(stamps_of_line(far + 3, 2, far + 9, 2), Points());
}

TEST_F(FarStamps, FollowTheTrueLineAcrossAllNumbers)
{
    const int least = -2147483647 - 1, most = 2147483647;
    const Points points = stamps_of_line(least, least, most, most);
    ASSERT_EQ(points.size(), 131073u);
    EXPECT_EQ(points.front(), (std::pair<long long, long long>{-65536, -65536}));
    EXPECT_EQ(points.back(), (std::pair<long long, long long>{65536, 65536}));

    // The lower side from -5 to 65538 and the left side from -65534 to -2.
    EXPECT_EQ(stamps_of_rectangle({-5, least, most, most}).size(), 65544u + 65533u);
}

TEST_F(FarStamps, AnswerTheSizeOfThePenWhenNoneIsSent)
{
    transcript().fail_every("brush.GetSize", refusal);
    EXPECT_EQ(stamp_line(&screen, 100000, 0, 100001, 0, &brush), refusal);
    EXPECT_EQ(queued.size(), 0u);
}

} // namespace
