#include "support/fixture.h"
#include "support/picture.h"

namespace {

class StampLine : public Fakes {
protected:
    DFBResult stamp(int x1, int y1, int x2, int y2) { return stamp_line(&screen, x1, y1, x2, y2, &brush); }

    fake::Surface& brush = fake::new_surface("brush", 1, 1, DSPF_LUT8);
};

TEST_F(StampLine, StampsAZeroLengthLineOnce)
{
    EXPECT_EQ(stamp(0, 0, 0, 0), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1], 0,0)\n");
}

TEST_F(StampLine, SendsSixtyFourStampsAtATime)
{
    EXPECT_EQ(stamp(0, 3, 129, 3), 0);
    calls();
    std::string expected = "\n";
    for (int first : {0, 64, 128}) {
        expected += "screen.BatchBlit(brush, [0 0 1 1],";
        for (int x = first; x < first + 64 && x < 130; x++)
            expected += fake::text(" %d,3", x);
        expected += ")\n";
    }
    EXPECT_EQ(stamp(0, 3, 129, 3), 0);
    EXPECT_EQ(calls_with("BatchBlit"), expected);
    EXPECT_EQ(batch_n_blits, 0);
}

TEST_F(StampLine, SendsNothingMoreAfterAFullLastBatch)
{
    transcript().fail_every("screen.BatchBlit", refusal);
    EXPECT_EQ(stamp(0, 0, 63, 0), refusal) << "the full batch was the last call";
    std::size_t batches = 0;
    for (const std::string& line : transcript().lines())
        batches += line.find("BatchBlit") != std::string::npos;
    EXPECT_EQ(batches, 1u);
    EXPECT_EQ(batch_n_blits, 0);
}

TEST_F(StampLine, AdvancesBothWaysOnADiagonal)
{
    EXPECT_EQ(stamp(2, 3, 5, 0), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1], 2,3 3,2 4,1 5,0)\n");
}

TEST_F(StampLine, WalksAFlatLine)
{
    EXPECT_EQ(stamp(0, 0, 5, 2), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1], 0,0 1,0 2,1 3,1 4,2 5,2)\n");
}

TEST_F(StampLine, WalksTheOtherWayOverOtherPixels)
{
    EXPECT_EQ(stamp(4, 1, 0, 0), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1], 4,1 3,1 2,0 1,0 0,0)\n");
    EXPECT_EQ(stamp(0, 0, 4, 1), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1], 0,0 1,0 2,1 3,1 4,1)\n");
}

TEST_F(StampLine, WalksASteepLine)
{
    EXPECT_EQ(stamp(0, 0, -2, -5), 0);
    EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1], 0,0 0,-1 -1,-2 -1,-3 -2,-4 -2,-5)\n");
}

TEST_F(StampLine, ShiftsByHalfThePen)
{
    for (int width : {4, 5}) {
        fake::Surface& wide = fake::new_surface("wide", width, 3, DSPF_LUT8);
        EXPECT_EQ(stamp_line(&screen, 10, 10, 10, 10, &wide), 0);
        EXPECT_EQ(calls_with("BatchBlit"),
                  "\nscreen.BatchBlit(" + wide.name + fake::text(", [0 0 %d 3], 8,9)\n", width));
    }
}

TEST_F(StampLine, SetsNoFlags)
{
    stamp(0, 0, 3, 3);
    EXPECT_EQ(calls_with("Flags"), "\n");
}

TEST_F(StampLine, GoesOnAfterAFailedBatch)
{
    static int batches;
    batches = 0;
    screen.BatchBlit = [](IDirectFBSurface*, IDirectFBSurface*, const DFBRectangle*, const DFBPoint*, int) {
        return ++batches == 1 ? refusal : DFB_OK;
    };
    EXPECT_EQ(stamp(0, 0, 129, 0), 0);
    EXPECT_EQ(batches, 3);
}

TEST_F(StampLine, TellsTheBatchThroughItsGlobals)
{
    static std::string seen;
    screen.BatchBlit = [](IDirectFBSurface* dest, IDirectFBSurface* source, const DFBRectangle* rectangles,
                          const DFBPoint* points, int count) {
        EXPECT_EQ(dest, batch_dest);
        EXPECT_EQ(source, batch_source);
        EXPECT_EQ(rectangles, batch_rectangles);
        EXPECT_EQ(points, batch_points);
        seen = fake::text("%d stamps of %d x %d", count, batch_source_rect.w, batch_source_rect.h);
        return DFB_OK;
    };
    EXPECT_EQ(stamp(0, 0, 2, 0), 0);
    EXPECT_EQ(seen, "3 stamps of 1 x 1");
}

/// The line walk, once more in plain words.
std::string walked(int x1, int y1, int x2, int y2)
{
    const int dx = x2 - x1, dy = y2 - y1, adx = dx < 0 ? -dx : dx, ady = dy < 0 ? -dy : dy;
    const int sx = dx > 0 ? 1 : dx < 0 ? -1 : 0, sy = dy > 0 ? 1 : dy < 0 ? -1 : 0;
    const bool is_steep = adx < ady;
    const int steps = is_steep ? ady : adx, other = is_steep ? adx : ady;
    int x = x1, y = y1, err = steps >> 1;
    std::string points = fake::text(" %d,%d", x, y);
    for (int step = 0; step < steps; step++) {
        err += other;
        const bool turns = err >= steps;
        err -= turns ? steps : 0;
        x += is_steep ? (turns ? sx : 0) : sx;
        y += is_steep ? sy : (turns ? sy : 0);
        points += fake::text(" %d,%d", x, y);
    }
    return points;
}

TEST_F(StampLine, StampsRandomLinesLikeTheReference)
{
    fake::Random random(21);
    for (int i = 0; i < 5000 && !HasFailure(); i++) {
        const int x1 = random.between(-30, 30), y1 = random.between(-30, 30);
        const int x2 = random.between(-30, 30), y2 = random.between(-30, 30);
        calls();
        stamp(x1, y1, x2, y2);
        EXPECT_EQ(calls_with("BatchBlit"), "\nscreen.BatchBlit(brush, [0 0 1 1]," + walked(x1, y1, x2, y2) + ")\n");
    }
}

} // namespace
