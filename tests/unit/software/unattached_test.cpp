#include "support/fixture.h"

namespace {

constexpr u32 both = DTKHDDVD_STROKE | DTKHDDVD_FILL;
const DFBRectangle box = {5, 6, 12, 13};
const DFBPoint triangle[] = {{5, 6}, {9, 8}, {3, 7}};

/// Toolkits that were made without a surface or have lost theirs.
class Unattached : public Fakes {
protected:
    Unattached() { dfb.references = 10; }

    static void expect_drawing_to_fail(const Toolkit& toolkit)
    {
        using Draw = std::function<DFBResult()>;
        DTKHDDVD* thiz = toolkit.get();
        const std::pair<const char*, Draw> primitives[] = {
            {"DTKHDDVD_Line", [=] { return thiz->Line(thiz, 1, 2, 3, 4); }},
            {"DTKHDDVD_Rectangle", [=] { return thiz->Rectangle(thiz, &box, both); }},
            {"DTKHDDVD_Polygon", [=] { return thiz->Polygon(thiz, triangle, 3, 1, both); }},
            {"DTKHDDVD_Ellipse", [=] { return thiz->Ellipse(thiz, &box, both); }},
        };
        for (const auto& primitive : primitives) {
            const Outcome outcome = run(primitive.second);
            EXPECT_EQ(outcome.result, own_failure) << primitive.first;
            EXPECT_EQ(outcome.error, complaint(primitive.first, own_failure_text)) << primitive.first;
        }
    }

    static void try_all_colours(const Toolkit& toolkit)
    {
        for (u8 alpha : {u8(255), u8(100)}) {
            toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, alpha);
            toolkit->SetFillColor(toolkit.get(), 1, 2, 3, alpha);
            expect_drawing_to_fail(toolkit);
        }
    }
};

TEST_F(Unattached, ToolkitsDrawNothing)
{
    for (u8 use_scratch_pad : {u8(0), u8(1)}) {
        DTKHDDVD* made = nullptr;
        EXPECT_EQ(CreateDrawingToolkit_HDDVD_SW(&dfb, nullptr, use_scratch_pad, &made), 0);
        const Toolkit toolkit(made);
        try_all_colours(toolkit);
    }
}

TEST_F(Unattached, DetachedToolkitsDrawNothing)
{
    for (u8 use_scratch_pad : {u8(0), u8(1)}) {
        const Toolkit toolkit = software_toolkit(use_scratch_pad);
        set_pen(toolkit, 3, 3);
        EXPECT_EQ(DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get()), 0);
        try_all_colours(toolkit);
        drop_pen(toolkit);
    }
}

TEST_F(Unattached, ToolkitsDrawOnceTheyAreAttached)
{
    const Toolkit toolkit = software_toolkit(1);
    DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get());
    EXPECT_EQ(AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get(), &screen), 0);
    calls();
    EXPECT_EQ(toolkit->Line(toolkit.get(), 1, 2, 3, 4), 0);
    EXPECT_EQ(calls_with("DrawLine"), "\ntarget2.DrawLine(1, 2, 3, 4)\n");
}

} // namespace
