#include "test_dtkhd/frames.h"

#include <algorithm>
#include <array>

namespace {

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

TEST_F(Frames, DrawATriangleInTheMiddle)
{
    const std::string frame = last_frame_on_the_engine(1);
    EXPECT_EQ(only(frame, "draw_polygon"), "zuvo_dtk_draw_polygon(7, [320,90 450,315 190,315 ], 3, 0)\n");
    EXPECT_EQ(only(frame, "draw_line").find("zuvo_dtk_draw_line(7, 320, 90, 450, 315, 0x1)\n"
                                            "zuvo_dtk_draw_line(7, 450, 315, 190, 315, 0x1)\n"
                                            "zuvo_dtk_draw_line(7, 190, 315, 320, 90, 0x1)\n"), 0u);
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

TEST_F(Frames, KeepTheirBoxesWhereTheSurfaceIsTooLowToMoveThem)
{
    screen.height = 100;
    for (const int number : {1, 2}) {
        const std::string borders = only(last_frame_on_the_engine(number), "_border");
        EXPECT_NE(borders.find("draw_ellipse_border(7, [140 -40 200 140]"), std::string::npos) << borders;
        EXPECT_NE(borders.find("draw_rectangle_border(7, [300 0 200 100]"), std::string::npos) << borders;
        transcript().reset();
    }
}

TEST_F(Frames, DrawTheSeriesOfRectanglesFurtherInEachFrame)
{
    for (const auto& [number, x, y] : {std::array{1, 58, 436}, {3, 62, 440}, {30, 116, 14}}) {
        const std::string boxes = only(last_frame_on_the_engine(number), "draw_rectangle(");
        EXPECT_NE(boxes.find(fake::text("zuvo_dtk_draw_rectangle(7, [%d %d 5 5], 0x31)", x, y)), std::string::npos)
            << number << boxes;
        transcript().reset();
    }
}

TEST_F(Frames, TurnTheHandOfTheClock)
{
    // A turn takes 120 frames.
    for (const auto& [number, x, y] : {std::array{1, 639, 252}, {30, 320, 480}, {40, 161, 447}, {60, 0, 240}}) {
        const std::string lines = only(last_frame_on_the_engine(number), "draw_line(");
        EXPECT_NE(lines.find(fake::text("draw_line(7, 320, 240, %d, %d", x, y)), std::string::npos) << number << lines;
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

} // namespace
