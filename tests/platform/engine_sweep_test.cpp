#include "engine/outline/sweep.h"
#include "platform/engine_coverage.h"

#include <gtest/gtest.h>
#include <random>

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

void random_pen(std::mt19937& random)
{
    const int reach = between(random, 0, 9);
    zuvo_dtk_pen pen = {};
    for (int* value : {&pen.x0, &pen.y0, &pen.x1, &pen.y1, &pen.x2, &pen.y2, &pen.x3, &pen.y3})
        *value = between(random, -reach, reach);
    if (random() % 3 == 0)
        pen = {-reach, -2, reach, -2, reach, 3, -reach, 3, 0};
    ASSERT_EQ(pen_rows.render(scan, pen), ZUVO_OK);
}

void random_path(std::mt19937& random)
{
    const zuvo::RowRange rows = zuvo::rows_in_reach(pen_rows, extent);
    const DFBPoint one = {between(random, -40, 100), between(random, -40, 90)};
    const DFBPoint other = {between(random, -40, 100), between(random, -40, 90)};
    const DFBRectangle box = {one.x, one.y, between(random, -3, 80), between(random, -3, 80)};
    const unsigned kind = static_cast<unsigned>(random() % 3);
    const bool is_made = kind == 0 ? zuvo::line_path(path, rows, one, other)
        : kind == 1                ? zuvo::rectangle_path(path, rows, box)
                                   : zuvo::ellipse_path(path, quarter, rows, box);
    ASSERT_TRUE(is_made);
}

void stamp(Coverage& coverage, int x, int y)
{
    for (int row = 0; row < pen_rows.row_count; ++row) {
        for (int part = 0; part < 2; ++part) {
            const zuvo::Span span = pen_rows.part(row, part);
            const int to_y = y + pen_rows.top + row;
            for (int to_x = x + span.left; to_x < x + span.right; ++to_x) {
                if (to_x >= 0 && to_x < extent.width && to_y >= 0 && to_y < extent.height)
                    coverage.at(to_x, to_y) = 1;
            }
        }
    }
}

/// The pen put down at every single point of the path.
Coverage stamped()
{
    Coverage coverage(extent);
    for (int row = path.top; row < path.bottom; ++row) {
        for (int chain = 0; chain < path.chain_count; ++chain) {
            const zuvo::RowPath::Chain& points = path.chains[chain];
            for (int x = points.first[row - path.top]; x <= points.last[row - path.top]; ++x)
                stamp(coverage, x, row);
        }
    }
    return coverage;
}

TEST(EngineSweep, CoversWhatStampsCoverOnceInBothForms)
{
    std::mt19937 random(6);
    for (int i = 0; i < 20000; ++i) {
        random_pen(random);
        random_path(random);
        const Coverage expected = stamped();
        Coverage fast(extent), plain(extent);
        ASSERT_TRUE(zuvo::sweep(memory, path, pen_rows, extent, fast));
        ASSERT_TRUE(zuvo::sweep_scattered(memory, path, pen_rows, extent, plain));
        ASSERT_TRUE(fast.is_well_formed);
        ASSERT_TRUE(plain.is_well_formed);
        ASSERT_EQ(plain.text(), expected.text()) << i;
        ASSERT_EQ(fast.text(), expected.text()) << i;
    }
}

TEST(EngineSweep, WalksEveryPointOfALine)
{
    std::mt19937 random(7);
    for (int i = 0; i < 5000; ++i) {
        const DFBPoint from = {between(random, 0, 59), between(random, 0, 49)};
        const DFBPoint to = {between(random, 0, 59), between(random, 0, 49)};
        ASSERT_TRUE(zuvo::line_path(path, {0, extent.height}, from, to));
        ASSERT_EQ(pen_rows.render(scan, {0, 0, 0, 0, 0, 0, 0, 0, 0}), ZUVO_OK);

        Coverage expected(extent);
        const int width = std::abs(to.x - from.x), height = std::abs(to.y - from.y);
        const int longer = std::max(width, height);
        int x = from.x, y = from.y, error = longer / 2;
        expected.at(x, y) = 1;
        for (int step = 0; step < longer; ++step) {
            error += std::min(width, height);
            const bool moves_both = error >= longer;
            error -= moves_both ? longer : 0;
            x += width >= height || moves_both ? (to.x > from.x) - (to.x < from.x) : 0;
            y += width < height || moves_both ? (to.y > from.y) - (to.y < from.y) : 0;
            expected.at(x, y) = 1;
        }
        ASSERT_EQ(stamped().text(), expected.text()) << i;
    }
}

} // namespace
