#include "support/fixture.h"
#include "support/picture.h"

namespace {

class Lifetime : public Fakes {
protected:
    Lifetime() { dfb.references = 100000; }
};

TEST_F(Lifetime, EndsWithTheLastRelease)
{
    for (bool is_hardware : {false, true}) {
        DTKHDDVD* toolkit = (is_hardware ? hardware_toolkit() : software_toolkit(0)).release();
        EXPECT_EQ(toolkit->priv->ref_count, 1u);
        EXPECT_EQ(toolkit->AddRef(toolkit), 0);
        EXPECT_EQ(toolkit->priv->ref_count, 2u);
        EXPECT_EQ(toolkit->Release(toolkit), 0);
        EXPECT_EQ(calls(), "\n");
        EXPECT_EQ(toolkit->priv->ref_count, 1u);
        EXPECT_EQ(toolkit->Release(toolkit), 0);
        EXPECT_NE(calls_with("dfb.Release"), "\n");
    }
}

TEST_F(Lifetime, EndsInOrderInSoftware)
{
    Toolkit toolkit = software_toolkit(1);
    set_texture(toolkit);
    toolkit.reset();
    EXPECT_EQ(calls(), R"(
cairo_pattern_destroy(texture.pattern)
cairo_destroy(screen.cr)
target.Release()
cairo_destroy(scratch.cr)
scratch.Release()
dfb.Release()
)");
    EXPECT_EQ(fake::cairo().live_objects, 0);
}

TEST_F(Lifetime, EndsInOrderInHardware)
{
    fake::platform().engine_handle = 7;
    DTKHDDVD* toolkit = nullptr;
    EXPECT_EQ(CreateDrawingToolkit_HDDVD(&dfb, &screen, 1, &toolkit), 0);
    calls();
    toolkit->Release(toolkit);
    EXPECT_EQ(calls(), "\ntarget.Release()\nscratch.Release()\ndfb.Release()\n");
}

TEST_F(Lifetime, LeavesCairoAloneInHardware)
{
    fake::platform().engine_handle = 7;
    DTKHDDVD* toolkit = nullptr;
    EXPECT_EQ(CreateDrawingToolkit_HDDVD(&dfb, &screen, 1, &toolkit), 0);
    toolkit->priv->target_cr = toolkit->priv->scratch_cr = reinterpret_cast<cairo_t*>(this);
    calls();
    EXPECT_EQ(DTKHDDVD_Release_HW(toolkit), 0);
    EXPECT_EQ(calls_with("cairo"), "\n");
}

TEST_F(Lifetime, TakesThePatternAwayThroughTheRecord)
{
    static int times;
    for (bool is_hardware : {false, true}) {
        Toolkit toolkit = is_hardware ? hardware_toolkit() : software_toolkit(0);
        times = 0;
        toolkit->SetFillPattern = [](DTKHDDVD* thiz, IDirectFBSurface* texture) {
            EXPECT_EQ(texture, nullptr);
            EXPECT_EQ(transcript().lines().size(), 0u) << "nothing is released before";
            EXPECT_EQ(thiz->priv->ref_count, 0u);
            times++;
            return refusal;
        };
        EXPECT_EQ(toolkit->Release(toolkit.release()), 0) << "its result is ignored";
        EXPECT_EQ(times, 1);
        calls();
    }
}

TEST_F(Lifetime, LeavesThePenToItsOwner)
{
    Toolkit toolkit = software_toolkit(0);
    const Pen made = pen(toolkit, 5, 5);
    toolkit->SetPen(toolkit.get(), made.get());
    toolkit.reset();
    EXPECT_EQ(made->priv->ref_count, 2u);
    made->Release(made.get());
}

TEST_F(Lifetime, RefusesANullToolkit)
{
    const Outcome outcome = run([] {
        EXPECT_EQ(DTKHDDVD_AddRef_SW(nullptr), thiz_null);
        EXPECT_EQ(DTKHDDVD_AddRef_HW(nullptr), thiz_null);
        EXPECT_EQ(DTKHDDVD_Release_SW(nullptr), thiz_null);
        return DTKHDDVD_Release_HW(nullptr);
    });
    EXPECT_EQ(outcome.result, thiz_null);
    EXPECT_EQ(outcome.error, "");
}

/// One toolkit among several, each of which lives through random calls.
class Walker {
public:
    Walker(IDirectFB* dfb, IDirectFBSurface* screen) : dfb_(dfb), screen_(screen) {}

    void step(fake::Random& random)
    {
        if (!toolkit_)
            return create(random);
        switch (random.between(0, 7)) {
        case 0:
        case 1:
            return (void)AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit_, screen_);
        case 2:
        case 3:
            return (void)DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit_);
        case 4:
            return (void)toolkit_->SetFillPattern(toolkit_, screen_);
        case 5:
            return (void)toolkit_->SetFillColor(toolkit_, 1, 2, 3, 4);
        case 6:
            return draw(random);
        default:
            return end();
        }
    }

    void end()
    {
        if (toolkit_)
            toolkit_->Release(toolkit_);
        toolkit_ = nullptr;
    }

private:
    void create(fake::Random& random)
    {
        fake::platform().engine_handle = random.between(0, 1) ? 7 : 0;
        IDirectFBSurface* surface = random.between(0, 1) ? screen_ : nullptr;
        CreateDrawingToolkit_HDDVD(dfb_, surface, u8(random.between(0, 1)), &toolkit_);
    }

    /// Drawing fails while there is no target, and must touch nothing that is gone.
    void draw(fake::Random& random)
    {
        const DFBRectangle rect = {4, 4, 20, 12};
        const DFBPoint points[] = {{3, 3}, {20, 5}, {9, 30}};
        const u32 flags = u32(random.between(0, 3));
        toolkit_->SetStrokeColor(toolkit_, 9, 9, 9, random.between(0, 1) ? 255 : 100);
        toolkit_->Rectangle(toolkit_, &rect, flags);
        toolkit_->Ellipse(toolkit_, &rect, flags);
        toolkit_->Polygon(toolkit_, points, 3, 1, flags);
        toolkit_->Line(toolkit_, 1, 2, 3, 4);
    }

    IDirectFB* dfb_;
    IDirectFBSurface* screen_;
    DTKHDDVD* toolkit_ = nullptr;
};

TEST_F(Lifetime, DropsNothingTwiceInAnyOrderOfCalls)
{
    for (unsigned int seed = 1; seed <= 300 && !HasFailure(); seed++) {
        fake::Random random(seed);
        Walker one(&dfb, &screen), other(&dfb, &screen);
        run([&] {
            for (int i = 0; i < 40; i++)
                (random.between(0, 1) ? one : other).step(random);
            one.end();
            other.end();
            return DFB_OK;
        });
        EXPECT_EQ(screen.references, 1) << seed;
        calls();
    }
}

TEST_F(Lifetime, DropsNothingTwiceWhenCallsFail)
{
    for (unsigned int seed = 1; seed <= 600 && !HasFailure(); seed++) {
        fake::Random random(seed);
        Walker walker(&dfb, &screen);
        run([&] {
            for (int i = 0; i < 30; i++) {
                transcript().reset();
                transcript().fail_call(random.between(1, 6), refusal);
                walker.step(random);
            }
            transcript().reset();
            walker.end();
            return DFB_OK;
        });
        EXPECT_GE(screen.references, 1) << seed;
    }
}

} // namespace
