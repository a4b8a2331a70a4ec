#include "support/fixture.h"

/// Every primitive of the software back end in every mode, with each of its calls failing once.

namespace {

constexpr u32 both = DTKHDDVD_STROKE | DTKHDDVD_FILL;

enum class Pens { none, one_pixel, wide };

struct Mode {
    u8 stroke_alpha, fill_alpha;
    Pens pens;
    bool has_pattern;

    bool is_via_scratch_pad(u32 flags) const
    {
        return ((flags & DTKHDDVD_FILL) && (has_pattern || fill_alpha != 255))
            || ((flags & DTKHDDVD_STROKE) && stroke_alpha != 255);
    }
};

std::vector<Mode> all_modes()
{
    std::vector<Mode> modes;
    for (u8 stroke_alpha : {u8(255), u8(100)}) {
        for (u8 fill_alpha : {u8(255), u8(100)}) {
            for (Pens pens : {Pens::none, Pens::one_pixel, Pens::wide}) {
                for (bool has_pattern : {false, true})
                    modes.push_back({stroke_alpha, fill_alpha, pens, has_pattern});
            }
        }
    }
    return modes;
}

class SoftwareFailures : public Fakes {
protected:
    using Draw = DFBResult (*)(DTKHDDVD*);

    /// Nobody looks at the results of the calls in `fill_calls` as long as the fill is a plain colour.
    void expect_reported(const std::string& operation, u32 flags, Draw draw,
                         const std::vector<std::string>& fill_calls = {})
    {
        for (const Mode& mode : all_modes()) {
            const bool is_via_scratch_pad = mode.is_via_scratch_pad(flags);
            SCOPED_TRACE(fake::text("alphas %d %d, pen %d, pattern %d, flags %u", mode.stroke_alpha, mode.fill_alpha,
                                    int(mode.pens), mode.has_pattern, flags));
            std::vector<std::string> unchecked = unchecked_calls(is_via_scratch_pad);
            if ((flags & DTKHDDVD_FILL) && !mode.has_pattern)
                unchecked.insert(unchecked.end(), fill_calls.begin(), fill_calls.end());
            expect_each_failure_reported(operation, [&] { return prepared(mode); }, draw, unchecked);
        }
    }

private:
    /// A pen that does not tell its size counts as wide, and a stamper's batch hides the size question before it. Only
    /// the question for the dirty rectangle, the second one on the way through the scratch pad, counts. Locks are never
    /// looked at.
    static std::vector<std::string> unchecked_calls(bool is_via_scratch_pad)
    {
        if (!is_via_scratch_pad)
            return {"Lock", "Unlock", "pen.GetSize()"};
        std::vector<std::string> questions = {"Lock", "Unlock", "pen.GetSize() #1"};
        for (int number = 3; number < 10; number++)
            questions.push_back(fake::text("pen.GetSize() #%d", number));
        return questions;
    }

    Toolkit prepared(const Mode& mode)
    {
        fake::forget_surfaces_but(screen);
        Toolkit toolkit = software_toolkit(1);
        toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, mode.stroke_alpha);
        toolkit->SetFillColor(toolkit.get(), 51, 0, 255, mode.fill_alpha);
        if (mode.pens != Pens::none)
            set_pen(toolkit, mode.pens == Pens::wide ? 3 : 1, 1);
        if (mode.has_pattern)
            set_texture(toolkit);
        return toolkit;
    }
};

TEST_F(SoftwareFailures, OfALineAreReported)
{
    expect_reported("DTKHDDVD_Line", DTKHDDVD_STROKE, [](DTKHDDVD* thiz) { return thiz->Line(thiz, 5, 6, 9, 8); });
}

TEST_F(SoftwareFailures, OfARectangleAreReported)
{
    static const DFBRectangle rect = {5, 6, 4, 3};
    expect_reported("DTKHDDVD_Rectangle", DTKHDDVD_FILL,
                    [](DTKHDDVD* thiz) { return thiz->Rectangle(thiz, &rect, DTKHDDVD_FILL); });
    expect_reported("DTKHDDVD_Rectangle", DTKHDDVD_STROKE,
                    [](DTKHDDVD* thiz) { return thiz->Rectangle(thiz, &rect, DTKHDDVD_STROKE); });
    expect_reported("DTKHDDVD_Rectangle", both, [](DTKHDDVD* thiz) { return thiz->Rectangle(thiz, &rect, both); });
}

TEST_F(SoftwareFailures, OfAPolygonAreReported)
{
    static const DFBPoint points[] = {{5, 6}, {9, 8}, {3, 7}};
    expect_reported("DTKHDDVD_Polygon", DTKHDDVD_STROKE,
                    [](DTKHDDVD* thiz) { return thiz->Polygon(thiz, points, 3, 1, DTKHDDVD_STROKE); });
    expect_reported("DTKHDDVD_Polygon", both, [](DTKHDDVD* thiz) { return thiz->Polygon(thiz, points, 3, 0, both); });
}

TEST_F(SoftwareFailures, OfAnEllipseAreReported)
{
    static const DFBRectangle rect = {2, 2, 12, 12};
    const std::vector<std::string> fill_calls = {"target.GetSize() #1", "scratch.GetSize() #1", "SetColor(51, 0, 255",
                                                 "FillRectangle(5, 4, 6, 9)"};
    expect_reported("DTKHDDVD_Ellipse", DTKHDDVD_FILL,
                    [](DTKHDDVD* thiz) { return thiz->Ellipse(thiz, &rect, DTKHDDVD_FILL); }, fill_calls);
    expect_reported("DTKHDDVD_Ellipse", DTKHDDVD_STROKE,
                    [](DTKHDDVD* thiz) { return thiz->Ellipse(thiz, &rect, DTKHDDVD_STROKE); });
    expect_reported("DTKHDDVD_Ellipse", both, [](DTKHDDVD* thiz) { return thiz->Ellipse(thiz, &rect, both); },
                    fill_calls);
}

class BrokenCairo : public Fakes {
protected:
    /// A fill that leaves its context in an error fails once; the next one works.
    void expect_healed(const std::string& operation, const std::function<DFBResult(DTKHDDVD*)>& draw)
    {
        for (u8 use_scratch_pad : {u8(0), u8(1)}) {
            const Toolkit toolkit = software_toolkit(use_scratch_pad);
            set_texture(toolkit);
            const int held = held_references(dfb);
            fake::cairo().status_after_fill = CAIRO_STATUS_NO_MEMORY;
            const Outcome broken = run([&] { return draw(toolkit.get()); });
            EXPECT_EQ(broken.result, own_failure);
            EXPECT_EQ(broken.error, complaint(operation, own_failure_text));
            EXPECT_EQ(held_references(dfb), held);

            fake::cairo().status_after_fill = CAIRO_STATUS_SUCCESS;
            const Outcome healed = run([&] { return draw(toolkit.get()); });
            EXPECT_EQ(healed.result, 0);
            EXPECT_EQ(healed.error, "");
            EXPECT_EQ(held_references(dfb), held);
        }
    }
};

/// A toolkit whose context cannot be made draws everything that needs none.
TEST_F(BrokenCairo, LeavesAToolkitThatDrawsWithoutIt)
{
    const DFBRectangle rect = {5, 6, 4, 3};
    const DFBPoint points[] = {{5, 6}, {9, 8}, {3, 7}};
    fake::cairo().context_creation = fake::Outcome::error_state;
    Toolkit toolkit = software_toolkit(1);
    EXPECT_EQ(toolkit->Rectangle(toolkit.get(), &rect, both), 0);
    const auto fill = [&] { return toolkit->Polygon(toolkit.get(), points, 3, 0, DTKHDDVD_FILL); };
    const Outcome broken = run(fill);
    EXPECT_EQ(broken.result, own_failure);
    EXPECT_EQ(broken.error, complaint("DTKHDDVD_Polygon", own_failure_text));
    fake::cairo().context_creation = fake::Outcome::works;
    run(fill);
    EXPECT_EQ(run(fill).result, 0) << "the second fill at the latest has a new context";
    toolkit.reset();
    EXPECT_EQ(fake::cairo().live_objects, 0);
}

TEST_F(BrokenCairo, FailsOneRectangle)
{
    const DFBRectangle rect = {5, 6, 4, 3};
    expect_healed("DTKHDDVD_Rectangle", [&](DTKHDDVD* thiz) { return thiz->Rectangle(thiz, &rect, DTKHDDVD_FILL); });
}

TEST_F(BrokenCairo, FailsOnePolygon)
{
    const DFBPoint points[] = {{5, 6}, {9, 8}, {3, 7}};
    expect_healed("DTKHDDVD_Polygon",
                  [&](DTKHDDVD* thiz) { return thiz->Polygon(thiz, points, 3, 0, DTKHDDVD_FILL); });
}

TEST_F(BrokenCairo, FailsOneEllipse)
{
    const DFBRectangle rect = {5, 6, 14, 13};
    expect_healed("DTKHDDVD_Ellipse", [&](DTKHDDVD* thiz) { return thiz->Ellipse(thiz, &rect, DTKHDDVD_FILL); });
}

} // namespace
