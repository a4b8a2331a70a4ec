#include "support/fixture.h"
#include "support/picture.h"

namespace {

constexpr u32 color = 0x80402010;
constexpr char pixel_format_message[] = "fill_ellipse_argb only supports DSPF_ARGB and DSPF_RGB32\n";

class FillEllipseArgb : public Fakes {
protected:
    void fill(const DFBRectangle& rect)
    {
        EXPECT_EQ(fill_ellipse_argb(&screen, &rect, nullptr, color), 0);
    }

    /// Leaves out the central block, so that only the spans are seen.
    void fill_spans_only(const DFBRectangle& rect)
    {
        transcript().fail_every("screen.FillRectangle", refusal);
        fill(rect);
    }

    std::string picture(const DFBRectangle& part) { return fake::picture(screen, part, color); }

    std::string block_call() { return calls_with("FillRectangle"); }
};

TEST_F(FillEllipseArgb, CallsTheSurfaceInOrder)
{
    fill({2, 2, 10, 10});
    EXPECT_EQ(calls(), R"(
screen.GetPixelFormat()
screen.GetSize()
screen.Lock(2)
screen.Unlock()
screen.SetColor(64, 32, 16, 128)
screen.FillRectangle(4, 3, 6, 9)
)");
}

TEST_F(FillEllipseArgb, DoesNotAskForTheSizeWhenAClipIsGiven)
{
    const DFBRectangle rect = {2, 2, 10, 10}, clip = {0, 0, 8, 6};
    EXPECT_EQ(fill_ellipse_argb(&screen, &rect, &clip, color), 0);
    EXPECT_EQ(calls_with("GetSize"), "\n");
    EXPECT_EQ(picture({0, 0, 13, 13}), R"(
.............
.............
....####.....
...#####.....
...#####.....
..######.....
.............
.............
.............
.............
.............
.............
.............
)");
}

TEST_F(FillEllipseArgb, FillsACircleOfTen)
{
    fill({2, 2, 10, 10});
    EXPECT_EQ(picture({1, 1, 12, 12}), R"(
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

TEST_F(FillEllipseArgb, WritesOnlyCapsAndSidesItself)
{
    fill_spans_only({2, 2, 10, 10});
    EXPECT_EQ(picture({1, 1, 12, 12}), R"(
............
...######...
..#......#..
..#......#..
.##......##.
.##......##.
.##......##.
.##......##.
..#......#..
..#......#..
...######...
............
)");
}

TEST_F(FillEllipseArgb, LeavesTheMiddleOfAWideEllipseToTheBlock)
{
    fill({2, 2, 20, 6});
    EXPECT_EQ(block_call(), "\nscreen.FillRectangle(3, 4, 18, 3)\n");
}

TEST_F(FillEllipseArgb, MakesATallEllipseOfSideSpansAlone)
{
    fill({2, 2, 6, 20});
    EXPECT_EQ(block_call(), "\nscreen.FillRectangle(5, 2, 0, 21)\n");
    EXPECT_EQ(picture({1, 1, 8, 22}), R"(
........
...##...
..####..
..####..
..####..
.######.
.######.
.######.
.######.
.######.
.######.
.######.
.######.
.######.
.######.
.######.
.######.
..####..
..####..
..####..
...##...
........
)");
}

TEST_F(FillEllipseArgb, WritesNothingForASinglePixel)
{
    fill({2, 2, 1, 1});
    EXPECT_EQ(block_call(), "\nscreen.FillRectangle(2, 2, 0, 2)\n");
    EXPECT_EQ(picture({1, 1, 3, 3}), "\n...\n...\n...\n");
}

TEST_F(FillEllipseArgb, FillsABoxOfTwoWithSideSpans)
{
    fill_spans_only({2, 2, 2, 2});
    EXPECT_EQ(picture({1, 1, 4, 4}), R"(
....
.##.
.##.
....
)");
}

TEST_F(FillEllipseArgb, CoversTwoRowsOfABoxOfHeightOne)
{
    fill({2, 2, 4, 1});
    EXPECT_EQ(block_call(), "\nscreen.FillRectangle(3, 2, 2, 2)\n");
    EXPECT_EQ(picture({1, 1, 6, 4}), R"(
......
.####.
..##..
......
)");
}

TEST_F(FillEllipseArgb, CutsSpansAtTheLeftEdge)
{
    fill_spans_only({-3, 5, 10, 10});
    EXPECT_EQ(picture({0, 4, 9, 12}), R"(
.........
#####....
.....#...
.....#...
.....##..
.....##..
.....##..
.....##..
.....#...
.....#...
#####....
.........
)");
}

TEST_F(FillEllipseArgb, ReachesOneRowBelowANarrowBox)
{
    fill({0, 0, 4, 4});
    EXPECT_EQ(block_call(), "\nscreen.FillRectangle(1, 0, 2, 5)\n");
    EXPECT_EQ(picture({0, 0, 5, 6}), R"(
####.
####.
####.
####.
.##..
.....
)");
}

TEST_F(FillEllipseArgb, IsOnePixelWiderThanABoxOfOddWidth)
{
    fill({10, 0, 5, 1});
    EXPECT_EQ(block_call(), "\nscreen.FillRectangle(9, 1, 6, 0)\n");
    EXPECT_EQ(picture({8, 0, 8, 2}), "\n.######.\n........\n");
}

TEST_F(FillEllipseArgb, StoresTheWholeWordIntoRgb32)
{
    fake::Surface& opaque = fake::new_surface("opaque", 20, 20, DSPF_RGB32);
    const DFBRectangle rect = {2, 2, 10, 10};
    EXPECT_EQ(fill_ellipse_argb(&opaque, &rect, nullptr, color), 0);
    EXPECT_EQ(opaque.pixel(4, 2), color);
}

TEST_F(FillEllipseArgb, RefusesOtherFormatsWithoutTouchingTheSurface)
{
    fake::Surface& palette_surface = fake::new_surface("eight", 20, 20, DSPF_LUT8);
    const DFBRectangle rect = {2, 2, 10, 10};
    const Outcome outcome = run([&] { return fill_ellipse_argb(&palette_surface, &rect, nullptr, color); });
    EXPECT_EQ(outcome.result, 5);
    EXPECT_EQ(outcome.error, pixel_format_message);
    EXPECT_EQ(calls(), "\neight.GetPixelFormat()\n");
}

TEST_F(FillEllipseArgb, WritesNothingWhenTheLockFails)
{
    transcript().fail_every("screen.Lock", refusal);
    fill({2, 2, 10, 10});
    EXPECT_EQ(picture({1, 1, 4, 4}), "\n....\n....\n...#\n...#\n");
}

TEST_F(FillEllipseArgb, IgnoresFailingColourAndBlock)
{
    for (const char* failing : {"screen.SetColor", "screen.FillRectangle"}) {
        transcript().reset();
        transcript().fail_every(failing, refusal);
        const DFBRectangle rect = {2, 2, 10, 10};
        const Outcome outcome = run([&] { return fill_ellipse_argb(&screen, &rect, nullptr, color); });
        EXPECT_EQ(outcome.result, 0) << failing;
        EXPECT_EQ(outcome.error, "") << failing;
    }
}

} // namespace
