#include "hardware/ready_toolkit.h"

namespace {

TEST_F(HardwarePrimitives, FillAndOutlineARectangle)
{
    const Toolkit toolkit = ready(255, 255);
    EXPECT_EQ(rectangle(toolkit, both), 0);
    EXPECT_EQ(calls(), R"(
dfb.WaitIdle()
target.GetID()
zuvo_dtk_set_output_surface(7, 102)
zuvo_dtk_set_fill_color(7, 5, 6, 7, 255)
zuvo_dtk_draw_rectangle(7, [8 9 20 10], 0x30)
target.GetID()
zuvo_dtk_set_output_surface(7, 102)
zuvo_dtk_set_pen(7, [-2,-1 2,-1 2,1 -2,1], ff010203)
zuvo_dtk_draw_rectangle_border(7, [8 9 20 10], 0x30)
)");
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, BlendBothPartsOfARectangleAlike)
{
    const Toolkit toolkit = ready(254, 255);
    EXPECT_EQ(rectangle(toolkit, both), 0);
    EXPECT_EQ(calls(), R"(
target.GetID()
zuvo_dtk_set_output_surface(7, 102)
zuvo_dtk_set_fill_color(7, 5, 6, 7, 255)
zuvo_dtk_draw_rectangle(7, [8 9 20 10], 0x31)
target.GetID()
zuvo_dtk_set_output_surface(7, 102)
zuvo_dtk_set_pen(7, [-2,-1 2,-1 2,1 -2,1], fe010203)
zuvo_dtk_draw_rectangle_border(7, [8 9 20 10], 0x31)
)");
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, LookOnlyAtTheColoursThatTheyUse)
{
    const Toolkit toolkit = ready(0, 255);
    EXPECT_EQ(rectangle(toolkit, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls_with("draw"), "\nzuvo_dtk_draw_rectangle(7, [8 9 20 10], 0x30)\n");
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 255);
    toolkit->SetFillColor(toolkit.get(), 1, 2, 3, 0);
    EXPECT_EQ(ellipse(toolkit, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls_with("draw"), "\nzuvo_dtk_draw_ellipse_border(7, [8 9 20 10], 0x30)\n");
    EXPECT_EQ(ellipse(toolkit, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls_with("draw"), "\nzuvo_dtk_draw_ellipse(7, [8 9 20 10], 0x31)\n");
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, FillARectangleWithAPattern)
{
    const Toolkit toolkit = ready(255, 255);
    set_pattern(toolkit);
    EXPECT_EQ(rectangle(toolkit, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls(), R"(
target.GetID()
zuvo_dtk_set_output_surface(7, 102)
zuvo_dtk_set_fill_pattern(7, 555)
zuvo_dtk_draw_rectangle(7, [8 9 20 10], 0x31)
)");
    EXPECT_EQ(rectangle(toolkit, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls_with("draw"), "\nzuvo_dtk_draw_rectangle_border(7, [8 9 20 10], 0x30)\n");
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, FillAndOutlineAnEllipseWithoutWaiting)
{
    const Toolkit toolkit = ready(255, 255);
    EXPECT_EQ(ellipse(toolkit, both), 0);
    EXPECT_EQ(calls(), R"(
target.GetID()
zuvo_dtk_set_output_surface(7, 102)
zuvo_dtk_set_fill_color(7, 5, 6, 7, 255)
zuvo_dtk_draw_ellipse(7, [8 9 20 10], 0x30)
target.GetID()
zuvo_dtk_set_output_surface(7, 102)
zuvo_dtk_set_pen(7, [-2,-1 2,-1 2,1 -2,1], ff010203)
zuvo_dtk_draw_ellipse_border(7, [8 9 20 10], 0x30)
)");
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, BlendAPatternedEllipse)
{
    const Toolkit toolkit = ready(255, 255);
    set_pattern(toolkit);
    EXPECT_EQ(ellipse(toolkit, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls_with("zuvo"), R"(
zuvo_dtk_set_output_surface(7, 102)
zuvo_dtk_set_fill_pattern(7, 555)
zuvo_dtk_draw_ellipse(7, [8 9 20 10], 0x31)
)");
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, LeaveOutlinesOutWithoutAPen)
{
    const Toolkit toolkit = hardware_toolkit();
    EXPECT_EQ(rectangle(toolkit, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(ellipse(toolkit, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(polygon(toolkit, 1, DTKHDDVD_STROKE), 0);
    EXPECT_EQ(calls(), "\ndfb.WaitIdle()\n");
}

TEST_F(HardwarePrimitives, DrawNothingWithoutFlags)
{
    const Toolkit toolkit = ready(1, 1);
    for (u32 flags : {0u, 4u}) {
        EXPECT_EQ(rectangle(toolkit, flags), 0);
        EXPECT_EQ(ellipse(toolkit, flags), 0);
        EXPECT_EQ(polygon(toolkit, 1, flags), 0);
        EXPECT_EQ(toolkit->Ellipse(toolkit.get(), nullptr, flags), 0) << "no box is needed";
        EXPECT_EQ(calls(), "\ndfb.WaitIdle()\n") << "the rectangle never blends here and waits";
    }
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, IgnoreAFailingWait)
{
    const Toolkit toolkit = ready(255, 255);
    transcript().fail_every("dfb.WaitIdle", refusal);
    const Outcome outcome = run([&] { return rectangle(toolkit, both); });
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.error, "");
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, AskABlendedPenForItsSize)
{
    static int questions;
    const Toolkit toolkit = ready(128, 255);
    toolkit->priv->pen->GetSize = [](DTKHDDVDPen*, int*, int*) {
        questions++;
        return refusal;
    };
    for (u8 alpha : {u8(255), u8(128)}) {
        questions = 0;
        toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, alpha);
        EXPECT_EQ(rectangle(toolkit, DTKHDDVD_STROKE), 0);
        EXPECT_EQ(ellipse(toolkit, DTKHDDVD_STROKE), 0);
        EXPECT_EQ(polygon(toolkit, 1, DTKHDDVD_STROKE), 0);
        EXPECT_EQ(questions, alpha == 255 ? 0 : 2) << "rectangle and ellipse, and the answer does not matter";
    }
    drop_pen(toolkit);
}

TEST_F(HardwarePrimitives, NeverShowTheEngineTheCallersMemory)
{
    const Toolkit toolkit = ready(255, 255);
    for (u32 flags : {DTKHDDVD_FILL, DTKHDDVD_STROKE}) {
        rectangle(toolkit, flags);
        EXPECT_NE(fake::platform().last_memory, &box);
        ellipse(toolkit, flags);
        EXPECT_NE(fake::platform().last_memory, &box);
    }
    polygon(toolkit, 1, DTKHDDVD_FILL);
    EXPECT_NE(fake::platform().last_memory, triangle.data());
    drop_pen(toolkit);
}

} // namespace
