#include "support/fake_clock.h"
#include "support/fixture.h"

#include <algorithm>
#include <array>

/// Tells a leak checker, if there is one, to overlook what is allocated from now on.
extern "C" __attribute__((weak)) void __lsan_disable();
extern "C" __attribute__((weak)) void __lsan_enable();

namespace {

constexpr char beginning[] = "--Creating texture--\n--Creating toolkit--\n--Creating pens--\n--lets begin--\n";

class Frames : public Fakes {
protected:
    Frames()
    {
        screen.width = 640;
        screen.height = 480;
        screen.pitch = 4 * 640;
        fake::clock() = fake::Clock();
        // The pen that the toolkit holds at the end stays alive: nobody is left to release it.
        if (__lsan_disable)
            __lsan_disable();
    }

    ~Frames() override
    {
        if (__lsan_enable)
            __lsan_enable();
    }

    /// Runs the program until its n-th Flip fails.
    Outcome run_frames(int n)
    {
        static int frames_left;
        frames_left = n;
        screen.Flip = [](IDirectFBSurface*, const DFBRegion* region, DFBSurfaceFlipFlags flags) {
            transcript().note(fake::text("screen.Flip(%s, %d)", region ? "region" : "NULL", int(flags)));
            return --frames_left == 0 ? refusal : DFB_OK;
        };
        return run([&] { return test_dtkhd(&dfb, &screen); });
    }

    /// Runs frames on the drawing engine, whose calls are few, and answers those of the last frame.
    std::string last_frame_on_the_engine(int n)
    {
        fake::platform().engine_handle = 7;
        run_frames(n);
        const std::string all = calls();
        return all.substr(all.rfind("screen.Clear"));
    }
};

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

TEST_F(Frames, AreSetUpWithATextureAndAToolkit)
{
    run_frames(1);
    const std::string all = calls();
    EXPECT_EQ(all.substr(0, all.find("scratch.Clear")), R"(
screen.GetSize()
dfb.CreateSurface(flags 14, caps 0, 15 x 15, ARGB)
texture.Clear(160, 48, 16, 187)
texture.SetColor(255, 255, 255, 255)
texture.DrawLine(0, 0, 7, 7)
texture.DrawLine(0, 7, 7, 0)
screen.GetSubSurface(NULL)
screen.GetSize()
dfb.CreateSurface(flags 15, caps 4, 640 x 480, ARGB)
)");
}

TEST_F(Frames, GiveTheirObjectsBackInOrder)
{
    run_frames(1);
    const std::string all = calls();
    EXPECT_EQ(all.substr(all.find("screen.Flip")), R"(screen.Flip(NULL, 0)
pen.Release()
pen4.Release()
pen5.Release()
pen6.Release()
pen7.Release()
pen8.Release()
pen2.Release()
cairo_destroy(screen.cr)
target.Release()
cairo_destroy(scratch.cr)
scratch.Release()
dfb.Release()
texture.Release()
)") << "the toolkit keeps the pen of the line";
}

TEST_F(Frames, BeginWithAGreyGround)
{
    const std::string frame = last_frame_on_the_engine(1);
    const std::string ground = frame.substr(0, frame.find("zuvo_dtk_set_fill_color(7, 0, 0, 0, 64)"));
    EXPECT_EQ(ground, R"(screen.Clear(85, 85, 85, 255)
dfb.WaitIdle()
dfb.WaitIdle()
target.GetID()
zuvo_dtk_set_output_surface(7, 103)
zuvo_dtk_set_fill_color(7, 136, 136, 153, 255)
zuvo_dtk_draw_rectangle(7, [120 40 400 400], 0x30)
dfb.WaitIdle()
target.GetID()
zuvo_dtk_set_output_surface(7, 103)
zuvo_dtk_set_fill_color(7, 102, 119, 102, 255)
zuvo_dtk_draw_rectangle(7, [220 140 200 200], 0x30)
target.GetID()
zuvo_dtk_set_output_surface(7, 103)
)");
}

std::string only(const std::string& lines, const std::string& part)
{
    std::string some;
    for (std::size_t at = 0; at < lines.size();) {
        const std::size_t end = lines.find('\n', at) + 1;
        const std::string line = lines.substr(at, end - at);
        if (line.find(part) != std::string::npos)
            some += line;
        at = end;
    }
    return some;
}

TEST_F(Frames, DrawASeriesOfEllipsesWithShadows)
{
    const std::string frame = last_frame_on_the_engine(3);
    std::string expected;
    int size = 62, animation = 6;
    for (int i = 19; i >= 1; i--, size -= 3) {
        const int x = (animation + i * 640 / 21) % 640, y = (animation + i * 480 / 21) % 480;
        expected += fake::text("zuvo_dtk_draw_ellipse(7, [%d %d %d %d], 0x31)\n", x, y, size, size);
        expected += fake::text("zuvo_dtk_draw_ellipse(7, [%d %d %d %d], 0x30)\n", x - 5, y - 5, size, size);
    }
    const std::string ellipses = only(frame, "draw_ellipse(");
    EXPECT_EQ(ellipses.substr(0, expected.size()), expected);
    EXPECT_EQ(only(ellipses.substr(expected.size()), "0x30"), "") << "only the translucent one with a pen is left";
    EXPECT_NE(frame.find("set_fill_color(7, 32, 127, 33, 255)"), std::string::npos);
    EXPECT_NE(frame.find("set_fill_color(7, 32, 37, 123, 255)"), std::string::npos) << "the nineteenth colour";
}

TEST_F(Frames, DrawASeriesOfRectanglesWithShadows)
{
    const std::string boxes = only(last_frame_on_the_engine(1), "draw_rectangle(");
    EXPECT_NE(boxes.find("zuvo_dtk_draw_rectangle(7, [58 436 5 5], 0x31)\n"
                         "zuvo_dtk_draw_rectangle(7, [53 431 5 5], 0x30)\n"), std::string::npos) << boxes;
    EXPECT_EQ(std::count(boxes.begin(), boxes.end(), '\n'), 2 + 2 * 19 + 1);
}

TEST_F(Frames, EndWithPensPatternAndFlip)
{
    const std::string frame = last_frame_on_the_engine(1);
    const std::string end = frame.substr(frame.find("zuvo_dtk_set_fill_color(7, 48, 64, 96, 187)"));
    EXPECT_THAT(only(end, "set_fill"), testing::MatchesRegex("zuvo_dtk_set_fill_color.7, 48, 64, 96, 187.\n"
                                                            "zuvo_dtk_set_fill_pattern.7, [0-9]+.\n"
                                                            "zuvo_dtk_set_fill_color.7, 170, 170, 17, 187.\n"));
    EXPECT_THAT(only(end, "set_pen"), testing::MatchesRegex("[^\n]*bbd0d0d0.\n[^\n]*bbd08060.\n[^\n]*bbffff66.\n"
                                                           "[^\n]*bbffffff.\n"));
    const std::string lines = only(end, "draw_line");
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 4) << "a closed triangle and the hand of the clock";
    EXPECT_NE(lines.find("draw_line(7, 320, 240, "), std::string::npos);
    EXPECT_THAT(only(end, "draw_rectangle_border"), testing::MatchesRegex(".*.7, .300 [0-9]+ 200 100., 0x31.\n"));
    EXPECT_NE(end.find("screen.Flip(NULL, 0)"), std::string::npos);
}

TEST_F(Frames, MoveTheirBoxesToAndFro)
{
    // On 640 x 480 the ellipse has 68 steps of 5 pixels from below, and the rectangle 76 from above.
    for (const auto& [number, ellipse_y, rectangle_y] :
         {std::array{1, 335, 5}, {2, 330, 10}, {69, 5, 345}, {77, 45, 375}}) {
        const std::string frame = last_frame_on_the_engine(number);
        EXPECT_NE(frame.find(fake::text("draw_ellipse_border(7, [140 %d 200 140]", ellipse_y)), std::string::npos)
            << number << only(frame, "_border");
        EXPECT_NE(frame.find(fake::text("draw_rectangle_border(7, [300 %d 200 100]", rectangle_y)), std::string::npos)
            << number << only(frame, "_border");
        transcript().reset();
    }
}

TEST_F(Frames, DrawWithTheirPens)
{
    // The pen of the rectangle changes from frame to frame.
    const char* const rectangle_pens[] = {"-6,2 2,-6 6,-2 -2,6", "0,-6 6,0 0,6 -6,0", "-6,-2 6,-2 6,2 -6,2",
                                          "-6,-6 6,-6 -1,-1 -6,6", "-4,-4 4,-4 4,4 -4,4"};
    for (int number = 1; number <= 5; ++number) {
        EXPECT_EQ(only(last_frame_on_the_engine(number), "set_pen"),
                  "zuvo_dtk_set_pen(7, [-4,-2 2,-4 4,2 -2,4], bbd0d0d0)\n"
                  "zuvo_dtk_set_pen(7, [-5,3 3,-5 5,-3 -3,5], bbd08060)\n"
                  "zuvo_dtk_set_pen(7, [" + std::string(rectangle_pens[number - 1]) + "], bbffff66)\n"
                  "zuvo_dtk_set_pen(7, [0,-4 4,0 0,4 -4,0], bbffffff)\n");
        transcript().reset();
    }
}

TEST_F(Frames, SkipTheRestOfAFailingPhaseAlone)
{
    transcript().fail_every("screen.Clear", refusal);
    EXPECT_EQ(run_frames(0).result, refusal);
    const std::string all = calls();
    EXPECT_EQ(all.find("dfb.WaitIdle"), std::string::npos);
    EXPECT_NE(all.find("screen.Flip(NULL, 0)"), std::string::npos) << "the frame is still finished";
}

TEST_F(Frames, DoNotBeginWhenTheSetUpFails)
{
    for (int n = 1;; n++) {
        fake::forget_surfaces_but(screen);
        dfb.references = 1;
        transcript().reset();
        transcript().fail_call(n, DFB_LOCKED);
        const Outcome outcome = run_frames(1);
        const std::string failed = transcript().failed_call();
        if (failed.find("screen.Clear") == 0)
            break;
        const bool is_unchecked = failed.find("Unlock") != std::string::npos || failed == "screen.GetSize() #2";
        EXPECT_EQ(outcome.result, is_unchecked ? refusal : DFB_LOCKED) << failed;
        EXPECT_EQ(outcome.error.find("--lets begin--") == std::string::npos, !is_unchecked) << failed;
        EXPECT_EQ(screen.references, 1) << failed;
    }
}

} // namespace
