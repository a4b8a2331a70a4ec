#include <algorithm>

#include <gmock/gmock.h>

#include "traced.h"

/// dtk_trace and dtk_replay, with programs of the build directory.
namespace {

using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class EachBackEnd : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(, EachBackEnd, testing::Values("", " engine"));

/// The calls of a trace, and the rows of pixels between them.
struct Amount {
    std::size_t calls = 0, pixels = 0;
};

Amount amount_of(const std::vector<std::string>& lines)
{
    Amount amount;
    for (const std::string& line : lines) {
        if (line[0] == ' ')
            amount.pixels += static_cast<std::size_t>(std::count(line.begin(), line.end(), ' ')) - 3;
        else
            ++amount.calls;
    }
    return amount;
}

/// A trace of a program's picture, and that picture.
Picture replayed(const Traced& traced, const std::string& options)
{
    const std::string path = temporary_file("frame.png");
    const Outcome outcome = traced.replay("--png '" + path + "' " + options);
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    Picture picture = read_png(path);
    std::filesystem::remove(path);
    return picture;
}

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

TEST(Traces, TakeATextureAgainWhenItIsDrawnWithIfThatIsAsked)
{
    EXPECT_THAT(Traced("traced_calls slots").text(), Not(HasSubstr("ffffff00")));
    EXPECT_THAT(Traced("traced_calls slots", "--textures drawn").text(),
                HasSubstr("pixels s2 4x3x4\n"
                          "    ffffff00 ffffff00 ffffff00 ffffff00\n"
                          "    ffffff00 ffffff00 ffffff00 ffffff00\n"
                          "    ffffff00 ffffff00 ffffff00 ffffff00\n"
                          "DTKHDDVD_Rectangle t1 20,20,60,40 2\n"));
}

TEST(Traces, AreTheSameBytesAfterTheTextForm)
{
    for (const char* command : {"traced_calls functions", "traced_calls slots", "df_clock --png /dev/null",
                                "df_chart --png /dev/null", "hello --png /dev/null"}) {
        const Traced traced(command);
        const std::string text = temporary_file("trace.txt"), binary = temporary_file("again.dtk");
        EXPECT_EQ(traced.replay("--text " + text).status, 0);
        EXPECT_EQ(run("dtk_replay " + text + " --binary " + binary).output, "");
        EXPECT_GT(traced.bytes().size(), 50u);
        EXPECT_EQ(bytes_of(binary), traced.bytes()) << command;
        std::filesystem::remove(text);
        std::filesystem::remove(binary);
    }
}

/// Ten bytes a call on average, and less than its four for a pixel of a texture.
TEST(Traces, AreCompact)
{
    for (const char* command : {"df_clock --png /dev/null", "df_chart --png /dev/null", "df_paint --png /dev/null"}) {
        const Traced traced(command);
        const Amount amount = amount_of(traced.lines());
        EXPECT_GT(amount.calls, 40u);
        EXPECT_LT(traced.bytes().size(), 10 * amount.calls + 3 * amount.pixels) << command;
    }
    const Traced frames("test_dtkhd 2> /dev/null & sleep 2; kill $!; wait", "--frames 5");
    EXPECT_LT(frames.bytes().size(), 8000u) << "of five frames, about 900 calls";
    EXPECT_GT(frames.bytes().size(), 4000u);
}

TEST(Traces, HoldAsManyFramesAsAreAskedFor)
{
    const Traced traced("test_dtkhd 2> /dev/null & sleep 2; kill $!; wait", "--frames 3");
    EXPECT_EQ(counts(traced.lines()).at("Flip"), 3);
    EXPECT_EQ(traced.lines().back(), "end");
    EXPECT_THAT(traced.replay().output, HasSubstr("\n3 frames: "));
}

TEST(Traces, OfAProgramThatIsKilledHoldItsLastCall)
{
    const Traced traced("traced_calls killed");
    EXPECT_EQ(traced.outcome.status, 137);
    const auto lines = traced.lines();
    EXPECT_EQ(counts(lines).at("DTKHDDVD_SetStrokeColor"), 20000);
    const Outcome outcome = traced.replay("--backend software 2>&1 > /dev/null");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, "dtk_replay: " + traced.path + " ends with call 20003, where its program was ended\n");
}

TEST(Traces, ThatAreCutAnywhereReplayToTheirLastWholeCall)
{
    const Traced traced("traced_calls slots");
    const std::string bytes = traced.bytes(), path = temporary_file("cut.dtk");
    for (std::size_t size = 9; size < bytes.size(); size += 7) {
        write_bytes(path, bytes.substr(0, size));
        const Outcome outcome = run("dtk_replay --text /dev/null " + path);
        EXPECT_EQ(outcome.status, 0) << outcome.output;
        EXPECT_THAT(lines_of(outcome.output), SizeIs(1)) << outcome.output;
    }
    std::filesystem::remove(path);
}

TEST(Traces, ThatAreDamagedEndWithALine)
{
    const std::pair<std::string, const char*> damaged[] = {
        {"", ": the trace is empty: the program made no call of the toolkit\n"},
        {"dtktrace\x02\x0c", ": the trace has version 2, and only version 1 can be read\n"},
        {"dtktrace 7\n", ": the trace has version 7, and only version 1 can be read\n"},
        {"some other file", ": this is no trace\n"},
        {"dtktrace\x01\xff", ": the trace is damaged at byte 10: no call has the number 255\n"},
        {"dtktrace 1\nDTKHDDVD_Lime t1\n", ": line 2 is wrong: nothing is called 'DTKHDDVD_Lime'\n"},
        {"dtktrace 1\nDTKHDDVD_AddRef t1 t2\n", ": line 2 is wrong: 't2' is too much\n"},
        {"dtktrace 1\nDTKHDDVD_Line t1 3,4\n", ": line 2 is wrong: something is missing\n"},
        {"dtktrace 1\nDTKHDDVD_AddRef t1\nend\n",
         ": call 1, DTKHDDVD_AddRef, at 2: it has an object that was never made\n"},
        {"dtktrace 1\nsurface s1 70000 9 ARGB 0x0\nend\n",
         ": call 1, surface, at 2: it has a surface of impossible size\n"},
        {"dtktrace 1\nsurface s1 9 9 ARGB 0x0\nCreateDrawingToolkit_HDDVD dfb s1 1 t1\nDTKHDDVD_Release t1\n"
         "DTKHDDVD_Line t1 1,1 2,2\nend\n",
         ": call 4, DTKHDDVD_Line, at 5: it uses a toolkit that it has given back\n"},
        {"dtktrace 1\nsurface s1 9 9 ARGB 0x0\noutline_ellipse_argb s1 1,1,900,9 0xffffffff\nend\n",
         ": call 2, outline_ellipse_argb, at 3: it draws an ellipse's outline outside the surface\n"},
    };
    const std::string path = temporary_file("damaged.dtk");
    for (const auto& [content, message] : damaged) {
        write_bytes(path, content);
        const Outcome outcome = run("dtk_replay " + path);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.output, "dtk_replay: " + path + message);
    }
    std::filesystem::remove(path);
    EXPECT_EQ(run("dtk_replay /nonexistent").output, "dtk_replay: cannot read /nonexistent: No such file or directory\n");
}

TEST(Traces, OfThreadsAndChildrenAreWhole)
{
    EXPECT_EQ(counts(Traced("traced_calls threads").lines()).at("Flip"), 1000);
    const auto lines = Traced("traced_calls forks").lines();
    EXPECT_EQ(counts(lines).at("DTKHDDVD_SetFillColor"), 1);
    EXPECT_EQ(lines.back(), "end");
}

TEST(Traces, ArePlayedAsTheProgramDrew)
{
    for (const char* program : {"hello", "df_clock", "df_chart"}) {
        const std::string path = temporary_file("drawn.png");
        const Traced traced(program + (" --png " + path));
        const Picture drawn = read_png(path);
        EXPECT_EQ(replayed(traced, "--backend software").pixels, drawn.pixels) << program;
        EXPECT_EQ(replayed(traced, "--backend hardware").pixels.size(), drawn.pixels.size()) << program;
        std::filesystem::remove(path);
    }
}

TEST(Traces, CanBeEdited)
{
    const Traced traced("traced_calls slots");
    std::string text = traced.text();
    text.replace(text.find("Clear s1 #405060ff"), 18, "# another colour\n  Clear s1 #ff8000ff");
    const std::string path = temporary_file("edited.txt"), png = temporary_file("edited.png");
    write_bytes(path, text);
    EXPECT_EQ(run("dtk_replay --frame 1 --png " + png + " " + path).status, 0);
    EXPECT_EQ(read_png(png).pixels.at(0), 0xff8000u);
    for (const std::string& file : {path, png})
        std::filesystem::remove(file);
}

TEST(Traces, HaveNoFrameBehindTheirLast)
{
    const Traced traced("traced_calls slots");
    const Outcome outcome = traced.replay("--frame 3");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "dtk_replay: the trace has no more than 2 frames\n");
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

/// The traces that the benchmarks play.
class Kept : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Of, Kept, testing::Values("df_chart", "df_clock", "df_menu", "df_paint", "test_dtkhd"));

TEST_P(Kept, TracePlaysOnBothBackEndsAndGoesThroughText)
{
    const std::string path = std::string(TRACES "/") + GetParam() + ".dtk", text = temporary_file("kept.txt");
    const Outcome outcome = run("dtk_replay --compare --frame 1 '" + path + "'");
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_EQ(run("dtk_replay --text " + text + " '" + path + "'").output, "") << "it is whole";
    const std::string again = temporary_file("kept.dtk");
    EXPECT_EQ(run("dtk_replay --binary " + again + " " + text).status, 0);
    EXPECT_EQ(bytes_of(again), bytes_of(path));
    const Amount amount = amount_of(lines_of(bytes_of(text)));
    EXPECT_LT(bytes_of(path).size(), 10 * amount.calls + 3 * amount.pixels);
    std::filesystem::remove(text);
    std::filesystem::remove(again);
}
