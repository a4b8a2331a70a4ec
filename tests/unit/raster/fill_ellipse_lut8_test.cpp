#include "support/fixture.h"
#include "support/picture.h"

namespace {

constexpr char pixel_format_message[] = "fill_ellipse_lut8 only supports target pixel formats of 8 bits\n";

class FillEllipseLut8 : public Fakes {
protected:
    fake::Surface& eight = fake::new_surface("eight", 40, 40, DSPF_LUT8);
};

TEST_F(FillEllipseLut8, CallsTheSurfaceInOrder)
{
    const DFBRectangle rect = {2, 2, 10, 10};
    EXPECT_EQ(fill_ellipse_lut8(&eight, &rect, nullptr, 1), 0);
    EXPECT_EQ(calls(), R"(
eight.GetPixelFormat()
eight.GetSize()
eight.Lock(2)
eight.Unlock()
eight.SetColorIndex(1)
eight.FillRectangle(4, 3, 6, 9)
)");
}

TEST_F(FillEllipseLut8, TakesOnlyTheLowByteOfTheColour)
{
    const DFBRectangle rect = {2, 2, 10, 10};
    EXPECT_EQ(fill_ellipse_lut8(&eight, &rect, nullptr, 0xABCDEF03), 0);
    EXPECT_EQ(calls_with("SetColorIndex"), "\neight.SetColorIndex(3)\n");
    EXPECT_EQ(fake::picture(eight, {1, 1, 12, 12}, 3), R"(
............
...######...
..########..
..########..
.##########.
.##########.
.##########.
.##########.
..########..
..########..
...######...
............
)");
}

TEST_F(FillEllipseLut8, WritesIndexBytesAsAlpha)
{
    fake::Surface& alpha = fake::new_surface("a8", 20, 20, DSPF_A8);
    const DFBRectangle rect = {2, 2, 10, 10};
    EXPECT_EQ(fill_ellipse_lut8(&alpha, &rect, nullptr, 0x42), 0);
    EXPECT_EQ(alpha.pixel(4, 2), 0x42u);
}

TEST_F(FillEllipseLut8, AnswersWhatTheBlockAnswers)
{
    const DFBRectangle rect = {2, 2, 6, 20};
    EXPECT_EQ(fill_ellipse_lut8(&eight, &rect, nullptr, 1), DFB_INVARG);
    EXPECT_EQ(calls_with("FillRectangle"), "\neight.FillRectangle(5, 2, 0, 21)\n");
    EXPECT_EQ(eight.pixel(4, 2), 1u) << "the spans are written all the same";
}

TEST_F(FillEllipseLut8, IgnoresEveryOtherResult)
{
    for (const char* failing : {"eight.Lock", "eight.SetColorIndex"}) {
        transcript().reset();
        transcript().fail_every(failing, refusal);
        const DFBRectangle rect = {2, 2, 10, 10};
        EXPECT_EQ(fill_ellipse_lut8(&eight, &rect, nullptr, 1), 0) << failing;
    }
}

TEST_F(FillEllipseLut8, AnswersThatTheFormatIsNotTold)
{
    transcript().fail_every("eight.GetPixelFormat", refusal);
    const DFBRectangle rect = {2, 2, 10, 10};
    EXPECT_EQ(fill_ellipse_lut8(&eight, &rect, nullptr, 1), refusal);
    EXPECT_EQ(calls_with("Lock"), "\n");
}

TEST_F(FillEllipseLut8, RefusesPixelsOfOtherWidths)
{
    const DFBRectangle rect = {2, 2, 10, 10};
    const Outcome outcome = run([&] { return fill_ellipse_lut8(&screen, &rect, nullptr, 1); });
    EXPECT_EQ(outcome.result, 5);
    EXPECT_EQ(outcome.error, pixel_format_message);
    EXPECT_EQ(outcome.error.size(), 63u);
    EXPECT_EQ(calls(), "\nscreen.GetPixelFormat()\n");
}

} // namespace
