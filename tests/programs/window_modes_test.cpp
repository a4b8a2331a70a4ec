#include <csignal>
#include <cstdlib>

#include <directfb.h>
#include <gmock/gmock.h>

#include "command.h"
#include "x_server.h"

/// What a layer in a window can be configured to, and what its window costs, waits for and leaves behind.

namespace {

using testing::HasSubstr;

struct Mode {
    const char* name;
    DFBSurfacePixelFormat format;
    DFBDisplayLayerBufferMode buffers;
};

void PrintTo(const Mode& mode, std::ostream* stream)
{
    *stream << mode.name;
}

class LayerMode : public testing::TestWithParam<Mode> {};

INSTANTIATE_TEST_SUITE_P(
    Shown, LayerMode,
    testing::Values(Mode{"argb, front only", DSPF_ARGB, DLBM_FRONTONLY}, Mode{"argb, back system", DSPF_ARGB, DLBM_BACKSYSTEM},
                    Mode{"argb, back video", DSPF_ARGB, DLBM_BACKVIDEO}, Mode{"argb, triple", DSPF_ARGB, DLBM_TRIPLE},
                    Mode{"rgb32, back video", DSPF_RGB32, DLBM_BACKVIDEO}, Mode{"rgb24, front only", DSPF_RGB24, DLBM_FRONTONLY},
                    Mode{"rgb16, back system", DSPF_RGB16, DLBM_BACKSYSTEM}, Mode{"rgb16, triple", DSPF_RGB16, DLBM_TRIPLE},
                    Mode{"argb1555, front only", DSPF_ARGB1555, DLBM_FRONTONLY}));

std::string modes_program(const Mode& mode)
{
    return "window_modes " + std::to_string(mode.format) + " " + std::to_string(mode.buffers) + " --dfb:quiet";
}

} // namespace

TEST_P(LayerMode, IsShown)
{
    const XServer server;
    Process program("exec env " + server.environment() + " '" PROGRAMS "'/" + modes_program(GetParam()));
    const auto shows = [&](std::size_t x, std::uint32_t colour) {
        return await([&] { return server.screen(x, 300, 1, 1).pixels.at(0) == colour; });
    };
    EXPECT_TRUE(shows(80, 0xFF0000)) << program.output();
    EXPECT_TRUE(shows(80 + 160, 0x00FF00));
    EXPECT_TRUE(shows(80 + 320, 0x0000FF));
    EXPECT_TRUE(shows(80 + 639, 0xFFFFFF));
    EXPECT_TRUE(program.says(" ms\n"));
    EXPECT_THAT(program.output(), HasSubstr("640x480x32 "));
    EXPECT_THAT(program.output(), HasSubstr("1920x1080x32 "));
}

TEST(Modes, FlipsWaitForTheDisplay)
{
    const XServer server;
    Process program("exec env " + server.environment() + " '" PROGRAMS "'/" +
                    modes_program({"", DSPF_ARGB, DLBM_BACKVIDEO}));
    EXPECT_TRUE(program.says(" ms\n"));
    const std::string output = program.output();
    EXPECT_GE(std::atoi(output.c_str() + output.rfind('\n', output.size() - 2) + 1), 75) << "5 frames of 1/60 s and a part";
}

namespace {

/// window_modes on an X server, its first picture on the screen.
class ModesInAWindow {
public:
    explicit ModesInAWindow(const std::string& options, DFBDisplayLayerBufferMode buffers = DLBM_FRONTONLY)
        : process_("exec env " + server_.environment() + " '" PROGRAMS "'/" + modes_program({"", DSPF_ARGB, buffers}) + options)
    {
        EXPECT_TRUE(await([&] { return says(" ms\n") && pixel(110, 500) == 0xFF0000; })) << process_.output();
    }

    bool says(const std::string& text) const { return process_.output().find(text) != std::string::npos; }
    std::uint32_t pixel(std::size_t x, std::size_t y) const { return server_.screen(x, y, 1, 1).pixels.at(0); }
    bool has_window() const { return server_.run("xwininfo -root -tree | grep F11"); }
    const Process& process() const { return process_; }

private:
    XServer server_;
    Process process_;
};

} // namespace

TEST(Modes, OnlyFlipsThatAreAskedToWaitForTheDisplay)
{
    const ModesInAWindow modes("", DLBM_BACKVIDEO);
    EXPECT_THAT(modes.process().output(), HasSubstr("\n6 waits, 6 in order\n0 waits, 0 in order\n"));
}

TEST(Modes, OptionsOfALayerAreRefused)
{
    const ModesInAWindow modes("");
    EXPECT_THAT(modes.process().output(), testing::ContainsRegex("options: .*(not supported|[Uu]nsupported).*, alone\n"));
}

TEST(Modes, APartIsShownWhereThePictureIs)
{
    // The picture begins 40 pixels below the upper edge of its window, which is at (80, 20).
    const ModesInAWindow modes(" --zuvo:window=640x560");
    modes.process().signal(SIGUSR1);
    EXPECT_TRUE(await([&] { return modes.pixel(81, 60 + 441) == 0xFFFFFF && modes.pixel(118, 60 + 478) == 0xFFFFFF; }));
    EXPECT_EQ(modes.pixel(81, 60 + 438), 0xFF0000u);
}

TEST(Modes, AnIdleWindowLeavesTheProcessorAlone)
{
    const ModesInAWindow modes("");
    std::this_thread::sleep_for(std::chrono::milliseconds(700));
    modes.process().signal(SIGUSR1);
    EXPECT_TRUE(await([&] { return modes.says(" in 1000\n"); }));
    const std::string output = modes.process().output(), label = "busy: ";
    EXPECT_LT(std::atoi(output.c_str() + output.find(label) + label.size()), 50) << output;
}

TEST(Modes, TheWindowEndsWithDirectFB)
{
    const ModesInAWindow modes("");
    EXPECT_TRUE(modes.has_window());
    modes.process().signal(SIGUSR1);
    EXPECT_TRUE(await([&] { return modes.pixel(81, 60 + 441) == 0xFFFFFF; }));
    modes.process().signal(SIGUSR1);
    EXPECT_TRUE(await([&] { return modes.says("ended\n"); }));
    EXPECT_FALSE(modes.has_window());
}

TEST(Modes, APaletteIsRefused)
{
    const XServer server;
    const Outcome outcome = run_command(modes_program({"", DSPF_LUT8, DLBM_FRONTONLY}), server.environment());
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, testing::ContainsRegex("(not supported|[Uu]nsupported)"));
}
