#include "hardware/ready_toolkit.h"

namespace {

TEST_F(HardwarePrimitives, FillAPolygonWithAPatternAndDoNotBlendItsOutline)
{
    const Toolkit toolkit = ready(255, 255);
    set_pattern(toolkit);
    EXPECT_EQ(polygon(toolkit, 1, both), 0);
    EXPECT_EQ(calls(), R"(
target.GetID()
zuvo_dtk_set_output_surface(7, 102)
zuvo_dtk_set_fill_pattern(7, 555)
zuvo_dtk_draw_polygon(7, [5,6 20,8 9,30 ], 3, 0)
target.GetID()
zuvo_dtk_set_output_surface(7, 102)
zuvo_dtk_set_pen(7, [-2,-1 2,-1 2,1 -2,1], ff010203)
zuvo_dtk_draw_line(7, 5, 6, 20, 8, 0x0)
zuvo_dtk_draw_line(7, 20, 8, 9, 30, 0x0)
zuvo_dtk_draw_line(7, 9, 30, 5, 6, 0x0)
)");
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, HandTheBlendDecisionToAPolygonsSegments)
{
    const Toolkit toolkit = ready(255, 254);
    EXPECT_EQ(polygon(toolkit, 0, both), 0);
    EXPECT_EQ(calls_with("draw"), R"(
zuvo_dtk_draw_polygon(7, [5,6 20,8 9,30 ], 3, 0)
zuvo_dtk_draw_line(7, 5, 6, 20, 8, 0x1)
zuvo_dtk_draw_line(7, 20, 8, 9, 30, 0x1)
)");
    EXPECT_EQ(polygon(toolkit, 0, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls_with("draw"), R"(
zuvo_dtk_draw_line(7, 5, 6, 20, 8, 0x0)
zuvo_dtk_draw_line(7, 20, 8, 9, 30, 0x0)
)");
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, DrawNothingForASinglePoint)
{
    const Toolkit toolkit = ready(1, 1);
    for (u32 count : {0u, 1u})
        EXPECT_EQ(toolkit->Polygon(toolkit.get(), triangle.data(), count, 1, both), 0);
    EXPECT_EQ(calls(), "\n");
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, DrawALineWithThePen)
{
    const Toolkit toolkit = ready(255, 1);
    EXPECT_EQ(toolkit->Line(toolkit.get(), 1, -2, 3, 4), 0);
    EXPECT_EQ(calls(), R"(
target.GetID()
zuvo_dtk_set_output_surface(7, 102)
zuvo_dtk_set_pen(7, [-2,-1 2,-1 2,1 -2,1], ff010203)
zuvo_dtk_draw_line(7, 1, -2, 3, 4, 0x30)
)");
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 254);
    EXPECT_EQ(toolkit->Line(toolkit.get(), 1, -2, 3, 4), 0);
    EXPECT_EQ(calls_with("draw"), "\nzuvo_dtk_draw_line(7, 1, -2, 3, 4, 0x31)\n");
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, ReportALineWithoutAPen)
{
    const Toolkit toolkit = hardware_toolkit();
    const Outcome outcome = run([&] { return toolkit->Line(toolkit.get(), 1, 2, 3, 4); });
    EXPECT_EQ(outcome.result, own_failure);
    EXPECT_EQ(outcome.error, complaint("DTKHDDVD_Line", own_failure_text));
    EXPECT_EQ(calls_with("draw_line"), "\n");
}

TEST_F(HardwarePrimitives, CopyPolygonsOfAnyLength)
{
    const Toolkit toolkit = ready(255, 255);
    const std::vector<DFBPoint> points(100000, DFBPoint{3, 4});
    EXPECT_EQ(toolkit->Polygon(toolkit.get(), points.data(), 100000, 1, DTKHDDVD_FILL), 0);
    EXPECT_NE(calls_with("], 100000, 0)"), "\n");
    drop_pen(toolkit);
}

} // namespace
