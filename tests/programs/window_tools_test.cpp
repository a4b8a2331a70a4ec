#include <csignal>
#include <filesystem>
#include <fstream>
#include <set>

#include <gmock/gmock.h>

#include "command.h"
#include "x_server.h"

/// The programs that open a window only when --window asks for it, and windows that are given another size.
namespace {

using testing::EndsWith;
using testing::HasSubstr;

/// A program of the build directory on a display.
std::string on(const XServer& server, const std::string& line)
{
    return "exec env " + server.environment() + " '" PROGRAMS "'/" + line;
}

struct Shown {
    const char* line;
    unsigned int width, height; ///< Of the picture.
};

void PrintTo(const Shown& shown, std::ostream* stream)
{
    *stream << shown.line;
}

class PictureWindow : public testing::TestWithParam<Shown> {};

INSTANTIATE_TEST_SUITE_P(Of, PictureWindow,
                         testing::Values(Shown{"gallery", 1078, 702}, Shown{"guide_pictures back-end", 350, 290},
                                         Shown{"guide_pictures scratch-pad --backend hardware", 700, 290}));

constexpr unsigned int screen_width = 1280, screen_height = 800;
const char large_screen[] = "-screen 0 1280x800x24";

class ToolWithoutDisplay : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Named, ToolWithoutDisplay, testing::Values("gallery", "guide_pictures pens", "dtk_bench"));

bool shows(const XServer& server, std::size_t x, std::size_t y, std::uint32_t colour)
{
    return await([&] { return server.screen(x, y, 1, 1).pixels.at(0) == colour; });
}

} // namespace

TEST_P(PictureWindow, ShowsWhatIsWrittenUntilItIsEnded)
{
    const auto [line, width, height] = GetParam();
    const std::string file = temporary_file("shown.png");
    const XServer server(large_screen);
    Process program(on(server, line + (" " + file) + " --window"));
    EXPECT_TRUE(await([&] {
        const Picture written = read_png(file);
        return written.pixels == server.screen((screen_width - width) / 2, (screen_height - height) / 2, width, height).pixels;
    })) << program.output();
    program.signal(SIGINT);
    const Outcome outcome = program.wait();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    std::filesystem::remove(file);
}

TEST(PictureInAWindow, NeedsNoFile)
{
    const XServer server;
    const WindowManager manager(server);
    Process program(on(server, "guide_pictures pens --window"));
    EXPECT_TRUE(manager.close("guide_pictures (F11"));
    EXPECT_EQ(program.wait().status, 0);
}

TEST_P(ToolWithoutDisplay, SaysSoWhenAskedForAWindow)
{
    const Outcome outcome = run_command(GetParam() + std::string(" --window"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(lines_of(outcome.output).size(), 1u) << outcome.output;
    EXPECT_THAT(outcome.output, EndsWith(": there is no display; without --window none is needed\n"));
}

/// A display that is tried and is dead costs a line.
TEST(ToolsThatWriteFiles, DoNotTryTheDisplay)
{
    const std::string file = temporary_file("unseen.png");
    for (const std::string& line : {"gallery " + file, "guide_pictures pens " + file, std::string("dtk_bench --iterations 1 --noresults")}) {
        const Outcome outcome = run_command(line, "DISPLAY=:987");
        EXPECT_EQ(outcome.status, 0) << line;
        EXPECT_EQ(outcome.output, "") << line;
    }
    std::filesystem::remove(file);
}

TEST(BenchWindow, ShowsWhatIsMeasuredAndKeepsItWhenClosed)
{
    const std::filesystem::path folder = temporary_file("dump");
    const XServer server("-screen 0 1280x720x24");
    const WindowManager manager(server);
    Process bench(on(server, "dtk_bench --window --zuvo:window=fullscreen --duration 0.2 --dump " + folder.string() + " --csv " +
                                 (folder / "table.csv").string()));
    EXPECT_TRUE(await([&] { return std::filesystem::exists(folder / "Rectangle-software.png"); })) << bench.output();
    const Picture screen = server.screen(0, 0, 1280, 720);
    EXPECT_GT(std::set<std::uint32_t>(screen.pixels.begin(), screen.pixels.end()).size(), 2u);
    EXPECT_TRUE(manager.close("dtk_bench (F11"));
    const Outcome outcome = bench.wait();
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("dtk_bench: interrupted; the results up to there have been written\n"));
    std::ifstream csv(folder / "table.csv");
    std::string heading, row;
    EXPECT_TRUE(std::getline(csv, heading) && std::getline(csv, row));
    EXPECT_THAT(row, HasSubstr("\"Line\",software,"));
    std::filesystem::remove_all(folder);
}

/// The clock's square stands in the middle of a wide window.
TEST(AWindowOfAnotherSize, KeepsThePicturesProportions)
{
    const XServer server;
    Process clock(on(server, "df_clock"));
    EXPECT_TRUE(shows(server, 400, 62, 0x101218)) << "480 x 480 at (160, 60)";
    EXPECT_TRUE(server.run("xdotool search --name F11 windowsize 600 300 windowmove 0 0"));
    EXPECT_TRUE(shows(server, 300, 2, 0x101218)) << "300 x 300 at (150, 0)";
    EXPECT_TRUE(shows(server, 151, 150, 0x101218));
    EXPECT_TRUE(shows(server, 448, 150, 0x101218));
    EXPECT_TRUE(shows(server, 148, 150, 0));
    EXPECT_TRUE(shows(server, 451, 150, 0));
    clock.signal(SIGTERM);
    clock.wait();
}
