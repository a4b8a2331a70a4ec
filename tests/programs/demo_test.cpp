#include <algorithm>
#include <csignal>
#include <cstdio>

#include <gmock/gmock.h>

#include "process.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::SizeIs;

const char final_line[] = "3 frames in [0-9]+\\.[0-9]+ s, [0-9]+\\.[0-9]+ frames per second, "
                          "(software|hardware) back end, DirectFB (not )?accelerated";

/// Draws in software and reads the picture back.
Picture last_frame(int frames, const std::string& size)
{
    const std::string file = temporary_file("frame.png");
    const Outcome outcome = run_command("dtk_demo --backend software --frames " + std::to_string(frames) + " --size " +
                                        size + " --png " + file);
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    const Picture picture = read_png(file);
    std::remove(file.c_str());
    return picture;
}

} // namespace

TEST(Demo, EndsCleanlyAfterTheAskedFrames)
{
    const Outcome outcome = run_command("dtk_demo --frames 3 --size 640x480");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(lines_of(outcome.output),
                ElementsAre("--Creating texture--", "--Creating toolkit--", "--Creating pens--", "--lets begin--",
                            MatchesRegex(final_line)));
}

TEST(Demo, ReportsTheTimesOfEvery20thFrame)
{
    const Outcome outcome = run_command("dtk_demo --frames 20 --size 640x480");
    std::vector<std::string> report = lines_of(outcome.output);
    ASSERT_THAT(report, SizeIs(16)) << outcome.output;
    report.erase(report.begin(), report.begin() + 4);
    report.pop_back();
    EXPECT_THAT(report, ElementsAre(MatchesRegex("[0-9]+ msec for the last 20 frames - > [0-9]+\\.[0-9]{3} FPS"),
                                    MatchesRegex("Flip [0-9]+ms"), MatchesRegex("Sync [0-9]+ms"),
                                    MatchesRegex("Line [0-9]+ms"), MatchesRegex("Rect [0-9]+ms"),
                                    MatchesRegex("Poly [0-9]+ms"), MatchesRegex("Elli [0-9]+ms"),
                                    MatchesRegex("SOR  [0-9]+ms"), MatchesRegex("SOE  [0-9]+ms"),
                                    MatchesRegex("GREY [0-9]+ms"), MatchesRegex("CLEA [0-9]+ms")));
}

TEST(Demo, WritesAPictureOfTheAskedSize)
{
    const Picture picture = last_frame(1, "800x600");
    EXPECT_EQ(picture.width, 800u);
    EXPECT_EQ(picture.height, 600u);
}

TEST(Demo, ThePictureShowsTheSquaresOnTheirBackground)
{
    const Picture picture = last_frame(1, "1280x720");
    ASSERT_THAT(picture.pixels, SizeIs(1280u * 720u));
    const auto at = [&](std::size_t x, std::size_t y) { return picture.pixels[y * 1280 + x]; };
    EXPECT_EQ(at(640 - 200, 360 + 199), 0xCCBBBBu);
    EXPECT_EQ(at(640 + 150, 360 + 190), 0x888899u);
    EXPECT_EQ(at(640 + 90, 360 + 95), 0x667766u);
    EXPECT_GT(std::count(picture.pixels.begin(), picture.pixels.end(), 0x555555u), 1280 * 720 / 3);
}

TEST(Demo, ThePictureIsThatOfTheLastFrame)
{
    const Picture seventh = last_frame(7, "640x480");
    ASSERT_THAT(seventh.pixels, SizeIs(640u * 480u));
    EXPECT_TRUE(seventh.pixels == last_frame(7, "640x480").pixels);
    EXPECT_FALSE(seventh.pixels == last_frame(8, "640x480").pixels);
}

TEST(Demo, DrawsOnTheSmallestDisplay)
{
    EXPECT_EQ(run_command("dtk_demo --frames 150 --size 320x240").status, 0);
}

TEST(Demo, EndsAfterTheAskedSeconds)
{
    const Outcome outcome = run_command("dtk_demo --seconds 0.3 --rate 20 --size 320x240");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(lines_of(outcome.output).back(), MatchesRegex("[1-7] frames in [0-9]+\\.[0-9]+ s, .*"));
}

TEST(Demo, FramesEndItBeforeTheSecondsDo)
{
    EXPECT_THAT(run_command("dtk_demo --seconds 60 --frames 3 --size 320x240").output, HasSubstr("3 frames in "));
}

TEST(Demo, SoftwareIsWhatWasAskedFor)
{
    EXPECT_THAT(run_command("dtk_demo --frames 1 --backend software").output, HasSubstr(", software back end, "));
}

TEST(Demo, HardwareWithoutAnEngineFailsWithOneLine)
{
    const Outcome outcome = run_command("dtk_demo --backend hardware --zuvo:dtk=off");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "dtk_demo: the platform has no drawing engine\n");
}

TEST(Demo, PictureThatCannotBeWrittenFailsWithItsName)
{
    const Outcome outcome = run_command("dtk_demo --frames 1 --png /nonexistent/frame.png");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("dtk_demo: cannot write /nonexistent/frame.png: "));
}

TEST(Demo, TerminationEndsItCleanlyAfterTheFrame)
{
    Process demo(program("dtk_demo --frames 999999999 --size 640x480"));
    EXPECT_TRUE(demo.says("msec for the last 20 frames")) << demo.output();
    demo.signal(SIGTERM);
    const Outcome outcome = demo.wait();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr(" frames per second, "));
}

TEST(Demo, HelpNamesEveryOption)
{
    const Outcome outcome = run_command("dtk_demo --help");
    EXPECT_EQ(outcome.status, 0);
    for (const char* option : {"--frames N", "--seconds S", "--rate N", "--size WxH", "--png PATH",
                               "--backend software|hardware", "--help", "--version", "--dfb:", "--zuvo:"})
        EXPECT_THAT(outcome.output, HasSubstr(option));
}

TEST(Demo, TheLastOneOfAnOptionCounts)
{
    EXPECT_THAT(run_command("dtk_demo --frames 500 --size 320x240 --frames 3").output, HasSubstr("3 frames in "));
}

class DemoMisuse : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(DemoMisuse, ExitsWith2AndOneLine)
{
    const Outcome outcome = run_command(std::string("dtk_demo ") + GetParam().first);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, std::string("dtk_demo: ") + GetParam().second + "; try --help\n");
}

INSTANTIATE_TEST_SUITE_P(
    Options, DemoMisuse,
    testing::Values(std::pair("--frames 0", "--frames: takes a number from 1, not '0'"),
                    std::pair("--frames 12x", "--frames: takes a number from 1, not '12x'"),
                    std::pair("--frames 1.5", "Could not convert: --frames = 1.5"),
                    std::pair("--seconds 0", "--seconds: takes a number from 0.001, not '0'"),
                    std::pair("--rate slow", "--rate: takes a number from 0.1, not 'slow'"),
                    std::pair("--frames", "--frames: 1 required N missing"),
                    std::pair("--size 200", "--size: takes 320x240 to 8192x8192, not '200'"),
                    std::pair("--size 640x480x2", "--size: takes 320x240 to 8192x8192, not '640x480x2'"),
                    std::pair("--size 319x240", "--size: takes 320x240 to 8192x8192, not '319x240'"),
                    std::pair("--png ''", "--png: takes a path, not ''"),
                    std::pair("--backend firmware", "--backend: firmware not in {software,hardware}"),
                    std::pair("--colour", "The following argument was not expected: --colour"),
                    std::pair("-xy", "The following argument was not expected: -xy"),
                    std::pair("--frames 2 more", "The following argument was not expected: more")));
