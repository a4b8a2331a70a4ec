#include "support/fixture.h"

namespace {

const DTKHDDVDPenShape square = {-2, -2, 2, -2, 2, 2, -2, 2};

class CreatePen : public Fakes {};
class SetPen : public Fakes {};

TEST_F(CreatePen, ReportsEachFailureAndGivesTheHalfMadePenBack)
{
    const Toolkit toolkit = software_toolkit(0);
    for (int n = 1;; n++) {
        const int held = fake::surface_references();
        transcript().reset();
        transcript().fail_call(n, refusal);
        auto* pen = reinterpret_cast<DTKHDDVDPen*>(&screen);
        const Outcome outcome = run([&] { return toolkit->CreatePen(toolkit.get(), &square, &pen); });
        const std::string failed = transcript().failed_call();
        if (failed.find("Unlock") != std::string::npos) {
            EXPECT_EQ(outcome.result, 0);
            pen->Release(pen);
            continue;
        }
        if (failed.empty()) {
            EXPECT_EQ(outcome.result, 0);
            pen->Release(pen);
            EXPECT_GT(n, 8);
            return;
        }
        EXPECT_EQ(outcome.result, refusal) << failed;
        EXPECT_EQ(outcome.error, complaint("DTKHDDVD_CreatePen", refusal_text)) << failed;
        EXPECT_EQ(pen, nullptr) << failed;
        const bool is_unfinished = n > 4 && failed.find("SetSrcColorKeyIndex") == std::string::npos;
        EXPECT_EQ(fake::surface_references(), held + (is_unfinished ? 1 : 0)) << failed;
    }
}

TEST_F(CreatePen, PaintsWithTheIndexOfTheStrokeOnTheKey)
{
    const Toolkit toolkit = software_toolkit(0);
    fake::cairo().on_fill = [](const std::string&) { fake::surface_named("alpha").fill(1, 2, 1, 1, 255); };
    const Pen made = pen(toolkit, 4, 4);
    EXPECT_EQ(fake::surface_named("pen").pixel(1, 2), 0u);
    EXPECT_EQ(fake::surface_named("pen").pixel(0, 0), 2u);
}

TEST_F(CreatePen, PrintsWhatDirectFBAnswersToAPenWithoutArea)
{
    const Toolkit toolkit = software_toolkit(0);
    transcript().fail_every("dfb.CreateSurface", DFB_INVARG);
    const DTKHDDVDPenShape point = {1, 1, 1, 1, 1, 1, 1, 1};
    DTKHDDVDPen* pen = nullptr;
    const Outcome outcome = run([&] { return toolkit->CreatePen(toolkit.get(), &point, &pen); });
    EXPECT_EQ(outcome.result, DFB_INVARG);
    EXPECT_EQ(outcome.error, "error in DTKHDDVD_CreatePen: An invalid argument has been specified\n");
}

TEST_F(SetPen, LoadsTheToolkitsColoursIntoThePen)
{
    const Toolkit toolkit = software_toolkit(0);
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 4);
    const Pen made = pen(toolkit, 5, 5);
    EXPECT_EQ(toolkit->SetPen(toolkit.get(), made.get()), 0);
    EXPECT_EQ(calls(), R"(
pen.AddRef()
pen.GetPalette()
pen.palette.SetEntries(04010203 ffffffff 00fefdfc from 0)
pen.palette.Release()
pen.Release()
)");
    EXPECT_EQ(toolkit->priv->pen, made.get());
    EXPECT_EQ(made->priv->ref_count, 2u);
    drop_pen(toolkit);
}

TEST_F(SetPen, OfNothingDropsThePen)
{
    for (bool is_hardware : {false, true}) {
        const Toolkit toolkit = is_hardware ? hardware_toolkit() : software_toolkit(0);
        const Pen made = pen(toolkit, 5, 5);
        EXPECT_EQ(toolkit->SetPen(toolkit.get(), made.get()), 0);
        EXPECT_EQ(made->priv->ref_count, 2u);
        calls();
        EXPECT_EQ(toolkit->SetPen(toolkit.get(), nullptr), 0);
        EXPECT_EQ(made->priv->ref_count, 1u);
        EXPECT_EQ(toolkit->priv->pen, nullptr);
        EXPECT_EQ(calls(), "\n");
        EXPECT_EQ(toolkit->SetPen(toolkit.get(), nullptr), 0);
    }
}

TEST_F(SetPen, ReleasesTheOldPenBeforeTheNewOneIsReferenced)
{
    const Toolkit toolkit = hardware_toolkit();
    const Pen old_pen = pen(toolkit, 2, 2), new_pen = pen(toolkit, 3, 3);
    toolkit->SetPen(toolkit.get(), old_pen.get());
    static const DTKHDDVDPen* older;
    older = old_pen.get();
    new_pen->AddRef = [](DTKHDDVDPen* thiz) {
        EXPECT_EQ(older->priv->ref_count, 1u);
        return DTKHDDVDPen_AddRef(thiz);
    };
    EXPECT_EQ(toolkit->SetPen(toolkit.get(), new_pen.get()), 0);
    EXPECT_EQ(new_pen->priv->ref_count, 2u);
    drop_pen(toolkit);
}

TEST_F(SetPen, OfHardwareCallsNothing)
{
    const Toolkit toolkit = hardware_toolkit();
    const Pen made = pen(toolkit, 5, 5);
    EXPECT_EQ(toolkit->SetPen(toolkit.get(), made.get()), 0);
    EXPECT_EQ(calls(), "\n");
    EXPECT_EQ(toolkit->priv->pen, made.get());
    drop_pen(toolkit);
}

TEST_F(SetPen, ReportsEachFailureAndKeepsThePen)
{
    for (int n : {1, 2}) {
        const Toolkit toolkit = software_toolkit(0);
        const Pen made = pen(toolkit, 5, 5);
        const int held = fake::surface_references();
        transcript().fail_call(n, refusal);
        const Outcome outcome = run([&] { return toolkit->SetPen(toolkit.get(), made.get()); });
        EXPECT_EQ(outcome.result, refusal) << n;
        EXPECT_EQ(outcome.error, complaint("DTKHDDVD_SetPen", refusal_text)) << n;
        EXPECT_EQ(toolkit->priv->pen, made.get()) << n;
        EXPECT_EQ(fake::surface_references(), held) << n;
        drop_pen(toolkit);
    }
}

TEST_F(SetPen, ReportsAPenThatDoesNotGiveItsSurface)
{
    const Toolkit toolkit = software_toolkit(0);
    const Pen made = pen(toolkit, 5, 5);
    made->GetSurface = [](DTKHDDVDPen*, IDirectFBSurface**) { return refusal; };
    const Outcome outcome = run([&] { return toolkit->SetPen(toolkit.get(), made.get()); });
    EXPECT_EQ(outcome.result, refusal);
    EXPECT_EQ(outcome.error, complaint("DTKHDDVD_SetPen", refusal_text));
    EXPECT_EQ(toolkit->priv->pen, made.get());
    drop_pen(toolkit);
}

TEST_F(SetPen, AcceptsAPenWithoutSurfaceOrPalette)
{
    const Toolkit toolkit = software_toolkit(0);
    const Pen made = pen(toolkit, 5, 5);
    fake::surface_named("pen").palette = nullptr;
    EXPECT_EQ(toolkit->SetPen(toolkit.get(), made.get()), 0);
    EXPECT_EQ(calls(), "\npen.AddRef()\npen.GetPalette()\npen.Release()\n");
    fake::platform().engine_handle = 7;
    EXPECT_EQ(toolkit->SetPen(toolkit.get(), made.get()), 0);
    EXPECT_EQ(calls(), "\n");
    drop_pen(toolkit);
}

} // namespace
