#include "engine/fill/ellipse_arc.h"
#include "engine/fill/ellipse_rows.h"
#include "platform/engine_coverage.h"

#include <cairo.h>
#include <gtest/gtest.h>
#include <random>

namespace {

zuvo::PolygonScan scan;

Coverage engine_coverage(zuvo::Extent extent, const DFBRectangle& rect)
{
    Coverage coverage(extent);
    scan.begin(extent);
    zuvo::add_ellipse(scan, rect);
    EXPECT_TRUE(scan.scan(coverage));
    return coverage;
}

Coverage expected_coverage(zuvo::Extent extent, const DFBRectangle& rect)
{
    return cairo_coverage(extent, [&rect](cairo_t* context) {
        cairo_save(context);
        cairo_translate(context, rect.x + rect.w / 2, rect.y + rect.h / 2);
        cairo_scale(context, rect.w / 2, rect.h / 2);
        cairo_arc(context, 0, 0, 1.0, 0, 6.283185307179586);
        cairo_restore(context);
    });
}

TEST(EngineEllipse, CoversEverySmallBoxLikeCairo)
{
    const zuvo::Extent extent = {74, 74};
    for (int width = 2; width <= 70; ++width) {
        for (int height = 2; height <= 70; ++height) {
            const DFBRectangle rect = {1, 2, width, height};
            ASSERT_EQ(engine_coverage(extent, rect).text(), expected_coverage(extent, rect).text())
                << width << 'x' << height;
        }
    }
}

TEST(EngineEllipse, CoversBoxesPartlyOutsideLikeCairo)
{
    std::mt19937 random(5);
    const zuvo::Extent extent = {60, 50};
    for (int i = 0; i < 10000; ++i) {
        const int reach = i % 4 ? 150 : 3000;
        const auto number = [&random](int low, int high) {
            return low + static_cast<int>(random() % static_cast<unsigned>(high - low));
        };
        const DFBRectangle rect = {number(-reach, 70), number(-reach, 60), number(2, 2 * reach), number(2, 2 * reach)};
        ASSERT_EQ(engine_coverage(extent, rect).text(), expected_coverage(extent, rect).text())
            << rect.x << ' ' << rect.y << ' ' << rect.w << ' ' << rect.h;
    }
}

TEST(EngineEllipse, FillsEverySmallBoxAsIfItWereCut)
{
    zuvo::Buffer<zuvo::Span> rows = {};
    const zuvo::Extent extent = {46, 46};
    for (int width = -2; width <= 44; ++width) {
        for (int height = -2; height <= 44; ++height) {
            for (const DFBPoint corner : {DFBPoint{0, 0}, DFBPoint{1, 1}, DFBPoint{2, 1}, DFBPoint{-3, -7}}) {
                const DFBRectangle rect = {corner.x, corner.y, width, height};
                Coverage whole(extent), cut(extent);
                ASSERT_TRUE(zuvo::fill_ellipse(rows, extent, rect, whole));
                ASSERT_TRUE(zuvo::fill_cut_ellipse(rows, extent, rect, cut));
                ASSERT_TRUE(whole.is_well_formed);
                ASSERT_EQ(whole.text(), cut.text()) << width << 'x' << height;
            }
        }
    }
    std::free(rows.items);
}

TEST(EngineEllipse, WritesNoRowBelowTheSurface)
{
    const zuvo::Span untouched = {1000, -1000};
    zuvo::Span room[60];
    std::fill_n(room, 60, untouched);
    zuvo::Buffer<zuvo::Span> rows = {room, 60};
    const zuvo::Extent extent = {40, 30};
    for (const DFBRectangle& rect : {DFBRectangle{5, 10, 20, 40}, DFBRectangle{5, 10, 1 << 21, 40}}) {
        Coverage coverage(extent);
        ASSERT_TRUE(zuvo::fill_cut_ellipse(rows, extent, rect, coverage));
        EXPECT_EQ(coverage.at(15, 29), rect.w == 20 ? 1u : 0u);
        for (int i = 30 - 9; i < 60; ++i)
            EXPECT_TRUE(room[i].left == untouched.left && room[i].right == untouched.right) << i;
    }
}

TEST(EngineEllipse, FillsTheHugeEllipseRowByRow)
{
    zuvo::Buffer<zuvo::Span> rows = {};
    const zuvo::Extent extent = {40, 30};
    Coverage inside(extent);
    ASSERT_TRUE(zuvo::fill_ellipse(rows, extent, {-1000000000, -1000000000, 2000000000, 2000000000}, inside));
    EXPECT_EQ(inside.counts, std::vector<unsigned>(1200, 1));

    // The corner of its box lies on the surface, the ellipse itself far away from it.
    Coverage outside(extent);
    ASSERT_TRUE(zuvo::fill_ellipse(rows, extent, {0, 0, 2147483647, 2147483647}, outside));
    EXPECT_EQ(outside.counts, std::vector<unsigned>(1200, 0));
    std::free(rows.items);
}

} // namespace
