#include <filesystem>

#include <gmock/gmock.h>

#include "command.h"
#include "x_server.h"

/// df_paint in a window of 800 x 500 pixels, on a screen of 800 x 600 without a window manager.
namespace {

constexpr std::size_t top = 50;
constexpr std::uint32_t paper = 0xFAF7EE, ink = 0x282C38, red = 0xC83830;

class Paint {
public:
    Paint() : process_("cd " + folder_ + " && exec env " + server_.environment() + " '" PROGRAMS "'/df_paint")
    {
        EXPECT_TRUE(shows(400, 300, paper)) << process_.output();
    }
    ~Paint() { std::filesystem::remove_all(folder_); }

    /// Sends events by xdotool.
    void send(const std::string& events) const { EXPECT_TRUE(server_.run("xdotool " + events)) << events; }

    /// A place of the window, for xdotool.
    static std::string at(std::size_t x, std::size_t y)
    {
        return "mousemove " + std::to_string(x) + " " + std::to_string(y + top) + " ";
    }

    bool shows(std::size_t x, std::size_t y, std::uint32_t colour) const
    {
        return await([&] { return server_.screen(x, y + top, 1, 1).pixels.at(0) == colour; });
    }

    const std::string& folder() const { return folder_; }
    Process& process() { return process_; }

private:
    static std::string make_folder()
    {
        const std::string folder = temporary_file("paint");
        std::filesystem::create_directory(folder);
        return folder;
    }

    XServer server_;
    std::string folder_ = make_folder();
    Process process_;
};

} // namespace

TEST(Painting, AClickLeavesADotThatCanBeUndone)
{
    const Paint paint;
    paint.send(Paint::at(200, 200) + "click 1");
    EXPECT_TRUE(paint.shows(200, 200, ink));
    paint.send("key u");
    EXPECT_TRUE(paint.shows(200, 200, paper));
}

TEST(Painting, AShapeFollowsTheMouseUntilItIsLetGo)
{
    const Paint paint;
    paint.send(Paint::at(112, 24) + "click 1 " + Paint::at(624, 24) + "click 1");
    paint.send(Paint::at(300, 150) + "mousedown 1 " + Paint::at(350, 200) + Paint::at(500, 300));
    EXPECT_TRUE(paint.shows(500, 250, red));
    paint.send(Paint::at(450, 260));
    EXPECT_TRUE(paint.shows(450, 200, red));
    EXPECT_TRUE(paint.shows(500, 250, paper)) << "the band has moved on";
    paint.send("mouseup 1");
    EXPECT_TRUE(paint.shows(450, 200, red));
}

TEST(Painting, IsSavedWithoutOverwritingAnything)
{
    Paint paint;
    paint.send(Paint::at(200, 200) + "click 1 key s key s key Escape");
    EXPECT_EQ(paint.process().wait().status, 0);
    for (const char* name : {"/painting-1.png", "/painting-2.png"}) {
        const Picture picture = read_png(paint.folder() + name);
        ASSERT_EQ(picture.pixels.size(), 800u * 428u) << name;
        EXPECT_EQ(picture.pixels[(200 - 48) * 800 + 200], ink);
    }
}
