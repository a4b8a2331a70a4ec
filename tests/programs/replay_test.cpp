#include <algorithm>

#include <gmock/gmock.h>

#include "traced.h"

/// dtk_replay, with the traces of programs of the build directory and with those that are kept.
namespace {

using testing::SizeIs;

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
