#include "support/fixture.h"
#include "support/picture.h"

namespace {

constexpr u32 color = 0x80402010;
constexpr char pixel_format_message[] = "outline_ellipse_argb supports only DSPF_ARGB";

class OutlineEllipse : public Fakes {
protected:
    std::string outline(const DFBRectangle& rect, const DFBRectangle& part)
    {
        EXPECT_EQ(outline_ellipse_argb(&screen, &rect, color), 0);
        return fake::picture(screen, part, color);
    }
};

TEST_F(OutlineEllipse, OnlyAsksForTheFormatAndLocks)
{
    outline({3, 3, 8, 8}, {});
    EXPECT_EQ(calls(), R"(
screen.GetPixelFormat()
screen.Lock(2)
screen.Unlock()
)");
}

TEST_F(OutlineEllipse, SpansOneColumnAndRowMoreThanAnEvenBox)
{
    EXPECT_EQ(outline({3, 3, 8, 8}, {2, 2, 11, 11}), R"(
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

TEST_F(OutlineEllipse, FitsAnOddBox)
{
    EXPECT_EQ(outline({3, 3, 9, 9}, {2, 2, 11, 11}), R"(
...........
...#####...
..#.....#..
.#.......#.
.#.......#.
.#.......#.
.#.......#.
.#.......#.
..#.....#..
...#####...
...........
)");
}

TEST_F(OutlineEllipse, IsOnePixelForTheSmallestBoxes)
{
    for (int size : {0, 1, -1}) {
        screen.fill(0, 0, 64, 48, 0xEEEEEEEE);
        EXPECT_EQ(outline({3, 3, size, size}, {2, 2, 3, 3}), "\n...\n.#.\n...\n") << size;
    }
}

TEST_F(OutlineEllipse, IsADiamondForABoxOfTwo)
{
    EXPECT_EQ(outline({3, 3, 2, 2}, {2, 2, 5, 5}), R"(
.....
..#..
.#.#.
..#..
.....
)");
}

TEST_F(OutlineEllipse, RefusesEverythingButArgb)
{
    for (DFBSurfacePixelFormat format : {DSPF_RGB32, DSPF_LUT8, DSPF_A8}) {
        fake::Surface& other = fake::new_surface("other", 20, 20, format);
        calls();
        const DFBRectangle rect = {3, 3, 8, 8};
        const Outcome outcome = run([&] { return outline_ellipse_argb(&other, &rect, color); });
        EXPECT_EQ(outcome.result, 8);
        EXPECT_EQ(outcome.error, pixel_format_message) << "without a newline";
        EXPECT_EQ(outcome.error.size(), 44u);
        EXPECT_EQ(calls(), "\n" + other.name + ".GetPixelFormat()\n");
    }
}

TEST_F(OutlineEllipse, WritesNothingWhenTheLockFails)
{
    transcript().fail_every("screen.Lock", refusal);
    EXPECT_EQ(outline({3, 3, 2, 2}, {3, 3, 3, 3}), "\n...\n...\n...\n");
}

} // namespace
