#include "support/fixture.h"

namespace {

constexpr u32 both = DTKHDDVD_STROKE | DTKHDDVD_FILL;

class SoftwareRectangle : public Fakes {
protected:
    static DFBResult draw(const Toolkit& toolkit, const DFBRectangle& rect, u32 flags)
    {
        return toolkit->Rectangle(toolkit.get(), &rect, flags);
    }

    static void set_colors(const Toolkit& toolkit, u8 stroke_alpha, u8 fill_alpha)
    {
        toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, stroke_alpha);
        toolkit->SetFillColor(toolkit.get(), 5, 6, 7, fill_alpha);
        calls();
    }
};

TEST_F(SoftwareRectangle, OfOpaqueColoursIsDrawnStraightOntoTheTarget)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 255, 255);
    EXPECT_EQ(draw(toolkit, {8, 9, 20, 10}, both), 0);
    EXPECT_EQ(calls(), R"(
target.GetPixelFormat()
target.SetColor(5, 6, 7, 255)
target.FillRectangle(8, 9, 20, 10)
target.SetColor(1, 2, 3, 255)
target.DrawRectangle(8, 9, 20, 10)
)");
}

TEST_F(SoftwareRectangle, WithoutFlagsDrawsNothing)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 100, 100);
    for (u32 flags : {0u, 4u, 0xFFFFFFFCu}) {
        EXPECT_EQ(draw(toolkit, {8, 9, 20, 10}, flags), 0);
        EXPECT_EQ(calls(), "\n");
    }
}

TEST_F(SoftwareRectangle, IgnoresUnknownFlags)
{
    const Toolkit toolkit = software_toolkit(1);
    EXPECT_EQ(draw(toolkit, {8, 9, 20, 10}, 0xFFFFFFFE), 0);
    EXPECT_EQ(calls(), R"(
target.GetPixelFormat()
target.SetColor(255, 255, 255, 255)
target.FillRectangle(8, 9, 20, 10)
)");
}

TEST_F(SoftwareRectangle, OfATranslucentFillGoesThroughThePad)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 255, 254);
    EXPECT_EQ(draw(toolkit, {8, 9, 20, 10}, both), 0);
    EXPECT_EQ(calls(), R"(
scratch.GetPixelFormat()
scratch.SetColor(5, 6, 7, 254)
scratch.FillRectangle(8, 9, 20, 10)
scratch.SetColor(1, 2, 3, 255)
scratch.DrawRectangle(8, 9, 20, 10)
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [8 9 20 10], 8, 9)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(8, 9, 20, 10)
)");
}

TEST_F(SoftwareRectangle, LooksOnlyAtTheColoursThatItUses)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 255, 0);
    EXPECT_EQ(draw(toolkit, {8, 9, 20, 10}, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls_with("scratch"), "\n");
    set_colors(toolkit, 0, 255);
    EXPECT_EQ(draw(toolkit, {8, 9, 20, 10}, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls_with("scratch"), "\n");
}

TEST_F(SoftwareRectangle, WithoutAPadStoresTranslucentColours)
{
    const Toolkit toolkit = software_toolkit(0);
    set_colors(toolkit, 10, 20);
    EXPECT_EQ(draw(toolkit, {8, 9, 20, 10}, both), 0);
    EXPECT_EQ(calls(), R"(
target.GetPixelFormat()
target.SetColor(5, 6, 7, 20)
target.FillRectangle(8, 9, 20, 10)
target.SetColor(1, 2, 3, 10)
target.DrawRectangle(8, 9, 20, 10)
)");
}

TEST_F(SoftwareRectangle, FillsAnIndexedPadWithTheFillIndex)
{
    const Toolkit toolkit = indexed_toolkit();
    set_colors(toolkit, 9, 128);
    EXPECT_EQ(draw(toolkit, {8, 9, 20, 10}, both), 0);
    EXPECT_EQ(calls(), R"(
scratch.GetPixelFormat()
scratch.SetColorIndex(1)
scratch.FillRectangle(8, 9, 20, 10)
scratch.SetColor(1, 2, 3, 9)
scratch.DrawRectangle(8, 9, 20, 10)
scratch.GetPixelFormat()
target.SetBlittingFlags(9)
target.Blit(scratch, [8 9 20 10], 8, 9)
scratch.SetColorIndex(2)
scratch.FillRectangle(8, 9, 20, 10)
)");
}

TEST_F(SoftwareRectangle, LaysAPatternAtItsOwnCorner)
{
    const Toolkit toolkit = software_toolkit(1);
    set_texture(toolkit);
    EXPECT_EQ(draw(toolkit, {8, 9, 20, 10}, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls(), R"(
cairo_pattern_set_matrix(texture.pattern, -8, -9)
cairo_set_source(scratch.cr, texture.pattern)
cairo_rectangle(scratch.cr, 8, 9, 20, 10)
cairo_fill(scratch.cr)
cairo_surface_flush(scratch.cairo)
cairo_surface_flush(texture.cairo)
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [8 9 20 10], 8, 9)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(8, 9, 20, 10)
)");
}

TEST_F(SoftwareRectangle, LaysAPatternOntoTheTargetWithoutAPad)
{
    const Toolkit toolkit = software_toolkit(0);
    set_texture(toolkit);
    EXPECT_EQ(draw(toolkit, {8, 9, 20, 10}, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls(), R"(
cairo_pattern_set_matrix(texture.pattern, -8, -9)
cairo_set_source(screen.cr, texture.pattern)
cairo_rectangle(screen.cr, 8, 9, 20, 10)
cairo_fill(screen.cr)
cairo_surface_flush(screen.cairo)
cairo_surface_flush(texture.cairo)
)");
}

TEST_F(SoftwareRectangle, StampsAWidePen)
{
    const Toolkit toolkit = software_toolkit(1);
    set_pen(toolkit, 4, 5);
    EXPECT_EQ(draw(toolkit, {8, 9, 1, 1}, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls(), R"(
pen.GetSize()
target.SetBlittingFlags(8)
pen.AddRef()
pen.GetSize()
pen.GetSize()
target.BatchBlit(pen, [0 0 4 5], 6,7 6,7 6,7 6,7)
pen.Release()
)");
    drop_pen(toolkit);
}

TEST_F(SoftwareRectangle, BlendsEverythingThatAWidePenTouched)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 128, 255);
    set_pen(toolkit, 4, 5);
    EXPECT_EQ(draw(toolkit, {8, 9, 1, 1}, both), 0);
    EXPECT_EQ(calls(), R"(
scratch.GetPixelFormat()
scratch.SetColor(5, 6, 7, 255)
scratch.FillRectangle(8, 9, 1, 1)
pen.GetSize()
pen.GetSize()
scratch.SetBlittingFlags(8)
pen.AddRef()
pen.GetSize()
pen.GetSize()
scratch.BatchBlit(pen, [0 0 4 5], 6,7 6,7 6,7 6,7)
pen.Release()
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [5 6 6 7], 5, 6)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(5, 6, 6, 7)
)");
    drop_pen(toolkit);
}

TEST_F(SoftwareRectangle, StartsItsDirtyRectangleAtZero)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 128, 255);
    set_pen(toolkit, 5, 5);
    EXPECT_EQ(draw(toolkit, {0, 2, 10, 20}, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls_with("target.Blit"), "\ntarget.Blit(scratch, [0 0 16 26], 0, 0)\n");
    drop_pen(toolkit);
}

TEST_F(SoftwareRectangle, TreatsAOnePixelPenLikeNone)
{
    const Toolkit toolkit = software_toolkit(1);
    set_pen(toolkit, 1, 1);
    EXPECT_EQ(draw(toolkit, {8, 9, 20, 10}, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls(), "\npen.GetSize()\ntarget.SetColor(255, 255, 255, 255)\ntarget.DrawRectangle(8, 9, 20, 10)\n");
    drop_pen(toolkit);
}

TEST_F(SoftwareRectangle, WithoutFlagsTouchesNeitherTargetNorPad)
{
    const Toolkit toolkit = software_toolkit(1);
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 4);
    toolkit->SetFillColor(toolkit.get(), 1, 2, 3, 4);
    calls();
    const DFBRectangle rect = {1, 2, 3, 4};
    const DFBPoint points[] = {{1, 1}, {9, 9}, {1, 9}};
    EXPECT_EQ(toolkit->Rectangle(toolkit.get(), &rect, 0), 0);
    EXPECT_EQ(toolkit->Polygon(toolkit.get(), points, 3, 1, 4), 0);
    EXPECT_EQ(calls(), "\n");
}

TEST_F(SoftwareRectangle, PassesOnThatItsPadHasNoPixelFormat)
{
    const Toolkit toolkit = software_toolkit(1);
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 4);
    const DFBRectangle rect = {1, 2, 3, 4};
    transcript().fail_every("scratch.GetPixelFormat", refusal);
    const Outcome outcome = run([&] { return toolkit->Rectangle(toolkit.get(), &rect, DTKHDDVD_STROKE); });
    EXPECT_EQ(outcome.result, refusal);
    EXPECT_EQ(outcome.error, complaint("DTKHDDVD_Rectangle", refusal_text));
    EXPECT_EQ(calls_with("Blit("), "\n");
}

} // namespace
