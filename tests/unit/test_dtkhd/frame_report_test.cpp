#include "test_dtkhd/frames.h"

namespace {

constexpr char beginning[] = "--Creating texture--\n--Creating toolkit--\n--Creating pens--\n--lets begin--\n";

std::string report(const std::string& first_line, int milliseconds)
{
    std::string lines = first_line;
    for (const char* phase : {"Flip", "Sync", "Line", "Rect", "Poly", "Elli", "SOR ", "SOE ", "GREY", "CLEA"})
        lines += fake::text("%s %dms\n", phase, milliseconds);
    return lines;
}

TEST_F(Frames, EndWithTheFailingCall)
{
    const Outcome outcome = run_frames(1);
    EXPECT_EQ(outcome.result, refusal);
    EXPECT_EQ(outcome.error, beginning);
    EXPECT_EQ(outcome.output, "");
}

TEST_F(Frames, AreReportedEveryTwentieth)
{
    const std::string expected = report("399 msec for the last 20 frames - > 66.666 FPS\n", 1);
    EXPECT_EQ(run_frames(41).error, beginning + expected + expected);
}

TEST_F(Frames, AreReportedWithThreeDecimals)
{
    fake::clock().step = 48000;
    EXPECT_EQ(run_frames(20).error, beginning + report("19152 msec for the last 20 frames - > 1.047 FPS\n", 48));
}

TEST_F(Frames, MayBeFasterThanTheClock)
{
    fake::clock().step = 100;
    EXPECT_EQ(run_frames(20).error, beginning + report("39 msec for the last 20 frames - > 512.820 FPS\n", 0));
    fake::clock().step = 0;
    EXPECT_EQ(run_frames(20).error, beginning + report("0 msec for the last 20 frames - > 20000.000 FPS\n", 0));
}

TEST_F(Frames, StampEachPhaseInMicrosecondsCutToThirtyTwoBits)
{
    const u32 start = static_cast<u32>(fake::clock().microseconds);
    run_frames(1);
    const int* stamps[] = {&clear_time_start, &clear_time_stop, &grey_time_start, &grey_time_stop, &soe_time_start,
                           &soe_time_stop, &sor_time_start, &sor_time_stop, &ell_time_start, &ell_time_stop,
                           &pol_time_start, &pol_time_stop, &rec_time_start, &rec_time_stop, &line_time_start,
                           &line_time_stop, &sync_time_start, &sync_time_stop, &flip_time_start, &flip_time_stop};
    u32 expected = start;
    for (const int* stamp : stamps)
        EXPECT_EQ(static_cast<u32>(*stamp), expected += 1000);
}

TEST_F(Frames, MeasureAcrossTheEndOfThirtyTwoBits)
{
    fake::clock().microseconds = 419450LL * (1LL << 32) - 100000; // 2^32 microseconds end in the middle of the frames.
    EXPECT_EQ(run_frames(20).error, beginning + report("399 msec for the last 20 frames - > 66.666 FPS\n", 1));
}

} // namespace
