#include <gmock/gmock.h>

#include "command.h"

/// What all programs have in common, without a display: how they are asked, and how they end.
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::SizeIs;

const char* const all_programs[] = {"dtk_demo", "dtk_bench", "dtk_trace", "dtk_replay", "gallery", "guide_pictures", "hello",
                                    "df_chart", "df_clock", "df_menu", "df_paint"};

class Program : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Named, Program, testing::ValuesIn(all_programs));

/// How each program is told to write a picture.
class PictureFile : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Written, PictureFile,
                         testing::Values("dtk_demo --frames 1 --png", "gallery", "guide_pictures pens", "hello --png",
                                         "df_chart --png", "df_clock --png", "df_menu --png",
                                         "df_paint --png"));

const char dead_display[] = "DISPLAY=:987";

} // namespace

TEST_P(Program, HelpsWithoutADisplay)
{
    const Outcome outcome = run_command(std::string(GetParam()) + " --help", dead_display);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr("Usage: " + std::string(GetParam()) + " ["));
    EXPECT_THAT(outcome.output, HasSubstr("--version"));
    EXPECT_THAT(outcome.output, HasSubstr("--dfb:"));
    EXPECT_THAT(outcome.output, testing::Not(HasSubstr("zuvo: no window")));
}

TEST_P(Program, NamesItsVersionWithoutADisplay)
{
    const Outcome outcome = run_command(std::string(GetParam()) + " --version", dead_display);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, MatchesRegex(std::string(GetParam()) + " [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST_P(Program, RefusesAnUnknownOptionWithOneLine)
{
    const Outcome outcome = run_command(std::string(GetParam()) + " --no-such-option", dead_display);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(lines_of(outcome.output), SizeIs(1)) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr(std::string(GetParam()) + ": "));
}

TEST_P(Program, SaysThatStandardOutputIsFull)
{
    const Outcome outcome = run_command(std::string(GetParam()) + " --help > /dev/full");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, EndsWith("No space left on device\n"));
}

TEST_P(PictureFile, CannotGoToAFullDisk)
{
    const Outcome outcome = run_command(std::string(GetParam()) + " /dev/full");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, EndsWith(": cannot write /dev/full: No space left on device\n"));
    EXPECT_EQ(run_command("dtk_demo --version > /dev/null; test -c /dev/full").status, 0) << "and the device is still there";
}

TEST_P(PictureFile, CannotGoIntoAFolderThatIsNotThere)
{
    const Outcome outcome = run_command(std::string(GetParam()) + " /nonexistent/picture.png");
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

/// 128 and the number of the signal, which the shell tells.
TEST(Signals, EndTheBenchmarkProgramAsTheyEndAnyOther)
{
    const std::pair<const char*, int> signals[] = {{"HUP", 129}, {"TERM", 143}, {"USR1", 138}};
    for (const auto& [name, status] : signals) {
        const Outcome outcome = run_command("test_dtkhd 2> /dev/null & sleep 0.5; kill -" + std::string(name) + " $!; wait $!");
        EXPECT_EQ(outcome.status, status) << name;
        EXPECT_EQ(outcome.output.find("Caught"), std::string::npos);
    }
}
