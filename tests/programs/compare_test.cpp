#include <gmock/gmock.h>

#include "traced.h"

/// dtk_replay --compare, which holds the two back ends against each other.
namespace {

using testing::EndsWith;
using testing::HasSubstr;

} // namespace

TEST(Comparing, FindsWhatIsDocumentedAndCountsItByKind)
{
    const Traced traced("hello --png /dev/null");
    const Outcome outcome = traced.replay("--compare");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr(", 3 drawings\n"));
    EXPECT_THAT(outcome.output, HasSubstr("       1 differ, documented: a translucent outline upon its fill\n"));
    EXPECT_THAT(outcome.output, HasSubstr("       0 differ without being documented\n"));
    EXPECT_THAT(outcome.output, HasSubstr("the first one: call 10, DTKHDDVD_Ellipse t1 220,120,280,200 3: "));
}

TEST(Comparing, KnowsEachDocumentedKind)
{
    const std::string head = "dtktrace 1\nsurface s1 100 80 ARGB 0x0\nClear s1 #808080ff\n"
                             "surface s2 100 80 RGB32 0x0\nClear s2 #c8c8c8ff\n";
    const std::string pad = head + "CreateDrawingToolkit_HDDVD dfb s1 1 t1\nDTKHDDVD_SetFillColor t1 #ff800040\n";
    const std::string pen = "DTKHDDVD_CreatePen t1 -2,-2,2,-2,2,2,-2,2 p1\nDTKHDDVD_SetPen t1 p1\n";
    const std::string translucent = pad + pen + "DTKHDDVD_SetStrokeColor t1 #00ff0080\n";
    const std::pair<std::string, const char*> cases[] = {
        {pad + "DTKHDDVD_Polygon t1 9,9;70,20;30,60; 1 2\n", "the colour of a translucent polygon"},
        {translucent + "DTKHDDVD_Rectangle t1 20,20,40,30 3\n", "a translucent outline upon its fill"},
        {translucent + "DTKHDDVD_Polygon t1 9,9;70,20;30,60; 1 1\n", "the corners of a polygon's translucent outline"},
        {pad + "DTKHDDVD_Rectangle t1 20,20,40,30 3\n", "an outline without a pen, which the engine leaves out"},
        {head + "CreateDrawingToolkit_HDDVD dfb s2 1 t1\nDTKHDDVD_SetFillColor t1 #00000020\nDTKHDDVD_Ellipse t1 20,20,40,30 2\n",
         "blending onto RGB32"},
        {head + "CreateDrawingToolkit_HDDVD dfb s1 0 t1\nDTKHDDVD_SetFillColor t1 #ff800040\n"
                "DTKHDDVD_Rectangle t1 20,20,40,30 2\n",
         "translucency without a scratch pad"},
        {pad + pen + "DTKHDDVD_Rectangle t1 60,40,-20,-10 1\n", "0 differ without"},
    };
    const std::string path = temporary_file("kind.txt");
    for (const auto& [text, kind] : cases) {
        write_bytes(path, text + "end\n");
        const Outcome outcome = run("dtk_replay --compare " + path);
        EXPECT_EQ(outcome.status, 0) << outcome.output;
        EXPECT_THAT(outcome.output, HasSubstr(kind)) << text;
    }
    std::filesystem::remove(path);
}

/// An engine whose ellipses lie a pixel too far to the right is put before the platform's.
TEST(Comparing, EndsWithAnErrorForWhatIsNotDocumented)
{
    const Traced traced("hello --png /dev/null");
    const std::string png = temporary_file("finding.png");
    const Outcome outcome = run_command("dtk_replay --compare --png " + png + " '" + traced.path + "'",
                                        surroundings + std::string(" LD_PRELOAD=" PROGRAMS "/wrong_ellipses.so"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("       1 differ without being documented\n"));
    EXPECT_THAT(outcome.output, HasSubstr("the first undocumented one: call 10, DTKHDDVD_Ellipse t1 220,120,280,200 3: "));
    const Picture picture = read_png(png);
    EXPECT_EQ((picture.width - 16) % 3, 0u);
    EXPECT_GT(picture.width, 3 * 280u);
    std::filesystem::remove(png);
}

TEST(Comparing, FindsNothingWhereNothingDiffers)
{
    const Traced traced("df_clock --png /dev/null");
    const Outcome outcome = traced.replay("--compare");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, EndsWith("drawings\n       0 differ without being documented\n"));
}
