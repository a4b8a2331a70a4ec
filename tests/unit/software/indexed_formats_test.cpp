#include "software/blend.h"
#include "support/fixture.h"

/// Every format of palette indices is one, not LUT8 alone.

namespace {

class IndexedFormat : public Fakes, public testing::WithParamInterface<DFBSurfacePixelFormat> {};

INSTANTIATE_TEST_SUITE_P(Of, IndexedFormat, testing::Values(DSPF_LUT8, DSPF_ALUT44));

TEST_P(IndexedFormat, OfATargetIsFilledWithTheFillIndex)
{
    screen.format = GetParam();
    const Toolkit toolkit = software_toolkit(0);
    const DFBRectangle rect = {1, 2, 3, 4};
    EXPECT_EQ(toolkit->Rectangle(toolkit.get(), &rect, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls(), "\ntarget.GetPixelFormat()\ntarget.SetColorIndex(1)\ntarget.FillRectangle(1, 2, 3, 4)\n");
}

TEST_P(IndexedFormat, OfAPadIsBlendedWithoutItsKey)
{
    fake::Surface& pad = fake::new_surface("pad", 64, 48, GetParam());
    EXPECT_EQ(dtk::BlendScratchPadNoSync(&screen, &pad, {3, 4, 10, 20}), 0);
    EXPECT_EQ(calls_with("SetBlittingFlags"), "\nscreen.SetBlittingFlags(9)\n");
}

TEST_P(IndexedFormat, OfAPadTakesTheColours)
{
    dfb.replaced_format = GetParam();
    const Toolkit toolkit = software_toolkit(1);
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 4);
    EXPECT_NE(calls_with("SetEntries"), "\n");
}

} // namespace
