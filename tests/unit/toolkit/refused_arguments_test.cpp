#include "support/fixture.h"

/// What must not be NULL is refused before anything happens; out-arguments that nobody wants are left out.

namespace {

constexpr auto invalid_argument = DFBResult(8);
constexpr u32 both = DTKHDDVD_STROKE | DTKHDDVD_FILL;

class RefusedArguments : public Fakes {
protected:
    /// Both back ends refuse it with one line.
    void expect_complaint(const std::string& operation, const std::function<DFBResult(DTKHDDVD*)>& operate)
    {
        for (const bool is_hardware : {false, true}) {
            const Toolkit toolkit = is_hardware ? hardware_toolkit() : software_toolkit(0);
            const Outcome outcome = run([&] { return operate(toolkit.get()); });
            EXPECT_EQ(outcome.result, invalid_argument);
            EXPECT_EQ(outcome.error, complaint(operation, "An invalid argument has been specified"));
            EXPECT_EQ(calls_with("target"), "\n") << "nothing is drawn";
        }
    }
};

TEST_F(RefusedArguments, OfCreations)
{
    for (const auto create : {CreateDrawingToolkit_HDDVD_SW, CreateDrawingToolkit_HDDVD_HW}) {
        DTKHDDVD* toolkit = reinterpret_cast<DTKHDDVD*>(this);
        EXPECT_EQ(create(&dfb, &screen, 0, nullptr), invalid_argument);
        EXPECT_EQ(create(nullptr, &screen, 0, &toolkit), invalid_argument);
        EXPECT_EQ(toolkit, nullptr);
    }
    EXPECT_EQ(calls(), "\n");
}

TEST_F(RefusedArguments, OfAttachesAndDetaches)
{
    fake::platform().engine_handle = 7;
    DTKHDDVD* without_directfb = nullptr;
    ASSERT_EQ(CreateDrawingToolkit_HDDVD_HW(nullptr, nullptr, 0, &without_directfb), 0);
    for (const auto attach : {AttachDFBSurfaceToDrawingToolkit_HDDVD_SW, AttachDFBSurfaceToDrawingToolkit_HDDVD_HW}) {
        EXPECT_EQ(attach(nullptr, &screen), invalid_argument);
        EXPECT_EQ(attach(without_directfb, nullptr), invalid_argument);
        EXPECT_EQ(attach(without_directfb, &screen), invalid_argument);
    }
    EXPECT_EQ(DetachDFBSurfaceToDrawingToolkit_HDDVD_SW(nullptr), thiz_null);
    EXPECT_EQ(DetachDFBSurfaceToDrawingToolkit_HDDVD_HW(nullptr), thiz_null);
    EXPECT_EQ(calls(), "\n");
    without_directfb->Release(without_directfb);
}

TEST_F(RefusedArguments, OfPrimitives)
{
    expect_complaint("DTKHDDVD_Rectangle", [](DTKHDDVD* thiz) { return thiz->Rectangle(thiz, nullptr, both); });
    expect_complaint("DTKHDDVD_Ellipse", [](DTKHDDVD* thiz) { return thiz->Ellipse(thiz, nullptr, both); });
    expect_complaint("DTKHDDVD_Polygon", [](DTKHDDVD* thiz) { return thiz->Polygon(thiz, nullptr, 3, 1, both); });
}

TEST_F(RefusedArguments, OfPenCreations)
{
    static const DTKHDDVDPenShape shape = {0, 0, 2, 0, 2, 2, 0, 2};
    expect_complaint("DTKHDDVD_CreatePen", [](DTKHDDVD* thiz) { return thiz->CreatePen(thiz, &shape, nullptr); });
    expect_complaint("DTKHDDVD_CreatePen", [](DTKHDDVD* thiz) {
        DTKHDDVDPen* pen = nullptr;
        return thiz->CreatePen(thiz, nullptr, &pen);
    });
}

TEST_F(RefusedArguments, OfPenCreationsWithoutDirectFB)
{
    static const DTKHDDVDPenShape shape = {0, 0, 2, 0, 2, 2, 0, 2};
    DTKHDDVD* toolkit = nullptr;
    ASSERT_EQ(CreateDrawingToolkit_HDDVD_SW(nullptr, nullptr, 0, &toolkit), 0);
    auto* pen = reinterpret_cast<DTKHDDVDPen*>(this);
    const Outcome outcome = run([&] { return toolkit->CreatePen(toolkit, &shape, &pen); });
    EXPECT_EQ(outcome.result, invalid_argument);
    EXPECT_EQ(outcome.error, complaint("DTKHDDVD_CreatePen", "An invalid argument has been specified"));
    EXPECT_EQ(pen, nullptr);
    toolkit->Release(toolkit);
}

TEST_F(RefusedArguments, OfPens)
{
    const Toolkit toolkit = hardware_toolkit();
    const Pen made = pen(toolkit, 3, 2);
    EXPECT_EQ(DTKHDDVDPen_GetSurface_SW(made.get(), nullptr), invalid_argument);
    EXPECT_EQ(DTKHDDVDPen_GetShape(made.get(), nullptr), invalid_argument);

    int width = 0, height = 0;
    EXPECT_EQ(made->GetSize(made.get(), &width, nullptr), 0);
    EXPECT_EQ(made->GetSize(made.get(), nullptr, &height), 0);
    EXPECT_EQ(width, 4);
    EXPECT_EQ(height, 3);
}

} // namespace
