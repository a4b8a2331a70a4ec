#include <gmock/gmock.h>

#include "command.h"
#include "x_server.h"

namespace {

using testing::HasSubstr;

/// window_events on an X server without a window manager.
class Listener {
public:
    explicit Listener(const std::string& options = "")
        : process_("exec env " + server_.environment() + " '" PROGRAMS "'/window_events --dfb:quiet " + options)
    {
        EXPECT_TRUE(hears("listening\n"));
        EXPECT_TRUE(await([&] { return server_.run("xwininfo -root -tree | grep F11"); }));
    }

    /// Sends events by xdotool.
    void send(const std::string& events) const { EXPECT_TRUE(server_.run("xdotool " + events)) << events; }

    bool hears(const std::string& text) const { return process_.says(text); }

    const XServer& server() const { return server_; }
    Process& process() { return process_; }

private:
    XServer server_;
    Process process_;
};

} // namespace

TEST(WindowInput, PointerIsWhereThePictureIs)
{
    const Listener listener;
    listener.send("mousemove 90 80 mousemove 180 160");
    EXPECT_TRUE(listener.hears("axis 0 at 100\naxis 1 at 100\n")) << "a window of 640 x 480 is at (80, 60)";
}

TEST(WindowInput, PointerFollowsTheScaleAndKeepsToThePicture)
{
    // The window is at (240, 140); the picture is half as large and begins 40 pixels below its upper edge.
    const Listener listener("--zuvo:window=320x320");
    listener.send("mousemove 300 200 mousemove 340 230");
    EXPECT_TRUE(listener.hears("axis 0 at 200\naxis 1 at 100\n"));
    listener.send("mousemove 340 150");
    EXPECT_TRUE(listener.hears("axis 0 at 200\naxis 1 at 0\n"));
}

TEST(WindowInput, ButtonsAndWheelArrive)
{
    const Listener listener;
    listener.send("mousemove 200 200 click 1 click 2 click 3 click 4 click 5");
    EXPECT_TRUE(listener.hears("button 0 pressed\n"));
    EXPECT_TRUE(listener.hears("button 2 released\n"));
    EXPECT_TRUE(listener.hears("button 1 released\n"));
    EXPECT_TRUE(listener.hears("axis 2 by -1\n"));
    EXPECT_TRUE(listener.hears("axis 2 by 1\n"));
}

TEST(WindowInput, KeysArriveWithTheirCharacters)
{
    Listener listener;
    listener.send("mousemove 200 200 key a key shift+b key Left key F1 key question");
    EXPECT_TRUE(listener.hears("key 61 pressed 0\nkey 61 released 0\n"));
    EXPECT_TRUE(listener.hears("key 42 pressed 1\n"));
    EXPECT_TRUE(listener.hears("key f000 pressed 0\n"));
    EXPECT_TRUE(listener.hears("key f101 pressed 0\n"));
    EXPECT_TRUE(listener.hears("key 3f pressed 1\n"));
    listener.send("key Escape");
    EXPECT_EQ(listener.process().wait().status, 0);
}

TEST(WindowInput, AKeyMakesTheWindowFullScreenAndIsNotHandedOn)
{
    Listener listener;
    const WindowManager manager(listener.server());
    const auto is_blue = [&](std::size_t x, std::size_t y) {
        return await([&] { return listener.server().screen(x, y, 1, 1).pixels.at(0) == 0x0080FF; });
    };
    EXPECT_TRUE(await([&] { return listener.server().run("wmctrl -a F11; xdotool getwindowfocus getwindowname | grep F11"); }));
    listener.send("key F11");
    EXPECT_TRUE(is_blue(0, 0)) << "4:3 fills the screen";
    EXPECT_TRUE(is_blue(799, 599));
    listener.send("mousemove 400 300 key F11 key Escape");
    EXPECT_EQ(listener.process().wait().status, 0);
    EXPECT_THAT(listener.process().output(), testing::Not(HasSubstr("key f10b")));
}

TEST(WindowInput, EventsWhileTheProgramEndsDoNoHarm)
{
    std::string events = "mousemove 200 200 key a key Escape";
    for (int i = 0; i < 400; ++i)
        events += " sleep 0.002 mousemove " + std::to_string(210 + i % 100) + " 210";
    for (int i = 0; i < 5; ++i) {
        Listener listener;
        listener.send(events);
        EXPECT_EQ(listener.process().wait().status, 0) << listener.process().output();
    }
}
