#include <csignal>
#include <filesystem>

#include <gmock/gmock.h>

#include "command.h"
#include "x_server.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

const char demo[] = "dtk_demo --frames 1 --size 320x240";
const char no_display[] = ": there is no display; --png FILE writes the picture to a file\n";
const char dead_displays[][60] = {"DISPLAY=:987", "WAYLAND_DISPLAY=gone", "DISPLAY=:987 WAYLAND_DISPLAY=gone"};

std::size_t count(const std::string& text, const std::string& part)
{
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++found;
    return found;
}

} // namespace

TEST(DeadDisplay, CostsOneLineAndNothingElse)
{
    for (const char* display : dead_displays) {
        const Outcome outcome = run_command(demo, display);
        EXPECT_EQ(outcome.status, 0) << outcome.output;
        EXPECT_EQ(count(outcome.output, "zuvo: "), 1u) << outcome.output;
        EXPECT_THAT(outcome.output, HasSubstr("zuvo: no window: "));
        EXPECT_THAT(outcome.output, HasSubstr("1 frames in "));
    }
}

TEST(DeadDisplay, Ends100Of100StartsInOrder)
{
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(run_command(demo, dead_displays[i % 3]).status, 0) << i;
}

TEST(DeadDisplay, EndsExamplesWithALineThatTellsTheWayWithoutOne)
{
    for (const std::string& example : examples()) {
        const Outcome outcome = run_command(example, dead_displays[0]);
        EXPECT_EQ(outcome.status, 1) << example;
        EXPECT_THAT(outcome.output, StartsWith("zuvo: no window: "));
        EXPECT_THAT(outcome.output, EndsWith(example + no_display));
        EXPECT_EQ(count(outcome.output, "\n"), 2u);
    }
}

TEST(NoDisplay, EndsExamplesWithALineThatTellsTheWayWithoutOne)
{
    for (const std::string& example : examples()) {
        const Outcome outcome = run_command(example);
        EXPECT_EQ(outcome.status, 1) << example;
        EXPECT_EQ(outcome.output, example + no_display);
    }
}

TEST(DeadDisplay, ExamplesAreDrawnWithoutAWindow)
{
    const std::string file = temporary_file("drawn.png");
    for (const std::string& example : examples()) {
        const Outcome outcome = run_command(example + " --png " + file, dead_displays[0]);
        EXPECT_EQ(outcome.status, 0) << example;
        EXPECT_EQ(outcome.output, "");
        EXPECT_FALSE(read_png(file).pixels.empty());
        std::filesystem::remove(file);
    }
}

TEST(CompositorWithoutAKeyboardAndMouse, CostsOneLineAndNothingElse)
{
    const std::string directory = temporary_file("seatless");
    std::filesystem::create_directory(directory);
    std::filesystem::permissions(directory, std::filesystem::perms::owner_all);
    const std::string environment = "HOME=" + directory + " XDG_RUNTIME_DIR=" + directory;
    Process compositor("exec env " + environment + " weston --backend=headless-backend.so --use-pixman --no-config "
                       "--socket=seatless");
    EXPECT_TRUE(await([&] { return std::filesystem::exists(directory + "/seatless"); })) << compositor.output();

    const Outcome outcome = run_command(demo, environment + " WAYLAND_DISPLAY=seatless");
    compositor.signal(SIGTERM);
    compositor.wait();
    std::filesystem::remove_all(directory);
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_EQ(count(outcome.output, "zuvo: no window: "), 1u) << outcome.output;
}

TEST(Starts, OneHundredInARowSucceed)
{
    const XServer server;
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(run_command(demo, server.environment()).status, 0) << i;
}

TEST(WithoutSdl, OneLineTellsWhatToInstall)
{
    const std::string place = temporary_file("libraries");
    std::filesystem::create_directory(place);
    std::filesystem::copy(PROGRAMS "/libzuvo.so.1", place);
    const std::string path = place + "${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}";
    const Outcome outcome = run_command(demo, "DISPLAY=:987 LD_LIBRARY_PATH=" + path);
    std::filesystem::remove_all(place);
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_EQ(count(outcome.output, "zuvo: "), 1u) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("; install libsdl2-2.0-0 and libzuvo1-window\n"));
}

TEST(Options, SwitchTheWindowOff)
{
    const Outcome outcome = run_command(std::string(demo) + " --zuvo:window=off", "DISPLAY=:987");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(count(outcome.output, "zuvo"), 0u) << outcome.output;
    EXPECT_EQ(count(run_command("hello", "DISPLAY=:987 ZUVOARGS=window=off").output, "zuvo"), 0u);
}

TEST(Options, SayWhatTheWindowMayBe)
{
    for (const char* wrong : {"window=large", "window=0x10", "window=10x", "window=10x10x", "window="}) {
        const Outcome outcome = run_command(std::string(demo) + " --zuvo:" + wrong);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_THAT(outcome.output, HasSubstr(std::string("zuvo: unknown word '") + wrong + "'"));
        EXPECT_THAT(outcome.output, HasSubstr("window=on|off|fullscreen|WIDTHxHEIGHT"));
    }
}

/// SDL knows no window with a palette.
TEST(ADisplayOf256Colours, CostsOneLineAndNothingElse)
{
    const XServer server("-screen 0 800x600x8");
    const Outcome outcome = run_command("dtk_demo --size 320x240 --rate 20 --seconds 1", server.environment());
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_EQ(count(outcome.output, "zuvo: "), 1u) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("zuvo: no window: "));
    EXPECT_THAT(outcome.output, HasSubstr(" frames in "));
}

TEST(Options, FillTheScreen)
{
    const XServer server;
    const WindowManager manager(server);
    Process program("exec env " + server.environment() + " '" PROGRAMS "'/window_events --zuvo:window=fullscreen");
    EXPECT_TRUE(await([&] { return server.screen(0, 0, 1, 1).pixels.at(0) == 0x0080FF; }));
    program.signal(SIGTERM);
    EXPECT_EQ(program.wait().status, -1);
}
