#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include <gmock/gmock.h>

#include "command.h"
#include "x_server.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;

constexpr unsigned int width = 640, height = 480;

std::string in_words(const std::string& arguments)
{
    return "dtk_demo --size 640x480 " + arguments;
}

/// The first frame, drawn without a window.
Picture first_frame(const std::string& arguments)
{
    const std::string file = temporary_file("frame.png");
    run_command(in_words(arguments) + " --frames 1 --png " + file);
    const Picture picture = read_png(file);
    std::remove(file.c_str());
    return picture;
}

/// A demo program in a window, whose frames last ten seconds.
class Demo : public Process {
public:
    Demo(const XServer& server, const std::string& arguments)
        : Process(server.environment() + " exec '" PROGRAMS "'/" + in_words(arguments) + " --rate 0.1 --seconds 60")
    {
    }
};

bool appears(const XServer& server, const Picture& picture)
{
    for (int tries = 0; tries < 200; ++tries) {
        if (server.screen(width, height).pixels == picture.pixels)
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return false;
}

/// Does what a window manager does.
void close_window(const XServer& server)
{
    const std::string line = "export " + server.environment() +
                             "; xkill -id $(xwininfo -root -children | awk '/640x480/ { print $1 }') > /dev/null";
    EXPECT_EQ(std::system(line.c_str()), 0);
}

class Window : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Drawn, Window,
                         testing::Values("--backend software --zuvo:accel=off", "--backend software --zuvo:accel=on",
                                         "--backend hardware --zuvo:accel=off", "--backend hardware --zuvo:accel=on"));

} // namespace

TEST_P(Window, ShowsWhatIsDrawnWithoutOneAndEndsWithCtrlC)
{
    const Picture expected = first_frame(GetParam());
    ASSERT_EQ(expected.pixels.size(), width * height);
    const XServer server;
    ASSERT_NE(server.environment(), "");

    Demo demo(server, GetParam());
    EXPECT_TRUE(appears(server, expected));
    demo.signal(SIGINT);
    const Outcome outcome = demo.wait();
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("1 frames in "));
}

TEST(ClosingTheWindow, EndsTheProgramWithItsReport)
{
    const XServer server;
    Demo demo(server, "");
    ASSERT_TRUE(appears(server, first_frame(""))) << demo.output();
    close_window(server);
    const Outcome outcome = demo.wait();
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_THAT(outcome.output, EndsWith(" back end, DirectFB accelerated\n"));
}

TEST(ClosingTheWindow, IsAFailureWhenAPictureWasWanted)
{
    const std::string file = temporary_file("never.png");
    const XServer server;
    Demo demo(server, "--png " + file);
    ASSERT_TRUE(appears(server, first_frame(""))) << demo.output();
    close_window(server);
    const Outcome outcome = demo.wait();
    EXPECT_EQ(outcome.status, 1) << outcome.output;
    EXPECT_THAT(outcome.output, EndsWith("dtk_demo: the window was closed, no picture is written\n"));
    EXPECT_TRUE(read_png(file).pixels.empty());
}
