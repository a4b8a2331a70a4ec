#include "support/fixture.h"

namespace {

constexpr char no_engine_message[] = "CreateDrawingToolkit_HDDVD: failed to create zuvo_dtk object\n";

class CreateHardware : public Fakes {
protected:
    CreateHardware()
    {
        dfb.references = 2;
        fake::platform().engine_handle = 7;
    }

    DFBResult create(IDirectFBSurface* surface, u8 use_scratch_pad)
    {
        return CreateDrawingToolkit_HDDVD_HW(&dfb, surface, use_scratch_pad, &made);
    }

    void expect_failed(const Outcome& outcome, DFBResult result, const std::string& error)
    {
        EXPECT_EQ(outcome.result, result);
        EXPECT_EQ(outcome.error, error);
        EXPECT_EQ(made, nullptr);
        EXPECT_EQ(dfb.references, 1) << "released although no reference was taken";
        EXPECT_EQ(fake::surface_references(), 1) << "only the screen itself";
    }

    DTKHDDVD* made = reinterpret_cast<DTKHDDVD*>(this);
};

TEST_F(CreateHardware, WithoutASurfaceTakesNothing)
{
    EXPECT_EQ(create(nullptr, 1), 0);
    EXPECT_EQ(calls(), "\n");
    EXPECT_EQ(made->priv->dfb, &dfb);
    EXPECT_EQ(made->priv->dtk, 7u);
    EXPECT_EQ(dfb.references, 2);
    made->Release(made);
    EXPECT_EQ(calls(), "\ndfb.Release()\n");
}

TEST_F(CreateHardware, OwnsAScratchPadButNoCairoObjects)
{
    EXPECT_EQ(create(&screen, 1), 0);
    EXPECT_EQ(calls(), R"(
screen.GetSubSurface(NULL)
screen.GetSize()
dfb.CreateSurface(flags 15, caps 4, 64 x 48, ARGB)
scratch.Clear(0, 0, 0, 0)
dfb.AddRef()
)");
    EXPECT_EQ(fake::surface_named("scratch").pixel(0, 0), 0u);
    made->Release(made);
}

TEST_F(CreateHardware, FillsTheRecords)
{
    EXPECT_EQ(create(&screen, 1), 0);
    const DTKHDDVD_data& data = *made->priv;
    EXPECT_EQ(data.ref_count, 1u);
    EXPECT_EQ(data.use_scratch_pad, 1);
    EXPECT_EQ(data.target, &fake::surface_named("target"));
    EXPECT_EQ(data.scratch, &fake::surface_named("scratch"));
    EXPECT_EQ(data.target_cr, nullptr);
    EXPECT_EQ(data.scratch_cr, nullptr);
    EXPECT_EQ(data.fill_pattern, nullptr);
    EXPECT_EQ(data.pen, nullptr);
    EXPECT_EQ(data.has_fill_pattern, 0);
    EXPECT_EQ(data.fill_pattern_handle, 0u);
    EXPECT_EQ(data.palette[0].a, 255);
    EXPECT_EQ(data.palette[1].b, 255);
    EXPECT_EQ(data.palette[2].r, 0);
    EXPECT_EQ(made->magic, 0u);
    EXPECT_EQ(made->Line, &DTKHDDVD_Line) << "the slots do not tell the back ends apart";
    made->Release(made);
}

TEST_F(CreateHardware, FailsWithoutAnEngine)
{
    fake::platform().engine_handle = 0;
    expect_failed(run([&] { return create(&screen, 1); }), own_failure, no_engine_message);
    EXPECT_EQ(calls(), "\ndfb.Release()\n");
}

TEST_F(CreateHardware, ReportsEachFailureOfAScratchPad)
{
    transcript().fail_every("dfb.CreateSurface", refusal);
    expect_failed(run([&] { return create(&screen, 1); }), refusal, "Error creating DrawingToolkit scratchpad!!\n");
    EXPECT_EQ(calls_with("Release"), "\ntarget.Release()\ndfb.Release()\n");
}

TEST_F(CreateHardware, FailsSilentlyWithoutASubSurface)
{
    transcript().fail_every("screen.GetSubSurface", refusal);
    expect_failed(run([&] { return create(&screen, 1); }), refusal, "");
}

TEST_F(CreateHardware, FailsSilentlyWhenTheScratchPadCannotBeCleared)
{
    transcript().fail_every("scratch.Clear", refusal);
    expect_failed(run([&] { return create(&screen, 1); }), refusal, "");
    EXPECT_EQ(calls_with("Release"), "\ntarget.Release()\nscratch.Release()\ndfb.Release()\n");
}

TEST_F(CreateHardware, IsChosenWithAnEngineWhateverComesLater)
{
    EXPECT_EQ(CreateDrawingToolkit_HDDVD(&dfb, &screen, 0, &made), 0);
    EXPECT_EQ(fake::platform().handle_queries, 2) << "the choice and the creation each ask";
    fake::platform().engine_handle = 0;
    calls();
    const DFBRectangle rect = {1, 2, 3, 4};
    EXPECT_EQ(made->Rectangle(made, &rect, DTKHDDVD_FILL), 0);
    EXPECT_EQ(calls_with("draw"), "\nzuvo_dtk_draw_rectangle(7, [1 2 3 4], 0x30)\n");
    made->Release(made);
}

} // namespace
