#include "support/allocation.h"
#include "support/fixture.h"

namespace {

constexpr u32 both = DTKHDDVD_STROKE | DTKHDDVD_FILL;
const DTKHDDVDPenShape square = {-2, -2, 2, -2, 2, 2, -2, 2};

using Create = DFBResult (*)(IDirectFB*, IDirectFBSurface*, u8, DTKHDDVD**);

class NoMemory : public Fakes {
protected:
    /// Runs an operation with its n-th allocation failing.
    Outcome run_without(int n, const std::function<DFBResult()>& operation)
    {
        return run([&] {
            fake::fail_allocation(n);
            const DFBResult result = operation();
            has_failed = fake::allocation_failed();
            fake::fail_allocation(0);
            return result;
        });
    }

    /// Every primitive and state operation, none of which needs memory in software.
    static DFBResult draw_everything(DTKHDDVD* thiz)
    {
        const DFBRectangle rect = {2, 3, 14, 15};
        const DFBPoint points[] = {{1, 2}, {13, 4}, {5, 21}};
        DFBResult result = DFB_OK;
        const auto note = [&](DFBResult each) { result = result ? result : each; };
        note(thiz->AddRef(thiz));
        note(thiz->Release(thiz));
        note(thiz->Rectangle(thiz, &rect, both));
        note(thiz->Ellipse(thiz, &rect, both));
        note(thiz->Line(thiz, 1, 2, 3, 4));
        note(thiz->SetStrokeColor(thiz, 1, 2, 3, 100));
        note(thiz->Rectangle(thiz, &rect, both));
        note(thiz->Ellipse(thiz, &rect, both));
        note(thiz->Polygon(thiz, points, 3, 1, DTKHDDVD_STROKE));
        note(thiz->SetFillColor(thiz, 1, 2, 3, 100));
        return result;
    }

    bool has_failed = false;    ///< Whether the last run asked for that many allocations.
};

TEST_F(NoMemory, ForAToolkitIsReportedAndLeavesNothing)
{
    for (Create create : {CreateDrawingToolkit_HDDVD_SW, CreateDrawingToolkit_HDDVD_HW}) {
        fake::platform().engine_handle = 7;
        for (int n : {1, 2}) {
            auto* toolkit = reinterpret_cast<DTKHDDVD*>(&screen);
            const Outcome outcome = run_without(n, [&] { return create(&dfb, &screen, 1, &toolkit); });
            EXPECT_TRUE(has_failed);
            EXPECT_EQ(outcome.result, no_memory) << n;
            EXPECT_EQ(outcome.error, n == 1 ? "cant allocate interface\n" : "") << n;
            EXPECT_EQ(toolkit, nullptr) << n;
            EXPECT_EQ(calls(), "\n") << n;
            EXPECT_EQ(fake::held_allocations(), 0) << n;
            EXPECT_EQ(dfb.references, 1) << "no record was there to release it";
        }
    }
}

TEST_F(NoMemory, ForAToolkitIsNeededTwice)
{
    for (Create create : {CreateDrawingToolkit_HDDVD_SW, CreateDrawingToolkit_HDDVD_HW}) {
        fake::platform().engine_handle = 7;
        DTKHDDVD* toolkit = nullptr;
        EXPECT_EQ(run_without(3, [&] { return create(&dfb, &screen, 1, &toolkit); }).result, 0);
        EXPECT_FALSE(has_failed);
        toolkit->Release(toolkit);
    }
}

TEST_F(NoMemory, ForAPenIsReportedAndLeavesNothing)
{
    for (bool is_hardware : {false, true}) {
        const Toolkit toolkit = is_hardware ? hardware_toolkit() : software_toolkit(0);
        const int held_by_the_toolkit = fake::held_allocations();
        EXPECT_EQ(held_by_the_toolkit, 2);
        for (int n : {1, 2}) {
            auto* pen = reinterpret_cast<DTKHDDVDPen*>(&screen);
            const Outcome outcome = run_without(n, [&] { return toolkit->CreatePen(toolkit.get(), &square, &pen); });
            EXPECT_TRUE(has_failed);
            EXPECT_EQ(outcome.result, no_memory) << n;
            EXPECT_EQ(outcome.error, complaint("DTKHDDVD_CreatePen", no_memory_text)) << n;
            EXPECT_EQ(pen, nullptr) << n;
            EXPECT_EQ(calls(), "\n") << n;
            EXPECT_EQ(fake::held_allocations(), held_by_the_toolkit) << n;
        }
    }
}

TEST_F(NoMemory, ForAPenIsNeededTwice)
{
    for (bool is_hardware : {false, true}) {
        const Toolkit toolkit = is_hardware ? hardware_toolkit() : software_toolkit(0);
        DTKHDDVDPen* pen = nullptr;
        EXPECT_EQ(run_without(3, [&] { return toolkit->CreatePen(toolkit.get(), &square, &pen); }).result, 0);
        EXPECT_FALSE(has_failed);
        pen->Release(pen);
    }
}

TEST_F(NoMemory, IsNeededByNothingElse)
{
    for (bool is_hardware : {false, true}) {
        const Toolkit toolkit = is_hardware ? hardware_toolkit() : software_toolkit(1);
        set_pen(toolkit, 3, 3);
        set_texture(toolkit);
        const Outcome outcome = run_without(1, [&] { return draw_everything(toolkit.get()); });
        EXPECT_EQ(outcome.result, 0);
        EXPECT_FALSE(has_failed);
        drop_pen(toolkit);
    }
}

TEST_F(NoMemory, ForAPolygonsCopyIsReported)
{
    const Toolkit toolkit = hardware_toolkit();
    const std::vector<DFBPoint> points(100000, DFBPoint{3, 4});
    const Outcome outcome = run_without(1, [&] {
        return toolkit->Polygon(toolkit.get(), points.data(), 100000, 1, DTKHDDVD_FILL);
    });
    if (has_failed) {
        EXPECT_EQ(outcome.result, no_memory);
        EXPECT_EQ(outcome.error, complaint("DTKHDDVD_Polygon", no_memory_text));
    } else {
        EXPECT_EQ(outcome.result, 0);
    }
}

} // namespace
