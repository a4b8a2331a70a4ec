#include "support/fixture.h"

namespace {

class AttachAndDetach : public Fakes {
protected:
    AttachAndDetach() { dfb.references = 100; }

    Toolkit unattached(bool is_hardware, u8 use_scratch_pad)
    {
        fake::platform().engine_handle = is_hardware ? 7 : 0;
        DTKHDDVD* made = nullptr;
        EXPECT_EQ(CreateDrawingToolkit_HDDVD(&dfb, nullptr, use_scratch_pad, &made), 0);
        return Toolkit(made);
    }
};

DFBResult attach(const Toolkit& toolkit, IDirectFBSurface* surface)
{
    return AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get(), surface);
}

DFBResult detach(const Toolkit& toolkit)
{
    return DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get());
}

TEST_F(AttachAndDetach, AttachesInOrder)
{
    const Toolkit toolkit = unattached(false, 1);
    EXPECT_EQ(attach(toolkit, &screen), 0);
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
    EXPECT_NE(toolkit->priv->target_cairo_surface, nullptr) << "an attach records what it made";
    EXPECT_NE(toolkit->priv->scratch_cairo_surface, nullptr);
    EXPECT_EQ(dfb.references, 101);
}

TEST_F(AttachAndDetach, AttachesWithoutAScratchPad)
{
    const Toolkit toolkit = unattached(false, 0);
    EXPECT_EQ(attach(toolkit, &screen), 0);
    EXPECT_EQ(calls(), R"(
screen.GetSubSurface(NULL)
dfb.AddRef()
cairo_directfb_surface_create(dfb, screen)
cairo_create(screen.cairo)
cairo_set_antialias(screen.cr, 1)
cairo_surface_destroy(screen.cairo)
)");
    EXPECT_EQ(toolkit->priv->scratch_cairo_surface, nullptr);
    EXPECT_EQ(detach(toolkit), 0);
    EXPECT_EQ(calls(), "\ncairo_destroy(screen.cr)\n");
    EXPECT_EQ(toolkit->priv->target, nullptr);
}

TEST_F(AttachAndDetach, AttachesHardwareWithoutCairo)
{
    const Toolkit toolkit = unattached(true, 1);
    EXPECT_EQ(attach(toolkit, &screen), 0);
    EXPECT_EQ(calls(), R"(
screen.GetSubSurface(NULL)
screen.GetSize()
dfb.CreateSurface(flags 15, caps 4, 64 x 48, ARGB)
scratch.Clear(0, 0, 0, 0)
dfb.AddRef()
)");
}

TEST_F(AttachAndDetach, DetachesACreatedSurfaceWithoutDestroyingCairoSurfaces)
{
    const Toolkit toolkit = software_toolkit(1);
    EXPECT_EQ(detach(toolkit), 0);
    EXPECT_EQ(calls(), "\nscratch.Release()\ncairo_destroy(screen.cr)\n");
    EXPECT_EQ(fake::surface_named("target").references, 1) << "the sub-surface is left behind";
    EXPECT_EQ(fake::surface_named("scratch").references, 0);
}

TEST_F(AttachAndDetach, KeepsTheScratchContextUntilTheRelease)
{
    Toolkit toolkit = software_toolkit(1);
    EXPECT_EQ(detach(toolkit), 0);
    calls();
    toolkit.reset();
    EXPECT_EQ(calls(), "\ncairo_destroy(scratch.cr)\ndfb.Release()\n");
    EXPECT_EQ(fake::cairo().live_objects, 0);
}

TEST_F(AttachAndDetach, DropsNothingTwice)
{
    Toolkit toolkit = unattached(false, 1);
    EXPECT_EQ(attach(toolkit, &screen), 0);
    calls();
    EXPECT_EQ(detach(toolkit), 0);
    EXPECT_EQ(calls(), "\nscratch.Release()\ncairo_destroy(screen.cr)\n");
    EXPECT_EQ(toolkit->priv->target_cairo_surface, nullptr) << "was the context's, which is gone";
    EXPECT_EQ(toolkit->priv->scratch_cairo_surface, nullptr);
    EXPECT_EQ(detach(toolkit), 0);
    EXPECT_EQ(calls(), "\n") << "an unattached toolkit has nothing to drop";
    toolkit.reset();
    EXPECT_EQ(calls(), "\ncairo_destroy(scratch.cr)\ndfb.Release()\n");
    EXPECT_EQ(fake::cairo().live_objects, 0);
}

TEST_F(AttachAndDetach, DropsTheContextThatADetachLeftAtTheNextAttach)
{
    Toolkit toolkit = software_toolkit(1);
    EXPECT_EQ(detach(toolkit), 0);
    calls();
    EXPECT_EQ(attach(toolkit, &screen), 0);
    EXPECT_EQ(calls().rfind("\ncairo_destroy(scratch.cr)\nscreen.GetSubSurface(NULL)\n", 0), 0u) << "and nothing else";
    EXPECT_EQ(attach(toolkit, &screen), 0);
    EXPECT_EQ(calls_with("cairo_destroy"), "\n") << "what is attached is replaced";
}

TEST_F(AttachAndDetach, DetachesHardwareFromItsScratchPadAlone)
{
    Toolkit toolkit = unattached(true, 1);
    EXPECT_EQ(attach(toolkit, &screen), 0);
    const int references = dfb.references;
    calls();
    EXPECT_EQ(detach(toolkit), 0);
    EXPECT_EQ(calls(), "\nscratch.Release()\n");
    EXPECT_EQ(dfb.references, references);
    EXPECT_EQ(toolkit->priv->dtk, 7u);
    EXPECT_EQ(toolkit->priv->target, nullptr);
    EXPECT_EQ(detach(toolkit), 0);
    toolkit.reset();
    EXPECT_EQ(calls(), "\ndfb.Release()\n");
}

TEST_F(AttachAndDetach, LeavesColoursPatternAndPen)
{
    const Toolkit toolkit = software_toolkit(0);
    toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 4);
    set_pen(toolkit, 3, 3);
    set_texture(toolkit);
    EXPECT_EQ(detach(toolkit), 0);
    EXPECT_EQ(toolkit->priv->palette[0].b, 3);
    EXPECT_NE(toolkit->priv->pen, nullptr);
    EXPECT_NE(toolkit->priv->fill_pattern, nullptr);
    drop_pen(toolkit);
}

TEST_F(AttachAndDetach, ReplacesAnAttachedSurface)
{
    const Toolkit toolkit = software_toolkit(1);
    fake::Surface& other = fake::new_surface("other", 10, 20, DSPF_ARGB);
    EXPECT_EQ(attach(toolkit, &other), 0);
    EXPECT_EQ(toolkit->priv->target, &fake::surface_named("target2"));
    EXPECT_EQ(toolkit->priv->scratch, &fake::surface_named("scratch2"));
    EXPECT_EQ(fake::surface_named("scratch2").height, 20);
    EXPECT_EQ(fake::surface_named("scratch").references, 1) << "replaced, not given back";
    EXPECT_EQ(dfb.references, 102);
}

TEST_F(AttachAndDetach, RefusesANullToolkit)
{
    const Outcome outcome = run([&] {
        EXPECT_EQ(AttachDFBSurfaceToDrawingToolkit_HDDVD_SW(nullptr, &screen), 8);
        EXPECT_EQ(AttachDFBSurfaceToDrawingToolkit_HDDVD_HW(nullptr, &screen), 8);
        return DFB_OK;
    });
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(calls(), "\n");
}

TEST_F(AttachAndDetach, AnswersEachFailureOfAnAttach)
{
    for (bool is_hardware : {false, true}) {
        for (const char* failing : {"screen.GetSubSurface", "dfb.CreateSurface", "scratch"}) {
            const Toolkit toolkit = unattached(is_hardware, 1);
            transcript().reset();
            transcript().fail_every(failing, refusal);
            const Outcome outcome = run([&] { return attach(toolkit, &screen); });
            EXPECT_EQ(outcome.result, refusal) << failing;
            const bool has_message = std::string(failing) == "dfb.CreateSurface";
            EXPECT_EQ(outcome.error, has_message ? "Error creating DrawingToolkit scratchpad!!\n" : "") << failing;
            EXPECT_EQ(calls_with("AddRef"), "\n") << failing;
            transcript().reset();
        }
    }
}

} // namespace
