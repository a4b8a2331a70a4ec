#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>

#include "command.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::SizeIs;

const char quick[] = "dtk_bench --duration 0.001 --size 40x30 ";
const char rates[] = " +[0-9]+\\.[0-9]+ s +[0-9]+\\.[0-9] /s +[0-9]+\\.[0-9]+ MPixel/s";

std::string contents(const std::string& file)
{
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

TEST(Bench, MeasuresEveryPrimitiveInEveryManner)
{
    for (const char* back_end : {"software", "hardware"}) {
        const Outcome outcome = run_command(quick + std::string("--backend ") + back_end);
        EXPECT_EQ(outcome.status, 0);
        const std::vector<std::string> lines = lines_of(outcome.output);
        ASSERT_THAT(lines, SizeIs(23)) << outcome.output;
        EXPECT_THAT(lines[0], MatchesRegex("Shapes of 40 x 30 pixels on a surface of 1280 x 720, ARGB; " +
                                           std::string(back_end) + " back end, DirectFB (not )?accelerated"));
        EXPECT_THAT(lines[2], MatchesRegex(std::string("Line") + rates));
        EXPECT_THAT(lines[22], MatchesRegex(std::string("Ellipse outline, 5x5 pen, translucent") + rates));
    }
}

TEST(Bench, CountsThePixelsThatAreDrawn)
{
    const std::string file = temporary_file("table.csv");
    EXPECT_EQ(run_command(quick + std::string("--only Rectangle --backend software --csv ") + file).status, 0);
    const std::string pixels = ",[0-9]+\\.[0-9]+,[0-9]+,[0-9]+\\.[0-9],";
    const std::string rate = ",[0-9]+\\.[0-9]+";
    EXPECT_THAT(lines_of(contents(file)),
                ElementsAre("item,seconds,primitives,primitives per second,pixels,megapixels per second",
                            MatchesRegex("\"Rectangle\"" + pixels + "1200" + rate),
                            MatchesRegex("\"Rectangle, translucent\"" + pixels + "1200" + rate),
                            MatchesRegex("\"Rectangle, pattern\"" + pixels + "1200" + rate),
                            MatchesRegex("\"Rectangle outline\"" + pixels + "136" + rate),
                            MatchesRegex("\"Rectangle outline, 5x5 pen\"" + pixels + "680" + rate),
                            MatchesRegex("\"Rectangle outline, 5x5 pen, translucent\"" + pixels + "680" + rate)));
    std::remove(file.c_str());
}

/// DirectFB 1.7 compresses what it dumps, DirectFB2 does not.
static bool is_dumped(const std::filesystem::path& picture)
{
    return std::filesystem::exists(picture) || std::filesystem::exists(picture.string() + ".gz");
}

TEST(Bench, DumpsAPictureOfEachItem)
{
    const std::filesystem::path directory = temporary_file("dump");
    std::filesystem::create_directory(directory);
    EXPECT_EQ(run_command(quick + std::string("--only Ellipse, --dump ") + directory.string()).status, 0);
    EXPECT_TRUE(is_dumped(directory / "Ellipse-translucent_0000.ppm"));
    EXPECT_TRUE(is_dumped(directory / "Ellipse-pattern_0000.ppm"));
    std::filesystem::remove_all(directory);
}

TEST(Bench, SaysWhatASurfaceCannotTake)
{
    const Outcome outcome = run_command(quick + std::string("--pixelformat LUT8 --backend software 2>/dev/null"));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(lines_of(outcome.output), Contains(MatchesRegex("Triangle  +cannot be drawn on this surface")));
    EXPECT_THAT(lines_of(outcome.output), Contains(MatchesRegex(std::string("Rectangle") + rates)));
}

TEST(Bench, HelpNamesEveryOption)
{
    const Outcome outcome = run_command("dtk_bench --help");
    EXPECT_EQ(outcome.status, 0);
    for (const char* option : {"--duration SECONDS", "--size WxH", "--pixelformat FORMAT", "--only TEXT", "--csv FILE",
                               "--dump DIRECTORY", "--backend software", "--help", "--zuvo:"})
        EXPECT_THAT(outcome.output, HasSubstr(option));
}

class BenchMisuse : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(BenchMisuse, ExitsWith2AndOneLine)
{
    const Outcome outcome = run_command(std::string("dtk_bench ") + GetParam().first + " 2>&1 >/dev/null");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, std::string("dtk_bench: ") + GetParam().second + "; try --help\n");
}

INSTANTIATE_TEST_SUITE_P(
    Options, BenchMisuse,
    testing::Values(std::pair("--duration 0", "--duration takes seconds from 0.001, not '0'"),
                    std::pair("--duration 1s", "--duration takes seconds from 0.001, not '1s'"),
                    std::pair("--size 0", "--size takes 1x1 to 4096x4096, not '0'"),
                    std::pair("--size 4097x1", "--size takes 1x1 to 4096x4096, not '4097x1'"),
                    std::pair("--pixelformat YUY2", "--pixelformat takes ARGB, RGB32, RGB16, A8 or LUT8, not 'YUY2'"),
                    std::pair("--only circle", "no item has 'circle' in its name"),
                    std::pair("--backend firmware", "the back end is software or hardware, not 'firmware'"),
                    std::pair("--csv ''", "--csv takes a path, not ''"),
                    std::pair("--dump ''", "--dump takes a path, not ''"),
                    std::pair("--csv", "--csv lacks its value"), std::pair("--quick", "--quick is no option"),
                    std::pair("more", "unexpected argument 'more'")));
