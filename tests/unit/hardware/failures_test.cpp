#include "support/fixture.h"

namespace {

constexpr u32 both = DTKHDDVD_STROKE | DTKHDDVD_FILL;
constexpr auto engine_error = DFBResult(0xab);

/// One engine call that fails, what is printed before the operation's own complaint, and how far the operation gets.
struct Case {
    const char* failing;
    const char* messages;
    const char* last_call;
};

class HardwareFailures : public Fakes {
protected:
    using Draw = std::function<DFBResult(DTKHDDVD*)>;

    void expect_messages(const std::string& operation, bool has_pattern, const std::vector<Case>& cases,
                         const Draw& draw)
    {
        const Toolkit toolkit = hardware_toolkit();
        set_pen(toolkit, 3, 3);
        if (has_pattern)
            set_texture(toolkit);
        for (const Case& each : cases) {
            transcript().reset();
            transcript().fail_every(each.failing, engine_error);
            const Outcome outcome = run([&] { return draw(toolkit.get()); });
            EXPECT_EQ(outcome.result, own_failure) << each.failing;
            EXPECT_EQ(outcome.error, each.messages + complaint(operation, own_failure_text)) << each.failing;
            EXPECT_EQ(outcome.output, "");
            const std::string last = transcript().lines().back();
            EXPECT_EQ(last.substr(0, last.find('(')), each.last_call) << each.failing;
        }
        transcript().reset();
        drop_pen(toolkit);
    }
};

TEST_F(HardwareFailures, OfALine)
{
    const std::vector<Case> cases = {
        {"zuvo_dtk_set_output_surface", "DTKHDDVD_Line: zuvo_dtk_set_output_surface with err 0xab\n",
         "zuvo_dtk_draw_line"},
        {"zuvo_dtk_set_pen", "DTKHDDVD_Line: zuvo_dtk_set_pen with err 0xab\n", "zuvo_dtk_draw_line"},
        {"zuvo_dtk_draw_line", "DTKHDDVD_Line: zuvo_dtk_draw_line with err 0xab\n", "zuvo_dtk_draw_line"},
        {"zuvo",
         "DTKHDDVD_Line: zuvo_dtk_set_output_surface with err 0xab\n"
         "DTKHDDVD_Line: zuvo_dtk_set_pen with err 0xab\n"
         "DTKHDDVD_Line: zuvo_dtk_draw_line with err 0xab\n",
         "zuvo_dtk_draw_line"},
    };
    expect_messages("DTKHDDVD_Line", false, cases, [](DTKHDDVD* thiz) { return thiz->Line(thiz, 1, 2, 3, 4); });
}

const std::vector<Case> rectangle_cases = {
    {"zuvo_dtk_set_output_surface", "DTKHDDVD_Rectangle: zuvo_dtk_set_output_surface with err 0xab\n",
     "zuvo_dtk_draw_rectangle"},
    {"zuvo_dtk_set_fill", "DTKHDDVD_Rectangle: zuvo_dtk_set_fill_pattern failed with err 0xab\n",
     "zuvo_dtk_draw_rectangle"},
    {"zuvo_dtk_draw_rectangle(", "DTKHDDVD_Rectangle: zuvo_dtk_draw_rectangle failed with err 0xab\n",
     "zuvo_dtk_draw_rectangle"},
    {"zuvo_dtk_set_pen", "DTKHDDVD_Rectangle: zuvo_dtk_set_pen with err 0xab\n", "zuvo_dtk_draw_rectangle_border"},
    {"zuvo_dtk_draw_rectangle_border", "DTKHDDVD_Rectangle: zuvo_dtk_draw_rectangle failed with err 0xab\n",
     "zuvo_dtk_draw_rectangle_border"},
    {"zuvo",
     "DTKHDDVD_Rectangle: zuvo_dtk_set_output_surface with err 0xab\n"
     "DTKHDDVD_Rectangle: zuvo_dtk_set_fill_pattern failed with err 0xab\n"
     "DTKHDDVD_Rectangle: zuvo_dtk_draw_rectangle failed with err 0xab\n",
     "zuvo_dtk_draw_rectangle"},
};

TEST_F(HardwareFailures, OfARectangle)
{
    const auto draw = [](DTKHDDVD* thiz) {
        const DFBRectangle rect = {1, 2, 3, 4};
        return thiz->Rectangle(thiz, &rect, both);
    };
    expect_messages("DTKHDDVD_Rectangle", false, rectangle_cases, draw);
    expect_messages("DTKHDDVD_Rectangle", true, rectangle_cases, draw);
}

std::vector<Case> ellipse_cases(const char* fill_message)
{
    return {
        {"zuvo_dtk_set_output_surface", "DTKHDDVD_Ellipse: zuvo_dtk_set_output_surface with err 0xab\n",
         "zuvo_dtk_draw_ellipse"},
        {"zuvo_dtk_set_fill", "DTKHDDVD_Ellipse: zuvo_dtk_set_fill_pattern failed with err 0xab\n",
         "zuvo_dtk_draw_ellipse"},
        {"zuvo_dtk_draw_ellipse(", fill_message, "zuvo_dtk_draw_ellipse"},
        {"zuvo_dtk_set_pen", "DTKHDDVD_Ellipse: zuvo_dtk_set_pen with err 0xab\n", "zuvo_dtk_draw_ellipse_border"},
        {"zuvo_dtk_draw_ellipse_border", "DTKHDDVD_Ellipse: zuvo_dtk_draw_rectangle failed with err 0xab\n",
         "zuvo_dtk_draw_ellipse_border"},
    };
}

TEST_F(HardwareFailures, OfAnEllipse)
{
    const auto draw = [](DTKHDDVD* thiz) {
        const DFBRectangle rect = {1, 2, 3, 4};
        return thiz->Ellipse(thiz, &rect, both);
    };
    expect_messages("DTKHDDVD_Ellipse", false,
                    ellipse_cases("DTKHDDVD_Ellipse: zuvo_dtk_draw_rectangle failed with err 0xab\n"), draw);
    expect_messages("DTKHDDVD_Ellipse", true,
                    ellipse_cases("DTKHDDVD_Ellipse: zuvo_dtk_draw_ellipse failed with err 0xab\n"), draw);
}

std::vector<Case> polygon_cases(const char* fill_message)
{
    return {
        {"zuvo_dtk_set_output_surface", "DTKHDDVD_Polygon: zuvo_dtk_set_output_surface with err 0xab\n",
         "zuvo_dtk_draw_polygon"},
        {"zuvo_dtk_set_fill", "DTKHDDVD_Polygon: zuvo_dtk_set_fill_pattern failed with err 0xab\n",
         "zuvo_dtk_draw_polygon"},
        {"zuvo_dtk_draw_polygon", fill_message, "zuvo_dtk_draw_polygon"},
        {"zuvo_dtk_set_pen", "DTKHDDVD_Polygon: zuvo_dtk_set_pen with err 0xab\n", "zuvo_dtk_draw_line"},
        {"zuvo_dtk_draw_line",
         "DTKHDDVD_Polygon: zuvo_dtk_draw_polygon failed with err 0xab\n"
         "DTKHDDVD_Polygon: zuvo_dtk_draw_polygon failed with err 0xab\n"
         "DTKHDDVD_Polygon: zuvo_dtk_draw_polygon failed with err 0xab\n",
         "zuvo_dtk_draw_line"},
    };
}

TEST_F(HardwareFailures, OfAPolygon)
{
    const auto draw = [](DTKHDDVD* thiz) {
        const DFBPoint points[] = {{1, 2}, {3, 4}, {5, 1}};
        return thiz->Polygon(thiz, points, 3, 1, both);
    };
    expect_messages("DTKHDDVD_Polygon", false,
                    polygon_cases("DTKHDDVD_Polygon: zuvo_dtk_draw_polygon failed with err 0xab\n"), draw);
    expect_messages("DTKHDDVD_Polygon", true,
                    polygon_cases("DTKHDDVD_Polygon: zuvo_dtk_draw_rectangle failed with err 0xab\n"), draw);
}

TEST_F(HardwareFailures, OfAnOutlineAloneDoNotStopIt)
{
    const auto draw = [](DTKHDDVD* thiz) {
        const DFBRectangle rect = {1, 2, 3, 4};
        return thiz->Rectangle(thiz, &rect, DTKHDDVD_STROKE);
    };
    const std::vector<Case> cases = {
        {"zuvo",
         "DTKHDDVD_Rectangle: zuvo_dtk_set_output_surface with err 0xab\n"
         "DTKHDDVD_Rectangle: zuvo_dtk_set_pen with err 0xab\n"
         "DTKHDDVD_Rectangle: zuvo_dtk_draw_rectangle failed with err 0xab\n",
         "zuvo_dtk_draw_rectangle_border"},
    };
    expect_messages("DTKHDDVD_Rectangle", false, cases, draw);
}

} // namespace
