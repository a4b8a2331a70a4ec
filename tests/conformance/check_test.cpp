#include "programs/command.h"

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

/// The conformance program on good boards, on ones with a fault, and as its users meet it.

namespace {

using nlohmann::json;

const std::string headless = " --dfb:system=dummy,quiet,no-cursor ";

struct CheckRun {
    Outcome outcome;
    json report;
};

CheckRun run_check(const std::string& program, const std::string& arguments, const std::string& environment = "")
{
    const std::string path = temporary_file("check.json");
    CheckRun run = {run_command(program + headless + "--json '" + path + "' " + arguments, environment), nullptr};
    std::ifstream file(path);
    if (file)
        run.report = json::parse(file, nullptr, false);
    std::remove(path.c_str());
    return run;
}

/// The loader finds a board's libzuvo before the one that the program was linked with.
std::string on_board(const std::string& name)
{
    return "LD_LIBRARY_PATH='" PROGRAMS "/boards/" + name + "' ";
}

json family_of(const json& report, const std::string& name)
{
    for (const json& family : report.at("families")) {
        if (family.at("name") == name)
            return family;
    }
    return nullptr;
}

TEST(Check, FindsNothingWrongWithTheHostedPlatform)
{
    const CheckRun run = run_check("zuvo_check", "");
    EXPECT_EQ(run.outcome.status, 0) << run.outcome.output;
    EXPECT_EQ(run.report.at("level"), "pixels");
    EXPECT_TRUE(run.report.at("first_failure").is_null());
    int checks = 0;
    for (const json& family : run.report.at("families")) {
        EXPECT_EQ(family.at("status"), "passed") << family;
        checks += family.at("checks").get<int>();
    }
    EXPECT_GT(checks, 5000);
    EXPECT_EQ(run.report.at("speeds").size(), 14u);
    for (const json& speed : run.report.at("speeds"))
        EXPECT_GT(speed.at("hardware_nanoseconds"), 0) << speed;
}

class Boards : public testing::TestWithParam<const char*> {};

TEST_P(Boards, ReachTheLevelThatTheyClaim)
{
    const CheckRun run = run_check("zuvo_check", "--level required", on_board(GetParam()));
    EXPECT_EQ(run.outcome.status, 0) << run.outcome.output;
    EXPECT_EQ(run.report.at("level"), "required");
    EXPECT_EQ(family_of(run.report, "rectangle").at("status"), "passed");
    EXPECT_EQ(family_of(run.report, "parts").at("status"), "not offered");
}

INSTANTIATE_TEST_SUITE_P(, Boards, testing::Values("skeleton", "virtual"));

TEST(VirtualBoard, DrawsTheFramesOfTheSkeletonThoughItDrawsThemLate)
{
    std::vector<std::vector<std::uint32_t>> frames;
    for (const char* board : {"skeleton", "virtual"}) {
        const std::string path = temporary_file("frame.png");
        const Outcome outcome = run_command("dtk_demo --backend hardware --frames 3 --size 640x480 --png '" + path + "'" + headless,
                                            on_board(board));
        EXPECT_EQ(outcome.status, 0) << outcome.output;
        frames.push_back(read_png(path).pixels);
        std::remove(path.c_str());
    }
    EXPECT_FALSE(frames[0].empty());
    EXPECT_TRUE(frames[0] == frames[1]);
}

/// What is wrong with a platform, and the family that has to be named first.
struct Fault {
    const char* name;
    const char* family;
};

void PrintTo(const Fault& fault, std::ostream* stream)
{
    *stream << fault.name;
}

class Waits : public testing::TestWithParam<Fault> {};

TEST_P(Waits, AreMissedOnTheVirtualBoard)
{
    const std::string without = std::string("ZUVO_VIRTUAL_WITHOUT=") + GetParam().name;
    const CheckRun run = run_check("zuvo_check", "--level required --scenes 5", on_board("virtual") + without);
    EXPECT_EQ(run.outcome.status, 1);
    EXPECT_EQ(run.report.at("first_failure"), GetParam().family) << run.outcome.output;
}

INSTANTIATE_TEST_SUITE_P(, Waits,
                         testing::Values(Fault{"lock", "lock"}, Fault{"sync", "sync"}, Fault{"idle", "idle"},
                                         Fault{"flip", "flip"}));

class Faults : public testing::TestWithParam<Fault> {};

TEST_P(Faults, AreNamedRightly)
{
    const std::string fault = std::string("ZUVO_FAULT='") + GetParam().name + "'";
    const CheckRun run = run_check("zuvo_check_faulty", "--scenes 60", fault);
    EXPECT_EQ(run.outcome.status, 1);
    EXPECT_EQ(run.report.at("first_failure"), GetParam().family) << run.outcome.output;
}

INSTANTIATE_TEST_SUITE_P(
    , Faults,
    testing::Values(
        Fault{"another handle each time", "handles"}, Fault{"any engine is welcome", "results"},
        Fault{"NULL is welcome", "results"}, Fault{"draws late", "lock"}, Fault{"an output survives failure", "forgetting"},
        Fault{"a fill survives failure", "forgetting"}, Fault{"released surfaces are welcome", "stale handles"},
        Fault{"a fill colours the pen", "state"}, Fault{"always blends", "flags"},
        Fault{"coordinates of 16 bits", "extremes"}, Fault{"one thread only", "threads"},
        Fault{"ellipses lie elsewhere", "shapes"}, Fault{"lines lack their end", "line"},
        Fault{"rectangles are one wider", "rectangle"}, Fault{"borders are one higher", "rectangle border"},
        Fault{"polygons are moved", "polygon"}, Fault{"edges are moved", "polygon outline"},
        Fault{"ellipses are one smaller", "ellipse"}, Fault{"ellipse borders are one smaller", "ellipse border"},
        Fault{"pens are mirrored", "pens"}, Fault{"parts are wholes", "parts"}, Fault{"colours of 15 bits", "colours"},
        Fault{"borders do not blend", "blending"}, Fault{"borders blend twice in corners", "blending"},
        Fault{"patterns begin at the surface", "patterns"}, Fault{"patterns do not blend", "patterns"}));

TEST(Check, FindsNothingWhereNoFaultIsChosen)
{
    const CheckRun run = run_check("zuvo_check_faulty", "--scenes 60");
    EXPECT_EQ(run.outcome.status, 0) << run.outcome.output;
}

TEST(Check, SaysWhereThePlatformCrashed)
{
    const CheckRun run = run_check("zuvo_check_faulty", "--scenes 5", "ZUVO_FAULT='crashes on extremes'");
    EXPECT_NE(run.outcome.status, 0);
    EXPECT_NE(run.outcome.output.find("zuvo_check: the platform crashed while this was examined: extremes"),
              std::string::npos) << run.outcome.output;
}

TEST(Check, ShowsWhatDiffersOnAPageOfItsOwn)
{
    const std::string path = temporary_file("check.html");
    run_check("zuvo_check_faulty", "--scenes 20 --html '" + path + "'", "ZUVO_FAULT='rectangles are one wider'");
    std::ifstream file(path);
    const std::string page((std::istreambuf_iterator<char>(file)), {});
    std::remove(path.c_str());
    EXPECT_NE(page.find("To be looked at first: <b>rectangle</b>"), std::string::npos);
    for (const char* caption : {"expected", "drawn", "difference"})
        EXPECT_NE(page.find(std::string("<img alt=\"") + caption + "\" src=\"data:image/png;base64,iVBOR"), std::string::npos);
    EXPECT_EQ(page.find("http"), std::string::npos) << "the page needs nothing else";
}

TEST(Check, ExaminesWhatItIsAskedFor)
{
    const CheckRun run = run_check("zuvo_check", "--only order --only pens --scenes 3");
    EXPECT_EQ(run.outcome.status, 0) << run.outcome.output;
    EXPECT_EQ(run.report.at("families").size(), 2u);
}

TEST(Check, AnswersQuestionsWithoutStartingAnything)
{
    const std::string dead = "DFBARGS=system=nothing";
    EXPECT_EQ(run_command("zuvo_check --version", dead).output, "zuvo_check 1.0.0\n");
    EXPECT_EQ(run_command("zuvo_check --help", dead).status, 0);
    EXPECT_NE(run_command("zuvo_check --list", dead).output.find("stale handles"), std::string::npos);
}

TEST(Check, RefusesWhatItDoesNotKnow)
{
    for (const char* arguments : {"--level best", "--only circles", "--scenes 0", "--scenes", "--nothing", "word"}) {
        const Outcome outcome = run_command(std::string("zuvo_check ") + arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_EQ(lines_of(outcome.output).size(), 1u) << outcome.output;
    }
    const Outcome outcome = run_command("zuvo_check --only handles --html /nowhere/page.html" + headless);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_NE(outcome.output.find("cannot write /nowhere/page.html"), std::string::npos) << outcome.output;
}

TEST(Check, NeedsAnEngine)
{
    const Outcome outcome = run_command("zuvo_check --zuvo:dtk=off" + headless);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "zuvo_check: the platform has no drawing engine\n");
}

} // namespace
