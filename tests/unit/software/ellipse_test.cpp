#include "raster/reference_ellipse.h"
#include "support/fixture.h"
#include "support/picture.h"

namespace {

constexpr u32 both = DTKHDDVD_STROKE | DTKHDDVD_FILL;

class SoftwareEllipse : public Fakes {
protected:
    static DFBResult draw(const Toolkit& toolkit, const DFBRectangle& rect, u32 flags)
    {
        return toolkit->Ellipse(toolkit.get(), &rect, flags);
    }

    static void set_colors(const Toolkit& toolkit, u8 stroke_alpha, u8 fill_alpha)
    {
        toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, stroke_alpha);
        toolkit->SetFillColor(toolkit.get(), 5, 6, 7, fill_alpha);
        calls();
    }
};

TEST_F(SoftwareEllipse, OfOpaqueColoursIsDrawnStraightOntoTheTarget)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 255, 255);
    EXPECT_EQ(draw(toolkit, {2, 2, 12, 12}, both), 0);
    EXPECT_EQ(calls(), R"(
scratch.GetPixelFormat()
target.GetPixelFormat()
target.GetSize()
target.Lock(2)
target.Unlock()
target.SetColor(5, 6, 7, 255)
target.FillRectangle(5, 4, 6, 9)
target.GetSize()
target.GetPixelFormat()
target.Lock(2)
target.Unlock()
)");
}

TEST_F(SoftwareEllipse, WithoutAPadDoesNotAskForItsFormat)
{
    const Toolkit toolkit = software_toolkit(0);
    EXPECT_EQ(draw(toolkit, {2, 2, 12, 12}, 0), 0);
    EXPECT_EQ(calls(), "\n");
}

TEST_F(SoftwareEllipse, WithoutFlagsOnlyAsksForThePadsFormat)
{
    const Toolkit toolkit = software_toolkit(1);
    EXPECT_EQ(draw(toolkit, {2, 2, 12, 12}, 4), 0);
    EXPECT_EQ(calls(), "\nscratch.GetPixelFormat()\n");
}

TEST_F(SoftwareEllipse, ShrinksItsBoxForFillAndOutline)
{
    const Toolkit toolkit = software_toolkit(0);
    set_colors(toolkit, 255, 255);
    EXPECT_EQ(draw(toolkit, {2, 2, 10, 10}, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(fake::picture(fake::surface_named("target"), {2, 2, 11, 11}, 0xFF010203), R"(
...........
....###....
...#...#...
..#.....#..
.#.......#.
.#.......#.
.#.......#.
..#.....#..
...#...#...
....###....
...........
)");
}

TEST_F(SoftwareEllipse, PassesAnEmptyBoxOn)
{
    const Toolkit toolkit = software_toolkit(0);
    EXPECT_EQ(draw(toolkit, {8, 9, 2, 2}, both), 0);
    EXPECT_EQ(calls_with("FillRectangle"), "\ntarget.FillRectangle(9, 10, 0, 1)\n");
    EXPECT_EQ(fake::picture(fake::surface_named("target"), {8, 9, 3, 3}, 0xFFFFFFFF), "\n...\n.#.\n...\n");
}

TEST_F(SoftwareEllipse, OfATranslucentColourBlendsItsBox)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 128, 255);
    EXPECT_EQ(draw(toolkit, {2, 3, 12, 12}, DTKHDDVD_FILL | DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls(), R"(
scratch.GetPixelFormat()
scratch.GetPixelFormat()
scratch.GetSize()
scratch.Lock(2)
scratch.Unlock()
scratch.SetColor(5, 6, 7, 255)
scratch.FillRectangle(5, 5, 6, 9)
scratch.GetSize()
scratch.GetPixelFormat()
scratch.Lock(2)
scratch.Unlock()
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [2 3 12 12], 2, 3)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(2, 3, 12, 12)
)");
}

TEST_F(SoftwareEllipse, LaysAPatternWithTruncatedHalves)
{
    const Toolkit toolkit = software_toolkit(1);
    set_texture(toolkit);
    EXPECT_EQ(draw(toolkit, {8, 9, 21, 11}, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls(), R"(
scratch.GetPixelFormat()
cairo_save(scratch.cr)
cairo_translate(scratch.cr, 18, 14)
cairo_scale(scratch.cr, 10, 5)
cairo_arc(scratch.cr, 0, 0, 1, 0, 6.283185307179586)
cairo_restore(scratch.cr)
cairo_pattern_set_matrix(texture.pattern, -8, -9)
cairo_set_source(scratch.cr, texture.pattern)
cairo_fill(scratch.cr)
cairo_surface_flush(scratch.cairo)
cairo_surface_flush(texture.cairo)
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [8 9 21 11], 8, 9)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(8, 9, 21, 11)
)");
}

TEST_F(SoftwareEllipse, NeverScalesAPatternByZero)
{
    const Toolkit toolkit = software_toolkit(0);
    set_texture(toolkit);
    for (const DFBRectangle& rect : {DFBRectangle{8, 9, 1, 20}, {8, 9, 20, 1}, {8, 9, 0, 0}, {8, 9, -1, 7}}) {
        const Outcome outcome = run([&] { return draw(toolkit, rect, DTKHDDVD_FILL); });
        EXPECT_EQ(outcome.result, 0);
        EXPECT_EQ(calls_with("cairo_scale"), "\n");
    }
}

TEST_F(SoftwareEllipse, StampsAWidePenAroundTheWholeBox)
{
    const Toolkit toolkit = software_toolkit(0);
    set_pen(toolkit, 3, 3);
    EXPECT_EQ(draw(toolkit, {5, 5, 2, 2}, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls(), R"(
pen.GetSize()
pen.AddRef()
target.SetBlittingFlags(8)
pen.GetSize()
pen.GetSize()
target.BatchBlit(pen, [0 0 3 3], 5,6 5,4 6,5 4,5 6,5 4,5)
pen.Release()
)");
    drop_pen(toolkit);
}

TEST_F(SoftwareEllipse, BlendsEverythingThatAWidePenTouched)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 128, 255);
    set_pen(toolkit, 3, 5);
    EXPECT_EQ(draw(toolkit, {5, 1, 2, 2}, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls(), R"(
scratch.GetPixelFormat()
pen.GetSize()
pen.AddRef()
pen.GetSize()
scratch.SetBlittingFlags(8)
pen.GetSize()
pen.GetSize()
scratch.BatchBlit(pen, [0 0 3 5], 5,1 5,-1 6,0 4,0 6,0 4,0)
pen.Release()
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [3 0 6 8], 3, 0)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(3, 0, 6, 8)
)");
    drop_pen(toolkit);
}

TEST_F(SoftwareEllipse, FailsWithTheCodeOfTheRasteriserOnAPaletteTarget)
{
    screen.format = DSPF_LUT8;
    const Toolkit toolkit = software_toolkit(0);
    const Outcome fill = run([&] { return draw(toolkit, {2, 2, 12, 12}, DTKHDDVD_FILL); });
    EXPECT_EQ(fill.result, 5);
    EXPECT_EQ(fill.error, "fill_ellipse_argb only supports DSPF_ARGB and DSPF_RGB32\nerror in DTKHDDVD_Ellipse: "
                          "The requested operation or an argument is (currently) not supported\n");
    const Outcome outline = run([&] { return draw(toolkit, {2, 2, 12, 12}, DTKHDDVD_STROKE); });
    EXPECT_EQ(outline.result, 8);
    EXPECT_EQ(outline.error, "outline_ellipse_argb supports only DSPF_ARGBerror in DTKHDDVD_Ellipse: "
                             "An invalid argument has been specified\n");
}

TEST_F(SoftwareEllipse, NeverOutlinesOutsideTheTarget)
{
    const Toolkit toolkit = software_toolkit(0);
    set_colors(toolkit, 255, 255);
    fake::Surface& target = fake::surface_named("target");
    fake::Surface& expected = fake::new_surface("expected", 64, 48, DSPF_ARGB);
    fake::Random random(35);
    for (int i = 0; i < 4000 && !HasFailure(); i++) {
        const DFBRectangle rect = {random.between(-80, 80), random.between(-80, 80), random.between(-3, 120),
                                   random.between(-3, 120)};
        EXPECT_EQ(draw(toolkit, rect, DTKHDDVD_STROKE), 0);
        for (const DFBPoint& p : reference::outline_pixels({rect.x + 1, rect.y + 1, rect.w - 2, rect.h - 2}))
            expected.fill(p.x, p.y, 1, 1, 0xFF010203);
        EXPECT_TRUE(target.memory() == expected.memory()) << rect.x << " " << rect.y << " " << rect.w << " " << rect.h;
        target.fill(0, 0, 64, 48, 0);
        expected.fill(0, 0, 64, 48, 0);
    }
    EXPECT_TRUE(target.guards_are_untouched());
}

} // namespace
