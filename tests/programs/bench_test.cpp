#include <cstdio>
#include <filesystem>
#include <set>

#include <gmock/gmock.h>

#include "command.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::Gt;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::SizeIs;

const char quick[] = "dtk_bench --duration 0.001 --size 40x30 ";

/// What is measured with one back end: shapes per second, MPixel per second, CPU load.
const std::string rates = " +[0-9]+ +[0-9]+\\.[0-9] +[0-9]+ %";

} // namespace

TEST(Bench, MeasuresBothBackEndsSideBySide)
{
    const Outcome outcome = run_command(quick);
    EXPECT_EQ(outcome.status, 0);
    const std::vector<std::string> lines = lines_of(outcome.output);
    ASSERT_THAT(lines, SizeIs(25)) << outcome.output;
    EXPECT_THAT(lines[0], MatchesRegex("Shapes of 40 x 30 pixels on a surface of 1280 x 720, ARGB; DirectFB (not )?accelerated"));
    EXPECT_THAT(lines[2], MatchesRegex(" +software +hardware +to"));
    EXPECT_THAT(lines[3], MatchesRegex(" +shapes/s +MPixel/s +CPU +shapes/s +MPixel/s +CPU +software"));
    EXPECT_THAT(lines[4], MatchesRegex("Line" + rates + rates + " +[0-9]+\\.[0-9][0-9]"));
    EXPECT_THAT(lines[24], MatchesRegex("Ellipse outline, 5x5 pen, translucent" + rates + rates + " +[0-9]+\\.[0-9][0-9]"));
}

TEST(Bench, MeasuresOneBackEndWhereOneIsAskedForOrThere)
{
    for (const char* alone : {"--backend software", "--backend hardware", "--zuvo:dtk=off"}) {
        const std::vector<std::string> lines = lines_of(run_command(quick + std::string("--only Line ") + alone).output);
        ASSERT_THAT(lines, SizeIs(7)) << alone;
        EXPECT_THAT(lines[3], MatchesRegex(" +shapes/s +MPixel/s +CPU"));
        EXPECT_THAT(lines[4], MatchesRegex("Line" + rates));
    }
}

TEST(Bench, DrawsAsManyShapesAsAsked)
{
    const std::string file = temporary_file("iterations.csv");
    const Outcome outcome = run_command("dtk_bench --iterations 100 --only Rectangle, --noresults --csv " + file);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "");
    const std::vector<std::string> lines = lines_of(contents(file));
    ASSERT_THAT(lines, SizeIs(5));
    for (std::size_t i = 1; i < lines.size(); ++i)
        EXPECT_THAT(lines[i], MatchesRegex("\"Rectangle, (translucent|pattern)\",(software|hardware),[0-9.]+,100,.*"));
    std::remove(file.c_str());
}

TEST(Bench, CountsThePixelsThatAreDrawn)
{
    const std::string file = temporary_file("table.csv");
    EXPECT_EQ(run_command(quick + std::string("--only Rectangle --backend software --csv ") + file).status, 0);
    const std::string measured = ",software,[0-9.]+,[0-9]+,[0-9.]+,", rate = ",[0-9.]+,[0-9.]+,1.000";
    EXPECT_THAT(lines_of(contents(file)),
                ElementsAre("item,back end,seconds,shapes,shapes per second,pixels,megapixels per second,cpu percent,"
                            "to software",
                            MatchesRegex("\"Rectangle\"" + measured + "1200" + rate),
                            MatchesRegex("\"Rectangle, translucent\"" + measured + "1200" + rate),
                            MatchesRegex("\"Rectangle, pattern\"" + measured + "1200" + rate),
                            MatchesRegex("\"Rectangle outline\"" + measured + "136" + rate),
                            MatchesRegex("\"Rectangle outline, 5x5 pen\"" + measured + "680" + rate),
                            MatchesRegex("\"Rectangle outline, 5x5 pen, translucent\"" + measured + "680" + rate)));
    std::remove(file.c_str());
}

TEST(Bench, WritesJson)
{
    const std::string file = temporary_file("table.json");
    EXPECT_EQ(run_command(quick + std::string("--only Triangle, --backend hardware --json ") + file).status, 0);
    const std::string text = contents(file);
    for (const char* part : {"\"width\": 40", "\"pixelformat\": \"ARGB\"", "\"item\": \"Triangle, pattern\"",
                             "\"back_end\": \"hardware\"", "\"megapixels_per_second\": ", "\"cpu_percent\": "})
        EXPECT_THAT(text, HasSubstr(part));
    std::remove(file.c_str());
}

TEST(Bench, DumpsAPictureOfEachItemAsPng)
{
    const std::filesystem::path directory = temporary_file("dump");
    EXPECT_EQ(run_command(quick + std::string("--only Ellipse, --dump ") + directory.string()).status, 0);
    for (const char* file : {"Ellipse-translucent-software.png", "Ellipse-translucent-hardware.png", "Ellipse-pattern-software.png"}) {
        const Picture picture = read_png(directory / file);
        EXPECT_EQ(picture.width, 1280u) << file;
        EXPECT_GT(std::set<std::uint32_t>(picture.pixels.begin(), picture.pixels.end()).size(), 1u) << file;
    }
    std::filesystem::remove_all(directory);
}

TEST(Bench, DumpsSurfacesOfEveryFormat)
{
    const std::filesystem::path directory = temporary_file("formats");
    for (const char* format : {"RGB16", "A8", "LUT8"}) {
        const std::string line = "--only 'Rectangle outline' --backend software --dump " + directory.string() + " --pixelformat ";
        EXPECT_EQ(run_command(quick + line + format).status, 0) << format;
        const Picture picture = read_png(directory / "Rectangle-outline-software.png");
        EXPECT_GT(std::set<std::uint32_t>(picture.pixels.begin(), picture.pixels.end()).size(), 1u) << format;
        std::filesystem::remove_all(directory);
    }
}

TEST(Bench, AnInterruptKeepsWhatHasBeenMeasured)
{
    const std::string file = temporary_file("interrupted.csv"), folder = temporary_file("interrupted");
    const Outcome outcome = run_command("dtk_bench --duration 0.1 --backend software --csv " + file + " --dump " + folder +
                                        " & until [ -e " + folder + "/Rectangle-software.png ]; do sleep 0.02; done; kill $!; wait $!");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("dtk_bench: interrupted; the results up to there have been written\n"));
    EXPECT_THAT(lines_of(contents(file)), SizeIs(Gt(1)));
    std::filesystem::remove(file);
    std::filesystem::remove_all(folder);
}

TEST(Bench, SaysWhatASurfaceCannotTake)
{
    const Outcome outcome = run_command(quick + std::string("--pixelformat LUT8 --backend software 2>/dev/null"));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(lines_of(outcome.output), Contains(MatchesRegex("Triangle  +cannot be drawn")));
    EXPECT_THAT(lines_of(outcome.output), Contains(MatchesRegex("Rectangle" + rates)));
}

TEST(Bench, HelpNamesEveryOption)
{
    const Outcome outcome = run_command("dtk_bench --help");
    EXPECT_EQ(outcome.status, 0);
    for (const char* option : {"--duration SECONDS", "--iterations N", "--size WxH", "--pixelformat ARGB|", "--only TEXT",
                               "--csv PATH", "--json PATH", "--noresults", "--dump PATH", "--window", "--backend software",
                               "--help", "--version", "--zuvo:"})
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
    testing::Values(std::pair("--duration 0", "--duration: takes a number from 0.001, not '0'"),
                    std::pair("--duration 1s", "--duration: takes a number from 0.001, not '1s'"),
                    std::pair("--size 0", "--size: takes 1x1 to 4096x4096, not '0'"),
                    std::pair("--size 4097x1", "--size: takes 1x1 to 4096x4096, not '4097x1'"),
                    std::pair("--pixelformat YUY2", "--pixelformat: YUY2 not in {ARGB,RGB32,RGB16,A8,LUT8}"),
                    std::pair("--only circle", "no item has 'circle' in its name"),
                    std::pair("--backend firmware", "--backend: firmware not in {software,hardware}"),
                    std::pair("--csv ''", "--csv: takes a path, not ''"),
                    std::pair("--dump ''", "--dump: takes a path, not ''"),
                    std::pair("--csv", "--csv: 1 required PATH missing"),
                    std::pair("--quick", "The following argument was not expected: --quick"),
                    std::pair("--window --pixelformat A8", "--pixelformat excludes --window"),
                    std::pair("more", "The following argument was not expected: more")));
