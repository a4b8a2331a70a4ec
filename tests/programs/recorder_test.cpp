#include <gmock/gmock.h>

#include "traced.h"

/// dtk_trace, with programs of the build directory.
namespace {

using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class EachBackEnd : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(, EachBackEnd, testing::Values("", " engine"));

} // namespace

TEST_P(EachBackEnd, EveryFunctionThatIsCalledByNameIsRecorded)
{
    const Traced traced("traced_calls functions" + std::string(GetParam()));
    EXPECT_EQ(traced.outcome.status, 0) << traced.outcome.output;
    const auto lines = traced.lines();
    const auto count = counts(lines);
    for (const char* name :
         {"CreateDrawingToolkit_HDDVD", "AttachDFBSurfaceToDrawingToolkit_HDDVD", "DetachDFBSurfaceToDrawingToolkit_HDDVD",
          "DTKHDDVD_AddRef", "DTKHDDVD_SetStrokeColor", "DTKHDDVD_SetFillColor", "DTKHDDVD_SetFillPattern", "DTKHDDVD_CreatePen",
          "DTKHDDVD_Rectangle", "DTKHDDVD_Polygon", "DTKHDDVD_Ellipse", "DTKHDDVDPen_AddRef", "DTKHDDVDPen_GetSize",
          "DTKHDDVDPen_GetSurface", "DTKHDDVDPen_GetShape", "ComputeSize", "render_pen_shape_a8", "render_pen_shape_lut8",
          "stamp_line", "stamp_rectangle", "stamp_ellipse", "fill_ellipse_argb", "fill_ellipse_lut8", "outline_ellipse_argb"})
        EXPECT_EQ(count.count(name) ? count.at(name) : 0, 1) << name;
    EXPECT_EQ(count.at("DTKHDDVD_SetPen"), 2);
    EXPECT_EQ(count.at("DTKHDDVD_Release"), 2);
    EXPECT_EQ(count.at("DTKHDDVDPen_Release"), 2);
    EXPECT_THAT(lines, Contains("DTKHDDVD_Line t1 3,4 150,100"));
    EXPECT_THAT(lines, Contains("DTKHDDVD_Line - 1,2 3,4"));
    EXPECT_THAT(lines, Contains("result 1 0x00000014"));
    EXPECT_THAT(lines, Contains("DTKHDDVD_Polygon t1 5,5;60,10;30,70; 1 2"));
    EXPECT_THAT(lines, Contains("DTKHDDVD_CreatePen t1 -2,-2,2,-2,2,2,-2,2 p1"));
    EXPECT_EQ(traced.replay("--backend software").status, 0);
    EXPECT_EQ(traced.replay("--backend hardware").status, 0);
}

TEST_P(EachBackEnd, EveryCallThroughTheRecordsIsRecordedOnce)
{
    const Traced traced("traced_calls slots" + std::string(GetParam()));
    EXPECT_EQ(traced.outcome.status, 0) << traced.outcome.output;
    EXPECT_EQ(traced.text(), "dtktrace 1\n"
                             "surface s1 160 120 ARGB 0x00000000\n"
                             "Clear s1 #102030ff\n"
                             "CreateDrawingToolkit_HDDVD dfb s1 1 t1\n"
                             "Clear s1 #405060ff\n"
                             "DTKHDDVD_CreatePen t1 -2,-2,2,-2,2,2,-2,2 p1\n"
                             "DTKHDDVD_AddRef t1\n"
                             "DTKHDDVD_SetPen t1 p1\n"
                             "DTKHDDVD_SetStrokeColor t1 #f0e0d0ff\n"
                             "DTKHDDVD_SetFillColor t1 #306090ff\n"
                             "DTKHDDVD_Line t1 3,4 150,100\n"
                             "DTKHDDVD_Rectangle t1 20,20,60,40 3\n"
                             "surface s2 4 3 ARGB 0x00000000\n"
                             "pixels s2 4x3x4\n"
                             "    ff102030 ff102030 ff102030 ff102030\n"
                             "    ff102030 ffc04020 ffc04020 ff102030\n"
                             "    ff102030 ff102030 ff102030 ff102030\n"
                             "DTKHDDVD_SetFillPattern t1 s2\n"
                             "DTKHDDVD_Polygon t1 5,5;60,10;30,70; 1 2\n"
                             "DTKHDDVD_Ellipse t1 20,20,60,40 2\n"
                             "Flip s1 - 0x00000000\n"
                             "DTKHDDVD_Rectangle t1 20,20,60,40 2\n"
                             "DTKHDDVDPen_AddRef p1\n"
                             "DTKHDDVDPen_GetSize p1\n"
                             "DTKHDDVDPen_Release p1\n"
                             "DTKHDDVD_SetPen t1 -\n"
                             "DTKHDDVDPen_Release p1\n"
                             "DTKHDDVD_Release t1\n"
                             "DTKHDDVD_Release t1\n"
                             "end\n");
}

TEST_P(EachBackEnd, TheProgramSeesItsSlotsAgain)
{
    const Traced traced("traced_calls looks" + std::string(GetParam()));
    EXPECT_EQ(traced.outcome.status, 0) << traced.outcome.output;
    const auto count = counts(traced.lines());
    EXPECT_EQ(count.at("Flip"), 1);
}

TEST(Recording, TakesATextureAgainWhenItIsDrawnWithIfThatIsAsked)
{
    EXPECT_THAT(Traced("traced_calls slots").text(), Not(HasSubstr("ffffff00")));
    EXPECT_THAT(Traced("traced_calls slots", "--textures drawn").text(),
                HasSubstr("pixels s2 4x3x4\n"
                          "    ffffff00 ffffff00 ffffff00 ffffff00\n"
                          "    ffffff00 ffffff00 ffffff00 ffffff00\n"
                          "    ffffff00 ffffff00 ffffff00 ffffff00\n"
                          "DTKHDDVD_Rectangle t1 20,20,60,40 2\n"));
}

TEST(Recording, HoldsAsManyFramesAsAreAskedFor)
{
    const Traced traced("test_dtkhd 2> /dev/null & sleep 2; kill $!; wait", "--frames 3");
    EXPECT_EQ(counts(traced.lines()).at("Flip"), 3);
    EXPECT_EQ(traced.lines().back(), "end");
    EXPECT_THAT(traced.replay().output, HasSubstr("\n3 frames: "));
}

TEST(Recording, OfAProgramThatIsKilledHoldsItsLastCall)
{
    const Traced traced("traced_calls killed");
    EXPECT_EQ(traced.outcome.status, 137);
    const auto lines = traced.lines();
    EXPECT_EQ(counts(lines).at("DTKHDDVD_SetStrokeColor"), 20000);
    const Outcome outcome = traced.replay("--backend software 2>&1 > /dev/null");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "dtk_replay: " + traced.path + " ends with call 20003, where its program was ended\n");
}

TEST(Recording, OfThreadsAndChildrenIsWhole)
{
    EXPECT_EQ(counts(Traced("traced_calls threads").lines()).at("Flip"), 1000);
    const auto lines = Traced("traced_calls forks").lines();
    EXPECT_EQ(counts(lines).at("DTKHDDVD_SetFillColor"), 1);
    EXPECT_EQ(lines.back(), "end");
}

TEST(Recording, SaysWhatItCannotDo)
{
    EXPECT_EQ(run("dtk_trace").output, "dtk_trace: PROGRAM is required; try --help\n");
    EXPECT_EQ(run("dtk_trace -o /dev/full true").output, "dtk_trace: cannot write /dev/full: it is no regular file\n");
    EXPECT_THAT(run("dtk_trace -o /nonexistent/trace true").output,
                StartsWith("dtk_trace: cannot write /nonexistent/trace: No such file"));
    const Traced traced("no_such_program");
    EXPECT_THAT(traced.outcome.output, EndsWith("/no_such_program: No such file or directory\n"));
    EXPECT_EQ(traced.outcome.status, 1);
}

/// The shell that starts them makes no call of the toolkit.
TEST(Recording, GoesToTheFirstProcessAlone)
{
    const std::string path = temporary_file("two.dtk"), program = "'" PROGRAMS "'/traced_calls slots";
    const Outcome outcome = run("dtk_trace -o " + path + " sh -c \"" + program + "; " + program + "\"");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, EndsWith("dtk_trace: cannot record into " + path + ": it holds the calls of another process\n"));
    EXPECT_EQ(counts(lines_of(run("dtk_replay --text - " + path).output)).at("Flip"), 1);
    std::filesystem::remove(path);
}
