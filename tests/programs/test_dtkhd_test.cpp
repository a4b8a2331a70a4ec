#include <csignal>

#include <directfb.h>
#include <gmock/gmock.h>

#include "process.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

const char directfb_words[] = " --dfb:quiet,no-cursor";

} // namespace

TEST(TestDtkhd, StartsAndEndsThePlatformInOrder)
{
    const Outcome outcome = run_command(std::string("recorded_test_dtkhd 2>/dev/null") + directfb_words);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, R"(zuvo_init(4108)
zuvo_display_open(1)
zuvo_display_get(1)
zuvo_display_set(1, format 0)
zuvo_dfb_ext_open_with_params(6, 2 arguments)
zuvo_dfb_ext_layer_open(7)
zuvo_dfb_ext_layer_get(1)
test_dtkhd on 1920 x 1080
zuvo_dfb_ext_close()
zuvo_display_close(1)
zuvo_uninit()
)");
}

TEST(TestDtkhd, LeavesADisplayOfAnotherFormatAsItIs)
{
    const Outcome outcome = run_command(std::string("recorded_test_dtkhd --zuvo:format=720") + directfb_words);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr("zuvo_dfb_ext_layer_get(1)\nnot re-configured\ntest_dtkhd on 1280 x 720\n"));
}

TEST(TestDtkhd, ReportsWhyTheFramesEndedAndExitsWith0)
{
    const std::string busy = "DTK_FRAMES_RESULT=" + std::to_string(DFB_BUSY);
    const Outcome outcome = run_command("recorded_test_dtkhd >/dev/null" + std::string(directfb_words), busy);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "--DirectFB Initialized--\nERROR!! The resource or device is busy\n");
}

TEST(TestDtkhd, WithoutDirectFBReportsAndTearsDown)
{
    const Outcome outcome = run_command("recorded_test_dtkhd --dfb:quiet,mode=banana");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, StartsWith(std::string("ERROR!! ") + DirectFBErrorString(DFB_INIT) + "\n"));
    EXPECT_THAT(outcome.output, EndsWith("zuvo_dfb_ext_open_with_params(6, 2 arguments)\n"
                                         "zuvo_dfb_ext_close()\nzuvo_display_close(1)\nzuvo_uninit()\n"));
}

TEST(TestDtkhd, TheProgramDrawsFrames)
{
    Process frames(program("test_dtkhd" + std::string(directfb_words) + ",no-sighandler"));
    EXPECT_TRUE(frames.says("CLEA ")) << "the end of the report on the first 20 frames";
    frames.signal(SIGTERM);
    EXPECT_THAT(frames.wait().output, StartsWith("--DirectFB Initialized--\n--Creating texture--\n--Creating toolkit--\n"
                                                 "--Creating pens--\n--lets begin--\n"));
    std::vector<std::string> report = lines_of(frames.output());
    ASSERT_GE(report.size(), 16u);
    EXPECT_THAT(report[5], MatchesRegex("[0-9]+ msec for the last 20 frames - > [0-9]+\\.[0-9]{3} FPS"));
    for (std::size_t i = 6; i < 16; ++i)
        EXPECT_THAT(report[i], MatchesRegex("[A-Za-z]+ +[0-9]+ms"));
}
