#include "support/fixture.h"

namespace {

constexpr u32 both = DTKHDDVD_STROKE | DTKHDDVD_FILL;

class SoftwarePolygon : public Fakes {
protected:
    static DFBResult draw(const Toolkit& toolkit, const std::vector<DFBPoint>& points, u8 closed, u32 flags)
    {
        return toolkit->Polygon(toolkit.get(), points.data(), u32(points.size()), closed, flags);
    }

    static void set_colors(const Toolkit& toolkit, u8 stroke_alpha, u8 fill_alpha)
    {
        toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, stroke_alpha);
        toolkit->SetFillColor(toolkit.get(), 51, 0, 255, fill_alpha);
        calls();
    }

    const std::vector<DFBPoint> triangle = {{5, 6}, {20, 8}, {9, 30}};
};

TEST_F(SoftwarePolygon, OfFewerThanTwoPointsDrawsNothing)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 1, 1);
    EXPECT_EQ(draw(toolkit, {}, 1, both), 0);
    EXPECT_EQ(draw(toolkit, {{1, 2}}, 1, both), 0);
    EXPECT_EQ(calls(), "\n");
}

TEST_F(SoftwarePolygon, BlendsTheWidestBoxThatANumberHolds)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 1, 1);
    EXPECT_EQ(draw(toolkit, {{0, 6}, {2147483646, 8}, {9, 30}}, 1, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls_with("Blit("), "\ntarget.Blit(scratch, [0 6 2147483647 25], 0, 6)\n");
}

TEST_F(SoftwarePolygon, WithoutFlagsDrawsNothing)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 1, 1);
    EXPECT_EQ(draw(toolkit, triangle, 1, 4), 0);
    EXPECT_EQ(calls(), "\n");
}

TEST_F(SoftwarePolygon, OfAnOpaqueColourIsFilledOnTheTarget)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 1, 255);
    EXPECT_EQ(draw(toolkit, triangle, 0, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls(), R"(
cairo_move_to(screen.cr, 5, 6)
cairo_line_to(screen.cr, 20, 8)
cairo_line_to(screen.cr, 9, 30)
cairo_set_source_rgb(screen.cr, 0.200000, 0.000000, 1.000000)
cairo_fill(screen.cr)
cairo_surface_flush(screen.cairo)
)");
}

TEST_F(SoftwarePolygon, OfATranslucentColourBlendsItsBoundingBox)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 255, 102);
    EXPECT_EQ(draw(toolkit, triangle, 0, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls(), R"(
cairo_move_to(scratch.cr, 5, 6)
cairo_line_to(scratch.cr, 20, 8)
cairo_line_to(scratch.cr, 9, 30)
cairo_set_source_rgba(scratch.cr, 0.200000, 0.000000, 1.000000, 0.400000)
cairo_fill(scratch.cr)
cairo_surface_flush(scratch.cairo)
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [5 6 16 25], 5, 6)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(5, 6, 16, 25)
)");
}

TEST_F(SoftwarePolygon, WithoutAPadKeepsItsTranslucentSource)
{
    const Toolkit toolkit = software_toolkit(0);
    set_colors(toolkit, 255, 102);
    EXPECT_EQ(draw(toolkit, triangle, 0, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls_with("source"), "\ncairo_set_source_rgba(screen.cr, 0.200000, 0.000000, 1.000000, 0.400000)\n");
}

TEST_F(SoftwarePolygon, LaysAPatternAtItsBoundingBox)
{
    const Toolkit toolkit = software_toolkit(1);
    set_texture(toolkit);
    EXPECT_EQ(draw(toolkit, {{20, 8}, {5, 6}, {9, 30}}, 1, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls(), R"(
cairo_move_to(scratch.cr, 20, 8)
cairo_line_to(scratch.cr, 5, 6)
cairo_line_to(scratch.cr, 9, 30)
cairo_pattern_set_matrix(texture.pattern, -5, -6)
cairo_set_source(scratch.cr, texture.pattern)
cairo_fill(scratch.cr)
cairo_surface_flush(scratch.cairo)
cairo_surface_flush(texture.cairo)
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [5 6 16 25], 5, 6)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(5, 6, 16, 25)
)");
}

TEST_F(SoftwarePolygon, DrawsTwoEdgesOfAnOpenTriangle)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 255, 1);
    EXPECT_EQ(draw(toolkit, triangle, 0, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls(), R"(
target.SetColor(1, 2, 3, 255)
target.DrawLine(5, 6, 20, 8)
target.DrawLine(20, 8, 9, 30)
)");
}

TEST_F(SoftwarePolygon, DrawsThreeEdgesOfAClosedTriangle)
{
    const Toolkit toolkit = software_toolkit(1);
    for (u8 closed : {u8(1), u8(2), u8(128)}) {
        EXPECT_EQ(draw(toolkit, triangle, closed, DTKHDDVD_STROKE), 0);
        EXPECT_EQ(calls_with("DrawLine"), R"(
target.DrawLine(5, 6, 20, 8)
target.DrawLine(20, 8, 9, 30)
target.DrawLine(9, 30, 5, 6)
)");
    }
}

TEST_F(SoftwarePolygon, DrawsAClosedSegmentForthAndBack)
{
    const Toolkit toolkit = software_toolkit(1);
    EXPECT_EQ(draw(toolkit, {{1, 2}, {3, 4}}, 1, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls_with("DrawLine"), "\ntarget.DrawLine(1, 2, 3, 4)\ntarget.DrawLine(3, 4, 1, 2)\n");
}

TEST_F(SoftwarePolygon, StampsAWidePenEdgeByEdge)
{
    const Toolkit toolkit = software_toolkit(1);
    set_pen(toolkit, 3, 3);
    EXPECT_EQ(draw(toolkit, {{5, 5}, {7, 5}, {7, 6}}, 1, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls(), R"(
pen.GetSize()
pen.AddRef()
target.SetBlittingFlags(8)
pen.GetSize()
pen.GetSize()
target.BatchBlit(pen, [0 0 3 3], 4,4 5,4 6,4)
pen.GetSize()
pen.GetSize()
target.BatchBlit(pen, [0 0 3 3], 6,4 6,5)
pen.GetSize()
pen.GetSize()
target.BatchBlit(pen, [0 0 3 3], 6,5 5,4 4,4)
pen.Release()
)");
    drop_pen(toolkit);
}

TEST_F(SoftwarePolygon, BlendsEverythingThatAWidePenTouched)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 128, 255);
    set_pen(toolkit, 4, 5);
    EXPECT_EQ(draw(toolkit, {{2, 9}, {3, 10}}, 0, both), 0);
    EXPECT_EQ(calls(), R"(
cairo_move_to(scratch.cr, 2, 9)
cairo_line_to(scratch.cr, 3, 10)
cairo_set_source_rgb(scratch.cr, 0.200000, 0.000000, 1.000000)
cairo_fill(scratch.cr)
cairo_surface_flush(scratch.cairo)
pen.GetSize()
pen.AddRef()
pen.GetSize()
scratch.SetBlittingFlags(8)
pen.GetSize()
pen.GetSize()
scratch.BatchBlit(pen, [0 0 4 5], 0,7 1,8)
pen.Release()
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [0 6 6 7], 0, 6)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(0, 6, 6, 7)
)");
    drop_pen(toolkit);
}

TEST_F(SoftwarePolygon, TreatsAOnePixelPenLikeNone)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 128, 255);
    set_pen(toolkit, 1, 1);
    EXPECT_EQ(draw(toolkit, triangle, 0, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls(), R"(
pen.GetSize()
scratch.SetColor(1, 2, 3, 128)
scratch.DrawLine(5, 6, 20, 8)
scratch.DrawLine(20, 8, 9, 30)
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [5 6 16 25], 5, 6)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(5, 6, 16, 25)
)");
    drop_pen(toolkit);
}

TEST_F(SoftwarePolygon, StopsItsOutlineAtTheFirstFailingLine)
{
    const Toolkit toolkit = software_toolkit(1);
    set_colors(toolkit, 128, 255);
    transcript().fail_call(3, refusal);
    const Outcome outcome = run([&] { return draw(toolkit, triangle, 1, DTKHDDVD_STROKE); });
    EXPECT_EQ(outcome.result, refusal);
    EXPECT_EQ(outcome.error, complaint("DTKHDDVD_Polygon", refusal_text));
    EXPECT_EQ(transcript().lines().size(), 3u) << "no third edge and no blend";
}

} // namespace
