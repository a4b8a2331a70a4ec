#include "engine/polygon_scan.h"
#include "platform/engine_coverage.h"

#include <cairo.h>
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
