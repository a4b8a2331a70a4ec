#include <csignal>

#include <gmock/gmock.h>

#include "process.h"

/// What all programs have in common, without a display: how they are asked, and how they end.
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::SizeIs;

std::vector<std::string> all_programs()
{
    std::vector<std::string> programs = {"dtk_demo", "dtk_bench", "dtk_trace", "dtk_replay", "gallery", "guide_pictures"};
    for (const std::string& example : examples())
        programs.push_back(example);
    return programs;
}

std::vector<std::string> pictures_to_file()
{
    std::vector<std::string> lines = {"dtk_demo --frames 1 --png", "gallery", "guide_pictures pens"};
    for (const std::string& example : examples())
        lines.push_back(example + " --png");
    return lines;
}

class Program : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Named, Program, testing::ValuesIn(all_programs()));

/// How each program is told to write a picture.
class PictureFile : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Written, PictureFile, testing::ValuesIn(pictures_to_file()));

const char dead_display[] = "DISPLAY=:987";

} // namespace

TEST_P(Program, HelpsWithoutADisplay)
{
    const Outcome outcome = run_command(GetParam() + " --help", dead_display);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr("Usage: " + GetParam() + " ["));
    EXPECT_THAT(outcome.output, HasSubstr("--version"));
    EXPECT_THAT(outcome.output, HasSubstr("--dfb:"));
    EXPECT_THAT(outcome.output, Not(HasSubstr("zuvo: no window")));
}

TEST_P(Program, NamesItsVersionWithoutADisplay)
{
    const Outcome outcome = run_command(GetParam() + " --version", dead_display);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, MatchesRegex(GetParam() + " [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST_P(Program, RefusesAnUnknownOptionWithOneLine)
{
    const Outcome outcome = run_command(GetParam() + " --no-such-option", dead_display);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(lines_of(outcome.output), SizeIs(1)) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr(GetParam() + ": "));
}

TEST_P(Program, SaysThatStandardOutputIsFull)
{
    const Outcome outcome = run_command(GetParam() + " --help > /dev/full");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, EndsWith("No space left on device\n"));
}

TEST_P(PictureFile, CannotGoToAFullDisk)
{
    const Outcome outcome = run_command(GetParam() + " /dev/full");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, EndsWith(": cannot write /dev/full: No space left on device\n"));
    EXPECT_EQ(run_command("dtk_demo --version > /dev/null; test -c /dev/full").status, 0) << "and the device is still there";
}

TEST_P(PictureFile, CannotGoIntoAFolderThatIsNotThere)
{
    const Outcome outcome = run_command(GetParam() + " /nonexistent/picture.png");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, EndsWith(": cannot write /nonexistent/picture.png: No such file or directory\n"));
}

TEST(BenchFiles, SaysBeforeItMeasuresThatAFileCannotBeWritten)
{
    for (const char* option : {"--csv", "--json"}) {
        const Outcome outcome = run_command(std::string("dtk_bench --duration 60 ") + option + " /nonexistent/table");
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.output, "dtk_bench: cannot write /nonexistent/table: No such file or directory\n");
    }
    EXPECT_THAT(run_command("dtk_bench --duration 60 --dump /dev/null/folder").output,
                HasSubstr("dtk_bench: cannot make the folder /dev/null/folder: "));
}

TEST(BenchFiles, SaysThatTheDiskIsFull)
{
    const Outcome outcome = run_command("dtk_bench --duration 0.001 --only Line --noresults --csv /dev/full");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "dtk_bench: cannot write /dev/full: No space left on device\n");
}

/// A program that went on after its reader would be ended by timeout, with status 124. The shell's status is head's.
TEST(AClosedPipe, EndsWhateverWritesToIt)
{
    for (const char* program : {"dtk_bench --duration 0.05", "test_dtkhd"}) {
        const std::string status = temporary_file("status");
        run_command("dtk_demo --version > /dev/null; { timeout 20 '" PROGRAMS "'/" + std::string(program) + "; echo $? > " +
                    status + "; } 2>&1 | head -n 2");
        EXPECT_EQ(run_command("dtk_demo --version > /dev/null; cat " + status + "; rm " + status).output, "141\n") << program;
    }
}

TEST(Signals, EndTheBenchmarkProgramAsTheyEndAnyOther)
{
    for (const int number : {SIGHUP, SIGTERM, SIGUSR1}) {
        Process frames(program("test_dtkhd"));
        EXPECT_TRUE(frames.says("--lets begin--\n"));
        frames.signal(number);
        const Outcome outcome = frames.wait();
        EXPECT_EQ(outcome.signal, number);
        EXPECT_THAT(outcome.output, Not(HasSubstr("Caught")));
    }
}
