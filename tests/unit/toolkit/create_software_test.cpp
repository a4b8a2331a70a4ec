#include "support/fixture.h"

namespace {

class CreateSoftware : public Fakes {
protected:
    CreateSoftware() { dfb.references = 2; }

    DFBResult create(IDirectFBSurface* surface, u8 use_scratch_pad)
    {
        return CreateDrawingToolkit_HDDVD_SW(&dfb, surface, use_scratch_pad, &made);
    }

    /// A creation that fails answers NULL and releases DirectFB although it took no reference.
    void expect_failed(const Outcome& outcome, DFBResult result, const std::string& error)
    {
        EXPECT_EQ(outcome.result, result);
        EXPECT_EQ(outcome.error, error);
        EXPECT_EQ(made, nullptr);
        EXPECT_EQ(dfb.references, 1);
        EXPECT_EQ(fake::surface_references(), 1) << "only the screen itself";
        EXPECT_EQ(fake::cairo().live_objects, 0);
    }

    DTKHDDVD* made = reinterpret_cast<DTKHDDVD*>(this);
};

TEST_F(CreateSoftware, WithoutASurfaceTakesNothing)
{
    EXPECT_EQ(create(nullptr, 1), 0);
    EXPECT_EQ(calls(), "\n");
    const DTKHDDVD_data& data = *made->priv;
    EXPECT_EQ(data.target, nullptr);
    EXPECT_EQ(data.target_cr, nullptr);
    EXPECT_EQ(data.scratch, nullptr);
    EXPECT_EQ(data.dfb, &dfb);
    EXPECT_EQ(dfb.references, 2);
    made->Release(made);
    EXPECT_EQ(dfb.references, 1);
}

TEST_F(CreateSoftware, WithoutAScratchPadMakesOneContext)
{
    EXPECT_EQ(create(&screen, 0), 0);
    EXPECT_EQ(calls(), R"(
screen.GetSubSurface(NULL)
dfb.AddRef()
cairo_directfb_surface_create(dfb, screen)
cairo_create(screen.cairo)
cairo_set_antialias(screen.cr, 1)
cairo_surface_destroy(screen.cairo)
)");
    EXPECT_EQ(made->priv->scratch, nullptr);
    EXPECT_EQ(made->priv->scratch_cr, nullptr);
    made->Release(made);
}

TEST_F(CreateSoftware, WithAScratchPadMakesItTransparentAndOfTheSameSize)
{
    EXPECT_EQ(create(&screen, 3), 0);
    EXPECT_EQ(calls(), R"(
screen.GetSubSurface(NULL)
screen.GetSize()
dfb.CreateSurface(flags 15, caps 4, 64 x 48, ARGB)
scratch.Clear(0, 0, 0, 0)
dfb.AddRef()
cairo_directfb_surface_create(dfb, screen)
cairo_create(screen.cairo)
cairo_set_antialias(screen.cr, 1)
cairo_surface_destroy(screen.cairo)
cairo_directfb_surface_create(dfb, scratch)
cairo_create(scratch.cairo)
cairo_set_antialias(scratch.cr, 1)
cairo_surface_destroy(scratch.cairo)
)");
    EXPECT_EQ(made->priv->use_scratch_pad, 3);
    EXPECT_EQ(made->priv->scratch, &fake::surface_named("scratch"));
    EXPECT_EQ(fake::surface_named("scratch").pixel(63, 47), 0u);
    made->Release(made);
}

TEST_F(CreateSoftware, FillsTheRecords)
{
    EXPECT_EQ(create(&screen, 1), 0);
    const DTKHDDVD_data& data = *made->priv;
    EXPECT_EQ(data.ref_count, 1u);
    EXPECT_EQ(data.target, &fake::surface_named("target"));
    EXPECT_NE(data.target_cr, nullptr);
    EXPECT_NE(data.scratch_cr, nullptr);
    EXPECT_EQ(data.fill_pattern, nullptr);
    EXPECT_EQ(data.pen, nullptr);
    EXPECT_EQ(data.dtk, 0u);
    EXPECT_EQ(data.target_cairo_surface, nullptr) << "only an attach records it";
    EXPECT_EQ(data.scratch_cairo_surface, nullptr);
    const u8* bytes = reinterpret_cast<const u8*>(data.palette);
    EXPECT_THAT(std::vector<int>(bytes, bytes + 12),
                testing::ElementsAre(255, 255, 255, 255, 255, 255, 255, 255, 0, 0, 0, 0));
    made->Release(made);
}

TEST_F(CreateSoftware, PutsTheDispatchersIntoTheRecord)
{
    EXPECT_EQ(create(nullptr, 0), 0);
    EXPECT_EQ(made->magic, 0u);
    EXPECT_EQ(made->AddRef, &DTKHDDVD_AddRef);
    EXPECT_EQ(made->Release, &DTKHDDVD_Release);
    EXPECT_EQ(made->SetStrokeColor, &DTKHDDVD_SetStrokeColor);
    EXPECT_EQ(made->SetFillColor, &DTKHDDVD_SetFillColor);
    EXPECT_EQ(made->SetFillPattern, &DTKHDDVD_SetFillPattern);
    EXPECT_EQ(made->CreatePen, &DTKHDDVD_CreatePen);
    EXPECT_EQ(made->SetPen, &DTKHDDVD_SetPen);
    EXPECT_EQ(made->Line, &DTKHDDVD_Line);
    EXPECT_EQ(made->Rectangle, &DTKHDDVD_Rectangle);
    EXPECT_EQ(made->Polygon, &DTKHDDVD_Polygon);
    EXPECT_EQ(made->Ellipse, &DTKHDDVD_Ellipse);
    made->Release(made);
}

TEST_F(CreateSoftware, FailsSilentlyWithoutASubSurface)
{
    transcript().fail_every("screen.GetSubSurface", refusal);
    expect_failed(run([&] { return create(&screen, 1); }), refusal, "");
    EXPECT_EQ(calls_with("Release"), "\ndfb.Release()\n");
}

TEST_F(CreateSoftware, SaysThatTheScratchPadCannotBeMade)
{
    transcript().fail_every("dfb.CreateSurface", refusal);
    expect_failed(run([&] { return create(&screen, 1); }), refusal, "Error creating DrawingToolkit scratchpad!!\n");
    EXPECT_EQ(calls_with("Release"), "\ntarget.Release()\ndfb.Release()\n");
}

TEST_F(CreateSoftware, FailsSilentlyWhenTheScratchPadCannotBeCleared)
{
    transcript().fail_every("scratch.Clear", refusal);
    expect_failed(run([&] { return create(&screen, 1); }), refusal, "");
    EXPECT_EQ(calls_with("Release"), "\ntarget.Release()\nscratch.Release()\ndfb.Release()\n");
}

TEST_F(CreateSoftware, DoesNotLookAtTheSizeQuery)
{
    transcript().fail_every("screen.GetSize", refusal);
    EXPECT_EQ(create(&screen, 1), 0);
    made->Release(made);
}

TEST_F(CreateSoftware, IsChosenWithoutAnEngineWhateverComesLater)
{
    EXPECT_EQ(CreateDrawingToolkit_HDDVD(&dfb, &screen, 0, &made), 0);
    EXPECT_EQ(fake::platform().handle_queries, 1);
    EXPECT_EQ(made->priv->dtk, 0u);
    fake::platform().engine_handle = 7;
    calls();
    EXPECT_EQ(made->Line(made, 1, 2, 3, 4), 0);
    EXPECT_EQ(calls_with("DrawLine"), "\ntarget.DrawLine(1, 2, 3, 4)\n");
    made->Release(made);
}

} // namespace
