#include "support/fixture.h"
#include "support/picture.h"

namespace {

class StampEllipse : public Fakes {
protected:
    DFBResult stamp(const DFBRectangle& rect) { return stamp_ellipse(&screen, &rect, &brush); }

    fake::Surface& brush = fake::new_surface("brush", 1, 1, DSPF_LUT8);
};

TEST_F(StampEllipse, StampsTheOutlineStartingWithThePoles)
{
    EXPECT_EQ(stamp({3, 3, 8, 8}), 0);
    EXPECT_EQ(calls(), "\n"
        "brush.GetSize()\n"
        "brush.GetSize()\n"
        "screen.BatchBlit(brush, [0 0 1 1], 7,11 7,3 8,11 6,11 8,3 6,3 9,10 5,10 9,4 5,4 "
        "10,9 4,9 10,5 4,5 11,8 3,8 11,6 3,6 11,7 3,7 11,7 3,7)\n");
    EXPECT_EQ(batch_n_blits, 0);
}

TEST_F(StampEllipse, StampsOnlyThePolesOfAFlatBox)
{
    for (int height : {0, 1}) {
        EXPECT_EQ(stamp({3, 3, 20, height}), 0);
        EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1], 13,3 13,3)\n");
    }
}

TEST_F(StampEllipse, SendsSixtyFourStampsAtATime)
{
    std::vector<int> sizes;
    static std::vector<int>* counts;
    counts = &sizes;
    screen.BatchBlit = [](IDirectFBSurface*, IDirectFBSurface*, const DFBRectangle*, const DFBPoint*, int count) {
        counts->push_back(count);
        return DFB_OK;
    };
    EXPECT_EQ(stamp({5, 5, 100, 60}), 0);
    EXPECT_THAT(sizes, testing::ElementsAre(64, 64, 64, 42));
}

TEST_F(StampEllipse, ShiftsByHalfThePen)
{
    fake::Surface& wide = fake::new_surface("wide", 4, 5, DSPF_LUT8);
    const DFBRectangle rect = {3, 3, 0, 0};
    EXPECT_EQ(stamp_ellipse(&screen, &rect, &wide), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(wide, [0 0 4 5], 1,1 1,1)\n");
}

TEST_F(StampEllipse, GoesOnAfterAFailedBatch)
{
    transcript().fail_call(3, refusal);
    EXPECT_EQ(stamp({5, 5, 100, 60}), 0) << "only the last result counts";
    EXPECT_EQ(batch_n_blits, 0);
}

TEST_F(StampEllipse, AnswersTheResultOfTheLastBatch)
{
    transcript().fail_call(6, refusal);
    const Outcome outcome = run([&] { return stamp({5, 5, 100, 60}); });
    EXPECT_EQ(outcome.result, refusal);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(batch_n_blits, 0);
}

TEST_F(StampEllipse, ForgetsAFailedSizeOnceAStampIsSent)
{
    transcript().fail_every("brush.GetSize", refusal);
    EXPECT_EQ(stamp({3, 3, 8, 8}), 0);
}

} // namespace
