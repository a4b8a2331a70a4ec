// Outlines that are drawn straight, held against the same outlines swept along a path.
#include "engine/outline/box_border.h"
#include "engine/outline/sweep.h"
#include "engine/outline/thin_outline.h"
#include "platform/engine_coverage.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

const zuvo::Extent extent = {60, 50};

zuvo::PolygonScan scan;
zuvo::RowPath path;
zuvo::PenRows pen_rows;
zuvo::SweepMemory memory;
zuvo::Buffer<int> quarter;

int between(std::mt19937& random, int low, int high)
{
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
}

/// A picture of random pixels between two guard rows.
struct Picture {
    Picture(std::mt19937& random, bool with_alpha) : words(60 * 52), has_alpha(with_alpha)
    {
        for (uint32_t& word : words)
            word = static_cast<uint32_t>(random());
    }

    zuvo::Pixels pixels() { return {words.data() + 60, 60, extent, has_alpha}; }

    std::vector<uint32_t> words;
    bool has_alpha;
};

/// Draws twice in the same random colour: straight, and by sweeping a pen of one pixel along the path. Answers how
/// often the first form could be used.
template <typename DrawThin, typename MakePath>
int compare(unsigned seed, const DrawThin& draw_thin, const MakePath& make_path)
{
    EXPECT_EQ(pen_rows.render(scan, {0, 0, 1, 0, 1, 1, 0, 1, 0}), ZUVO_OK);
    EXPECT_TRUE(pen_rows.covers_one_pixel());
    std::mt19937 random(seed);
    int drawn = 0;
    for (int i = 0; i < 20000; ++i) {
        const uint32_t colour = static_cast<uint32_t>(random());
        const bool blend = random() % 3;
        Picture thin(random, random() % 2), swept = thin;
        const DFBRectangle box = {between(random, -9, 60), between(random, -9, 50), between(random, -3, 62),
                                  between(random, -3, 52)};
        if (draw_thin(zuvo::paint_colour(thin.pixels(), colour, blend), box)) {
            ++drawn;
            zuvo::Painter painter = zuvo::paint_colour(swept.pixels(), colour, blend);
            EXPECT_TRUE(make_path(box));
            EXPECT_TRUE(zuvo::sweep_scattered(memory, path, pen_rows, extent, painter));
        }
        if (thin.words != swept.words) {
            ADD_FAILURE() << box.x << ' ' << box.y << ' ' << box.w << ' ' << box.h;
            break;
        }
    }
    return drawn;
}

TEST(EngineOutline, ThinEllipseIsTheSweptOneOrNothing)
{
    const int drawn = compare(
        21, [](const zuvo::Painter& painter, const DFBRectangle& box) { return draw_thin_ellipse(painter, box); },
        [](const DFBRectangle& box) { return zuvo::ellipse_path(path, quarter, {0, extent.height}, box); });
    EXPECT_GT(drawn, 1500);
}

TEST(EngineOutline, ThinLineIsTheSweptOneOrNothing)
{
    const auto corner = [](const DFBRectangle& box) { return DFBPoint{box.x, box.y}; };
    const auto other = [](const DFBRectangle& box) { return DFBPoint{box.w, box.h}; };
    const int drawn = compare(
        22,
        [=](const zuvo::Painter& painter, const DFBRectangle& box) {
            return draw_thin_line(painter, corner(box), other(box));
        },
        [=](const DFBRectangle& box) {
            return zuvo::line_path(path, {0, extent.height}, corner(box), other(box));
        });
    EXPECT_GT(drawn, 1500);
}

Coverage thin_ellipse(zuvo::Extent size, const DFBRectangle& rect)
{
    EXPECT_EQ(pen_rows.render(scan, {0, 0, 1, 0, 1, 1, 0, 1, 0}), ZUVO_OK);
    Coverage coverage(size);
    EXPECT_TRUE(zuvo::ellipse_path(path, quarter, zuvo::rows_in_reach(pen_rows, size), rect));
    EXPECT_TRUE(zuvo::sweep_scattered(memory, path, pen_rows, size, coverage));
    return coverage;
}

/// Each row goes on where the next one towards a pole begins; that of a pole from end to end.
TEST(EngineOutline, HugeEllipseIsConnectedFromRowToRow)
{
    // Its five rows begin 524288, 109427, 0, 109427 and 524288 columns from the left side of the box.
    const DFBRectangle left = {8 - 524288, 1, 2621441, 5};
    EXPECT_EQ(thin_ellipse({16, 7}, left).text(),
              "................\n"
              "........########\n"
              "#########.......\n"
              "................\n"
              "#########.......\n"
              "........########\n"
              "................\n");

    const DFBRectangle right = {8 - 2097152, 1, 2621441, 5};
    EXPECT_EQ(thin_ellipse({16, 7}, right).text(),
              "................\n"
              "########........\n"
              ".......#########\n"
              "................\n"
              ".......#########\n"
              "########........\n"
              "................\n");
}

TEST(EngineOutline, BorderOfABoxPenIsTheSweptOne)
{
    std::mt19937 random(23);
    for (int i = 0; i < 20000; ++i) {
        const int left = between(random, -9, 9), top = between(random, -9, 9);
        const int right = left + between(random, 0, 12), bottom = top + between(random, 0, 12);
        ASSERT_EQ(pen_rows.render(scan, {left, top, right, top, right, bottom, left, bottom, 0}), ZUVO_OK);
        const DFBRectangle box = {between(random, -40, 60), between(random, -40, 50), between(random, 1, 90),
                                  between(random, 1, 80)};
        // A pen is placed by its size alone, so some of it may be cut off; what is left can differ from row to row.
        if (!pen_rows.is_box)
            continue;

        Coverage boxes(extent), swept(extent);
        zuvo::give_border(box, pen_rows, extent, boxes);
        ASSERT_TRUE(zuvo::rectangle_path(path, zuvo::rows_in_reach(pen_rows, extent), box));
        ASSERT_TRUE(zuvo::sweep_scattered(memory, path, pen_rows, extent, swept));
        ASSERT_TRUE(boxes.is_well_formed);
        ASSERT_EQ(boxes.text(), swept.text()) << i;
    }
}

} // namespace
