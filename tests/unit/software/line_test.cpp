#include "support/fixture.h"

namespace {

class SoftwareLine : public Fakes {};

TEST_F(SoftwareLine, OfAnOpaqueColourIsDrawnStraightOntoTheTarget)
{
    const Toolkit toolkit = software_toolkit(1);
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 255);
    calls();
    EXPECT_EQ(toolkit->Line(toolkit.get(), 10, 20, 4, 8), 0);
    EXPECT_EQ(calls(), "\ntarget.SetColor(1, 2, 3, 255)\ntarget.DrawLine(10, 20, 4, 8)\n");
}

TEST_F(SoftwareLine, OfATranslucentColourBlendsItsBoundingBox)
{
    const Toolkit toolkit = software_toolkit(1);
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 254);
    calls();
    EXPECT_EQ(toolkit->Line(toolkit.get(), 10, 20, 4, 8), 0);
    EXPECT_EQ(calls(), R"(
scratch.SetColor(1, 2, 3, 254)
scratch.DrawLine(10, 20, 4, 8)
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [4 8 7 13], 4, 8)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(4, 8, 7, 13)
)");
}

TEST_F(SoftwareLine, WithoutAPadStoresATranslucentColour)
{
    const Toolkit toolkit = software_toolkit(0);
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 0);
    calls();
    EXPECT_EQ(toolkit->Line(toolkit.get(), 10, 20, 4, 8), 0);
    EXPECT_EQ(calls(), "\ntarget.SetColor(1, 2, 3, 0)\ntarget.DrawLine(10, 20, 4, 8)\n");
}

TEST_F(SoftwareLine, StampsAWidePen)
{
    const Toolkit toolkit = software_toolkit(1);
    set_pen(toolkit, 3, 2);
    EXPECT_EQ(toolkit->Line(toolkit.get(), 5, 6, 7, 6), 0);
    EXPECT_EQ(calls(), R"(
pen.GetSize()
target.SetBlittingFlags(8)
pen.AddRef()
pen.GetSize()
pen.GetSize()
target.BatchBlit(pen, [0 0 3 2], 4,5 5,5 6,5)
pen.Release()
)");
    drop_pen(toolkit);
}

TEST_F(SoftwareLine, BlendsEverythingThatAWidePenTouchedWithoutClamping)
{
    const Toolkit toolkit = software_toolkit(1);
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 128);
    set_pen(toolkit, 4, 5);
    EXPECT_EQ(toolkit->Line(toolkit.get(), 3, 1, 1, 0), 0);
    EXPECT_EQ(calls(), R"(
pen.GetSize()
pen.GetSize()
scratch.SetBlittingFlags(8)
pen.AddRef()
pen.GetSize()
pen.GetSize()
scratch.BatchBlit(pen, [0 0 4 5], 1,-1 0,-2 -1,-2)
pen.Release()
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [-2 -3 8 7], -2, -3)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(-2, -3, 8, 7)
)");
    drop_pen(toolkit);
}

TEST_F(SoftwareLine, TreatsAOnePixelPenLikeNone)
{
    const Toolkit toolkit = software_toolkit(1);
    set_pen(toolkit, 1, 1);
    EXPECT_EQ(toolkit->Line(toolkit.get(), 5, 6, 7, 6), 0);
    EXPECT_EQ(calls(), "\npen.GetSize()\ntarget.SetColor(255, 255, 255, 255)\ntarget.DrawLine(5, 6, 7, 6)\n");
    drop_pen(toolkit);
}

TEST_F(SoftwareLine, TreatsAPenOfOneColumnOrRowAsWide)
{
    const Toolkit toolkit = software_toolkit(1);
    set_pen(toolkit, 1, 2);
    EXPECT_EQ(toolkit->Line(toolkit.get(), 5, 6, 5, 6), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\ntarget.BatchBlit(pen, [0 0 1 2], 5,5)\n");
    drop_pen(toolkit);
    set_pen(toolkit, 2, 1);
    EXPECT_EQ(toolkit->Line(toolkit.get(), 5, 6, 5, 6), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\ntarget.BatchBlit(pen2, [0 0 2 1], 4,6)\n");
    drop_pen(toolkit);
}

TEST_F(SoftwareLine, CountsAPenWithoutAnAnswerAsWide)
{
    const Toolkit toolkit = software_toolkit(1);
    set_pen(toolkit, 1, 1);
    toolkit->priv->pen->GetSize = [](DTKHDDVDPen*, int* ret_width, int* ret_height) {
        *ret_width = *ret_height = 1;
        return refusal;
    };
    EXPECT_EQ(toolkit->Line(toolkit.get(), 5, 6, 5, 6), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\ntarget.BatchBlit(pen, [0 0 1 1], 5,6)\n");
    drop_pen(toolkit);
}

TEST_F(SoftwareLine, FailsWithAPenThatYieldsNoSurface)
{
    const Toolkit toolkit = software_toolkit(1);
    set_pen(toolkit, 3, 3);
    fake::platform().engine_handle = 7;
    const Outcome outcome = run([&] { return toolkit->Line(toolkit.get(), 5, 6, 5, 6); });
    EXPECT_EQ(outcome.result, own_failure);
    EXPECT_EQ(outcome.error, complaint("DTKHDDVD_Line", own_failure_text));
    fake::platform().engine_handle = 0;
    drop_pen(toolkit);
}

TEST_F(SoftwareLine, RefusesANullToolkit)
{
    const DFBRectangle rect = {1, 2, 3, 4};
    const DFBPoint point = {1, 2};
    const Outcome outcome = run([&] {
        EXPECT_EQ(DTKHDDVD_Rectangle_SW(nullptr, &rect, 3), thiz_null);
        EXPECT_EQ(DTKHDDVD_Polygon_SW(nullptr, &point, 1, 0, 3), thiz_null);
        EXPECT_EQ(DTKHDDVD_Ellipse_SW(nullptr, &rect, 3), thiz_null);
        return DTKHDDVD_Line_SW(nullptr, 1, 2, 3, 4);
    });
    EXPECT_EQ(outcome.result, thiz_null);
    EXPECT_EQ(outcome.error, "");
}

} // namespace
