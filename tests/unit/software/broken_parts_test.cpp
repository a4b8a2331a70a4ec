#include "support/fake_cairo_objects.h"
#include "support/fixture.h"

/// Pens and textures that fail while a primitive is drawn, and software forms on a toolkit of the engine.

namespace {

constexpr DFBRectangle rect = {5, 6, 14, 13};
constexpr DFBPoint points[] = {{5, 6}, {9, 8}, {3, 7}};

struct Primitive {
    const char* operation;
    DFBResult (*outline)(DTKHDDVD*);
};

constexpr Primitive primitives[] = {
    {"DTKHDDVD_Line", [](DTKHDDVD* thiz) { return thiz->Line(thiz, 5, 6, 9, 8); }},
    {"DTKHDDVD_Rectangle", [](DTKHDDVD* thiz) { return thiz->Rectangle(thiz, &rect, DTKHDDVD_STROKE); }},
    {"DTKHDDVD_Polygon", [](DTKHDDVD* thiz) { return thiz->Polygon(thiz, points, 3, 1, DTKHDDVD_STROKE); }},
    {"DTKHDDVD_Ellipse", [](DTKHDDVD* thiz) { return thiz->Ellipse(thiz, &rect, DTKHDDVD_STROKE); }},
};

class BrokenParts : public Fakes {};

TEST_F(BrokenParts, OfAPenWithoutItsSurfaceAreReported)
{
    const Toolkit toolkit = software_toolkit(0);
    set_pen(toolkit, 3, 3);
    toolkit->priv->pen->GetSurface = [](DTKHDDVDPen*, IDirectFBSurface**) { return refusal; };
    for (const Primitive& primitive : primitives) {
        const Outcome outcome = run([&] { return primitive.outline(toolkit.get()); });
        EXPECT_EQ(outcome.result, refusal);
        EXPECT_EQ(outcome.error, complaint(primitive.operation, refusal_text));
        EXPECT_EQ(calls_with("BatchBlit"), "\n");
    }
    drop_pen(toolkit);
}

/// A pen that was made for the engine has no size once the platform has none.
TEST_F(BrokenParts, OfAPenWithoutASizeAreReported)
{
    const Toolkit hardware = hardware_toolkit();
    const Pen foreign = pen(hardware, 3, 3);
    fake::platform().engine_handle = 0;
    const Toolkit toolkit = software_toolkit(1);
    toolkit->SetPen(toolkit.get(), foreign.get());
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 100);
    const Outcome outcome = run([&] { return toolkit->Line(toolkit.get(), 5, 6, 9, 8); });
    EXPECT_EQ(outcome.result, thiz_null);
    EXPECT_EQ(outcome.error, complaint("DTKHDDVD_Line", "'thiz' pointer is NULL"));
    drop_pen(toolkit);
}

TEST_F(BrokenParts, OfATextureAreMadeAnewAsSoonAsTheyCan)
{
    const Toolkit toolkit = software_toolkit(0);
    set_texture(toolkit);
    const int held = held_references(dfb);
    const auto fill = [&] { return toolkit->Polygon(toolkit.get(), points, 3, 0, DTKHDDVD_FILL); };
    const auto break_texture = [&](const std::string&) {
        static_cast<fake::CairoObject*>(toolkit->priv->fill_pattern)->holds->status = CAIRO_STATUS_NO_MEMORY;
    };

    fake::cairo().on_fill = break_texture;
    fake::cairo().surface_creation = fake::Outcome::error_state;
    for (const char* attempt : {"the first", "the second"}) {
        const Outcome broken = run(fill);
        EXPECT_EQ(broken.result, own_failure) << attempt;
        EXPECT_EQ(broken.error,
                  "cant create cairo surface for texture\n" + complaint("DTKHDDVD_Polygon", own_failure_text));
        EXPECT_EQ(held_references(dfb), held) << attempt;
    }

    fake::cairo().surface_creation = fake::Outcome::works;
    EXPECT_EQ(run(fill).result, own_failure) << "this one has lost its texture, too";
    fake::cairo().on_fill = nullptr;
    EXPECT_EQ(run(fill).result, 0);
    EXPECT_EQ(held_references(dfb), held);
}

TEST_F(BrokenParts, OfASoftwareFormOnAToolkitOfTheEngineWaitForTheEngine)
{
    fake::platform().engine_handle = 7;
    DTKHDDVD* made = nullptr;
    ASSERT_EQ(CreateDrawingToolkit_HDDVD_HW(&dfb, &screen, 1, &made), 0);
    const Toolkit toolkit(made);
    toolkit->SetFillColor(made, 1, 2, 3, 100);
    calls();
    const auto draw = [&] { return DTKHDDVD_Rectangle_SW(made, &rect, DTKHDDVD_FILL); };
    EXPECT_EQ(draw(), 0);
    EXPECT_EQ(calls(), R"(
scratch.GetPixelFormat()
scratch.SetColor(1, 2, 3, 100)
scratch.FillRectangle(5, 6, 14, 13)
zuvo_dtk_sync(7)
scratch.GetPixelFormat()
target.SetBlittingFlags(1)
target.Blit(scratch, [5 6 14 13], 5, 6)
scratch.SetColor(0, 0, 0, 0)
scratch.FillRectangle(5, 6, 14, 13)
dfb.WaitIdle()
)");

    transcript().fail_every("zuvo_dtk_sync", DFBResult(0x1f));
    const Outcome outcome = run(draw);
    EXPECT_EQ(outcome.result, own_failure);
    EXPECT_EQ(outcome.error, "BlendScratchPad: zuvo_dtk_sync failed with err 0x1f\n"
                                 + complaint("DTKHDDVD_Rectangle", own_failure_text));
}

} // namespace
