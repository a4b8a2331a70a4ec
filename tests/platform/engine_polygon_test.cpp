#include "engine/fill/polygon_scan.h"
#include "platform/engine_coverage.h"

#include <cairo.h>
#include <cmath>
#include <ctime>
#include <gtest/gtest.h>
#include <random>

namespace {

struct Corner {
    int x, y;
};

zuvo::PolygonScan scan;

zuvo::FixedPoint fixed(const Corner& corner)
{
    return {corner.x * zuvo::fixed_one, corner.y * zuvo::fixed_one};
}

Coverage engine_coverage(zuvo::Extent extent, const std::vector<Corner>& corners)
{
    Coverage coverage(extent);
    scan.begin(extent);
    for (std::size_t i = 0; i < corners.size(); ++i)
        scan.add_edge(fixed(corners[i]), fixed(corners[(i + 1) % corners.size()]));
    EXPECT_TRUE(scan.scan(coverage));
    return coverage;
}

Coverage expected_coverage(zuvo::Extent extent, const std::vector<Corner>& corners)
{
    return cairo_coverage(extent, [&corners](cairo_t* context) {
        for (const Corner& corner : corners)
            cairo_line_to(context, corner.x, corner.y);
    });
}

void expect_what_cairo_covers(unsigned seed, int polygons, unsigned max_corners, int size, int beyond)
{
    std::mt19937 random(seed);
    const unsigned range = static_cast<unsigned>(size + 2 * beyond + 1);
    const auto coordinate = [&] { return static_cast<int>(random() % range) - beyond; };
    for (int i = 0; i < polygons; ++i) {
        std::vector<Corner> corners(3 + random() % (max_corners - 2));
        for (Corner& corner : corners)
            corner = {coordinate(), coordinate()};
        const Coverage drawn = engine_coverage({size, size}, corners);
        const Coverage expected = expected_coverage({size, size}, corners);
        ASSERT_TRUE(drawn.is_well_formed);
        ASSERT_EQ(drawn.text(), expected.text()) << "polygon " << i << " of seed " << seed;
    }
}

TEST(EnginePolygon, CoversTheQuadrilateralsOfPensLikeCairo)
{
    expect_what_cairo_covers(1, 40000, 4, 9, 3);
}

TEST(EnginePolygon, CoversPolygonsInsideTheSurfaceLikeCairo)
{
    expect_what_cairo_covers(2, 10000, 12, 40, 0);
}

TEST(EnginePolygon, CoversPolygonsPartlyOutsideLikeCairo)
{
    expect_what_cairo_covers(3, 20000, 9, 40, 60);
}

TEST(EnginePolygon, CoversPolygonsOfManyPointsLikeCairo)
{
    for (const int size : {9, 63, 64, 65, 130}) {
        expect_what_cairo_covers(5, 60, 600, size, 0);
        expect_what_cairo_covers(6, 60, 1200, size, size);
    }
    expect_what_cairo_covers(7, 20, 20000, 70, 20);
}

/// A ring around its middle that goes to and fro, and a scribble all over the surface.
std::vector<Corner> wavy_ring(int count, int size)
{
    std::vector<Corner> corners;
    for (int i = 0; i < count; ++i) {
        const double angle = 6.283185307179586 * i / count, radius = size * (0.3 + 0.15 * std::sin(angle * count / 7));
        corners.push_back({static_cast<int>(size / 2 + radius * std::cos(angle)),
                           static_cast<int>(size / 2 + radius * std::sin(angle))});
    }
    return corners;
}

std::vector<Corner> scribble(int count, int size)
{
    std::mt19937 random(1);
    std::vector<Corner> corners(static_cast<std::size_t>(count));
    for (Corner& corner : corners)
        corner = {static_cast<int>(random() % static_cast<unsigned>(size)),
                  static_cast<int>(random() % static_cast<unsigned>(size))};
    return corners;
}

double seconds_for(const std::vector<Corner>& corners, int size)
{
    const std::clock_t start = std::clock();
    engine_coverage({size, size}, corners);
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST(EnginePolygon, TakesTimeInProportionToItsPoints)
{
    const int size = 200;
    for (const auto make : {wavy_ring, scribble}) {
        const double few = seconds_for(make(20000, size), size);
        const double many = seconds_for(make(400000, size), size);
        EXPECT_LT(many, 60 * few + 0.1) << "twenty times the points";
    }
}

TEST(EnginePolygon, CoversWideFlatPolygonsPartlyOutsideLikeCairo)
{
    std::mt19937 random(4);
    for (int i = 0; i < 20000; ++i) {
        std::vector<Corner> corners(3 + random() % 3);
        for (Corner& corner : corners)
            corner = {static_cast<int>(random() % 4000) - 2000, static_cast<int>(random() % 24) - 2};
        ASSERT_EQ(engine_coverage({30, 20}, corners).text(), expected_coverage({30, 20}, corners).text()) << i;
    }
}

TEST(EnginePolygon, ClosesAGapOfOnePixelOnlyWhereAnEdgeSlants)
{
    // Two upright bars, one pixel apart; the second time the right one is slanted on its outer side.
    const std::vector<Corner> level = {{1, 0}, {3, 0}, {3, 3}, {4, 3}, {4, 0}, {6, 0}, {6, 4}, {1, 4}};
    EXPECT_EQ(engine_coverage({8, 4}, level).text(), ".##.##..\n.##.##..\n.##.##..\n.#####..\n");

    const std::vector<Corner> slanted = {{1, 0}, {3, 0}, {3, 3}, {4, 3}, {4, 0}, {6, 0}, {5, 4}, {1, 4}};
    EXPECT_EQ(engine_coverage({8, 4}, slanted).text(), expected_coverage({8, 4}, slanted).text());
    EXPECT_EQ(engine_coverage({8, 4}, slanted).text().substr(0, 8), ".#####..");
}

TEST(EnginePolygon, CoversTheWholeSurfaceWithATriangleOfTheWidestNumbers)
{
    const int far = 2147483647;
    const Coverage drawn = engine_coverage({20, 10}, {{-far, -far}, {far, -far}, {0, far}});
    EXPECT_TRUE(drawn.is_well_formed);
    EXPECT_EQ(drawn.counts, std::vector<unsigned>(200, 1));
}

TEST(EnginePolygon, FollowsALongEdgeBeyondCairosNumbers)
{
    const int far = 1 << 30;
    const Coverage drawn = engine_coverage({6, 6}, {{-far, -far}, {far, far}, {-far, far}});
    EXPECT_EQ(drawn.text(), "......\n#.....\n##....\n###...\n####..\n#####.\n");
}

} // namespace
