#include <csignal>
#include <cstdio>

#include <gmock/gmock.h>

#include "command.h"
#include "x_server.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;

constexpr unsigned int width = 640, height = 480;

/// Where SDL puts a window of 640 x 480 on a screen of 800 x 600 without a window manager.
constexpr std::size_t left = 80, top = 60;

std::string in_words(const std::string& arguments)
{
    return "dtk_demo --size 640x480 " + arguments;
}

/// The last one of some frames, drawn without a window.
Picture last_frame(const std::string& arguments)
{
    const std::string file = temporary_file("frame.png");
    run_command(in_words(arguments) + " --png " + file);
    const Picture picture = read_png(file);
    std::remove(file.c_str());
    return picture;
}

Picture first_frame(const std::string& arguments)
{
    return last_frame(arguments + " --frames 1");
}

/// A program of the build directory on a display.
class Program : public Process {
public:
    Program(const std::string& environment, const std::string& line)
        : Process("export " + environment + "; exec '" PROGRAMS "'/" + line)
    {
    }
};

/// A program that knows of Escape ends as it always does, any other one is ended with a line.
void expect_end_without_display(const Outcome& outcome)
{
    if (outcome.status != 0) {
        EXPECT_THAT(outcome.output, EndsWith("zuvo: the display has gone\n"));
    }
    EXPECT_GE(outcome.status, 0);
}

/// A demo program whose frames last ten seconds.
std::string slow_demo(const std::string& arguments)
{
    return in_words(arguments) + " --rate 0.1 --seconds 60";
}

bool appears(const XServer& server, const Picture& picture, std::size_t x = left, std::size_t y = top)
{
    return await([&] { return server.screen(x, y, width, height).pixels == picture.pixels; });
}

bool has_window(const XServer& server, const std::string& program)
{
    return await([&] { return server.run("xwininfo -root -tree | grep '\"" + program + " (F11'"); });
}

class Window : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Drawn, Window,
                         testing::Values("--backend software --zuvo:accel=off", "--backend software --zuvo:accel=on",
                                         "--backend hardware --zuvo:accel=off", "--backend hardware --zuvo:accel=on"));

class Server : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Of, Server, testing::Values("", "-extension GLX", "-extension MIT-SHM"));

class Example : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Named, Example, testing::ValuesIn(examples()));

} // namespace

TEST_P(Window, ShowsWhatIsDrawnWithoutOneAndEndsWithCtrlC)
{
    const Picture expected = first_frame(GetParam());
    ASSERT_EQ(expected.pixels.size(), width * height);
    const XServer server;
    ASSERT_NE(server.environment(), "");

    Program demo(server.environment(), slow_demo(GetParam()));
    EXPECT_TRUE(appears(server, expected)) << demo.output();
    demo.signal(SIGINT);
    const Outcome outcome = demo.wait();
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("1 frames in "));
}

TEST_P(Server, ShowsTheWindow)
{
    const XServer server(GetParam());
    Program demo(server.environment(), slow_demo(""));
    EXPECT_TRUE(appears(server, first_frame(""))) << demo.output();
    demo.signal(SIGTERM);
    EXPECT_EQ(demo.wait().status, 0);
}

TEST(ScaledWindow, OfAWholeMultipleHasSquarePixels)
{
    const std::string small = "dtk_demo --size 320x240 ", file = temporary_file("small.png");
    run_command(small + "--frames 1 --png " + file);
    const Picture picture = read_png(file);
    std::remove(file.c_str());
    ASSERT_EQ(picture.pixels.size(), 320u * 240u);
    std::vector<std::uint32_t> doubled;
    for (std::size_t i = 0; i < width * height; ++i)
        doubled.push_back(picture.pixels[i / (2 * width) * 320 + i % width / 2]);

    const XServer server;
    const Program demo(server.environment(), small + "--rate 0.1 --seconds 60 --zuvo:window=640x480");
    EXPECT_TRUE(appears(server, {width, height, doubled})) << demo.output();
}

TEST(WaylandCompositor, ShowsTheWindowUntilItEnds)
{
    Compositor compositor;
    ASSERT_NE(compositor.environment(), "");
    const Picture expected = first_frame("");
    Program demo(compositor.environment(), slow_demo(""));
    EXPECT_TRUE(appears(compositor.screen(), expected, (800 - width) / 2, 0)) << demo.output();
    compositor.kill();
    const Outcome outcome = demo.wait();
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("1 frames in "));
}

TEST_P(Example, EndsWhenItsServerIsKilled)
{
    XServer server;
    Program program(server.environment(), GetParam());
    EXPECT_TRUE(has_window(server, GetParam()));
    server.kill();
    expect_end_without_display(program.wait());
}

/// OpenGL's library ends with a look at the display that the last call of Xlib has locked.
TEST(AProgramThatUsesOpenGL, EndsWhenItsServerIsKilled)
{
    XServer server;
    Program program("SDL_FRAMEBUFFER_ACCELERATION=1 " + server.environment(), "df_clock");
    EXPECT_TRUE(await([&] { return server.screen(400, 300, 1, 1).pixels.at(0) != 0; }));
    server.kill();
    expect_end_without_display(program.wait());
}

TEST_P(Example, EndsWhenItsWindowIsClosed)
{
    const XServer server;
    const WindowManager manager(server);
    Program program(server.environment(), GetParam());
    EXPECT_TRUE(manager.close(GetParam() + " (F11"));
    EXPECT_EQ(program.wait().status, 0);
}

TEST_P(Example, EndsWhenItsWindowIsKilled)
{
    const XServer server;
    Program program(server.environment(), GetParam());
    EXPECT_TRUE(has_window(server, GetParam()));
    EXPECT_TRUE(server.run("xkill -id $(xwininfo -root -children | awk '/F11/ { print $1 }')"));
    expect_end_without_display(program.wait());
}

/// What is drawn next has no place any more.
TEST(AClock, EndsWhenAnotherProgramDestroysItsWindow)
{
    const XServer server;
    Program program(server.environment(), "df_clock");
    EXPECT_TRUE(has_window(server, "df_clock"));
    EXPECT_TRUE(server.run("xdotool windowclose $(xwininfo -root -children | awk '/F11/ { print $1 }')"));
    const Outcome outcome = program.wait();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
}

TEST_P(Example, EndsBySignalsAsAnyProgramDoes)
{
    const XServer server;
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
        Program program(server.environment() + "; ulimit -c 0", GetParam() + "; echo unreachable");
        EXPECT_TRUE(has_window(server, GetParam()));
        program.signal(number);
        const Outcome outcome = program.wait();
        EXPECT_EQ(outcome.signal, number);
        EXPECT_THAT(outcome.output, testing::Not(HasSubstr("Caught")));
    }
}

TEST(AProgramThatIgnoresEscape, EndsSoonAfterItsWindow)
{
    const XServer server;
    const WindowManager manager(server);
    Program program(server.environment(), "test_dtkhd --zuvo:format=480");
    EXPECT_TRUE(manager.close("test_dtkhd (F11"));
    const Outcome outcome = program.wait();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr("zuvo: the window was closed\n"));
}

/// SDL waits for it for ever.
TEST(AWindowManagerThatHangs, KeepsNoProgramFromDrawingAndEnding)
{
    const XServer server;
    const WindowManager manager(server);
    manager.hang();
    const std::string file = temporary_file("hang.png");
    Program demo(server.environment(), in_words("--frames 20 --png " + file));
    EXPECT_EQ(demo.wait().status, 0);
    EXPECT_EQ(read_png(file).pixels, last_frame("--frames 20").pixels);
    std::remove(file.c_str());
}

TEST(ClosingTheWindow, EndsTheDemoWithItsReport)
{
    const XServer server;
    const WindowManager manager(server);
    const std::string file = temporary_file("closed.png");
    Program demo(server.environment(), slow_demo("--png " + file));
    EXPECT_TRUE(manager.close("dtk_demo (F11"));
    const Outcome outcome = demo.wait();
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_THAT(outcome.output, EndsWith(" back end, DirectFB accelerated\n"));
    EXPECT_EQ(read_png(file).pixels, first_frame("").pixels);
    std::remove(file.c_str());
}
