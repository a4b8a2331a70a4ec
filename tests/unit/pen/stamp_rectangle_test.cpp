#include "support/fixture.h"

namespace {

class StampRectangle : public Fakes {
protected:
    DFBResult stamp(const DFBRectangle& rect) { return stamp_rectangle(&screen, &rect, &brush); }

    fake::Surface& brush = fake::new_surface("brush", 1, 1, DSPF_LUT8);
};

TEST_F(StampRectangle, StampsHorizontalSidesThenVerticalOnes)
{
    EXPECT_EQ(stamp({10, 20, 3, 3}), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1], 10,20 10,22 11,20 11,22 12,20 12,22 "
                                       "10,20 12,20 10,21 12,21 10,22 12,22)\n");
    EXPECT_EQ(batch_n_blits, 0);
}

TEST_F(StampRectangle, StampsOnlyVerticalSidesWithoutAWidth)
{
    EXPECT_EQ(stamp({10, 20, 0, 2}), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1], 10,20 9,20 10,21 9,21)\n");
}

TEST_F(StampRectangle, StampsOnlyHorizontalSidesWithoutAHeight)
{
    EXPECT_EQ(stamp({10, 20, 2, 0}), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1], 10,20 10,19 11,20 11,19)\n");
}

TEST_F(StampRectangle, StampsASingleRowTwice)
{
    EXPECT_EQ(stamp({10, 20, 2, 1}), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1], 10,20 10,20 11,20 11,20 10,20 11,20)\n");
}

TEST_F(StampRectangle, ShiftsByHalfThePen)
{
    fake::Surface& wide = fake::new_surface("wide", 5, 4, DSPF_LUT8);
    const DFBRectangle rect = {10, 20, 1, 0};
    EXPECT_EQ(stamp_rectangle(&screen, &rect, &wide), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(wide, [0 0 5 4], 8,18 8,17)\n");
}

TEST_F(StampRectangle, AnswersTheSizeQueryWhenNothingWasStamped)
{
    EXPECT_EQ(stamp({10, 20, 0, -1}), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\n");
    transcript().fail_every("brush.GetSize", refusal);
    EXPECT_EQ(stamp({10, 20, -1, 0}), refusal);
}

TEST_F(StampRectangle, SendsSixtyFourStampsAtATime)
{
    transcript().fail_every("screen.BatchBlit", refusal);
    EXPECT_EQ(stamp({0, 0, 20, 14}), refusal);
    int batches = 0;
    for (const std::string& line : transcript().lines())
        batches += line.find("BatchBlit") != std::string::npos ? 1 : 0;
    EXPECT_EQ(batches, 2) << "64 and 4 stamps, the second one after the first one failed";
}

} // namespace
