#include "real/random_primitive.h"
#include "real/reference_ledger.h"
#include "support/capture.h"

#include "toolkit/records.h"

#include <gtest/gtest.h>

namespace real {
namespace {

constexpr int storm = 300;

/// With and without a scratch pad.
class References : public testing::TestWithParam<bool> {
protected:
    bool has_pad() const { return GetParam(); }

    /// What the tests' own surfaces add to those that are alive.
    static constexpr int own_surfaces = 2;

    /// A sub-surface of DirectFB2 has a reference on its parent's interface, one of DirectFB 1.7 has none.
    int references_of_a_sub_surface() const
    {
        const int before = ledger.on(texture);
        IDirectFBSurface* part = nullptr;
        EXPECT_EQ(texture->GetSubSurface(texture.get(), nullptr, &part), DFB_OK);
        const int taken = ledger.on(texture) - before;
        part->Release(part);
        return taken;
    }

    ReferenceLedger ledger;
    Surface surface = make_surface(24, 24);
    Surface texture = make_surface(4, 4);
};

INSTANTIATE_TEST_SUITE_P(ScratchPad, References, testing::Bool());

/// Draws with a pen and a texture, so that everything that a toolkit can hold is held.
void draw_a_little(const Toolkit& toolkit, const Surface& texture, Random& random)
{
    toolkit->SetStrokeColor(toolkit.get(), 0xff, 0, 0, 0x80);
    toolkit->SetFillPattern(toolkit.get(), texture.get());
    for (int i = 0; i < 3; ++i) {
        const RandomPrimitive primitive(random, 24, 24);
        primitive.choose_pen(toolkit);
        primitive.draw(toolkit, DTKHDDVD_STROKE | DTKHDDVD_FILL);
    }
    drop_pen(toolkit);
}

Toolkit make_unattached_toolkit(bool use_scratch_pad)
{
    return make_toolkit(nullptr, use_scratch_pad);
}

/// Keeps what a new attachment would forget, and gives it back at the end.
class Forgotten {
public:
    explicit Forgotten(const Toolkit& toolkit)
        : target_(toolkit->priv->target), scratch_(toolkit->priv->scratch), target_context_(toolkit->priv->target_cr),
          scratch_context_(toolkit->priv->scratch_cr)
    {
    }

    void give_back_target() { target_->Release(target_); }
    void give_back_scratch() { scratch_->Release(scratch_); }
    void give_back_target_context() { cairo_destroy(target_context_); }
    void give_back_scratch_context() { cairo_destroy(scratch_context_); }

private:
    IDirectFBSurface *target_, *scratch_;
    cairo_t *target_context_, *scratch_context_;
};

} // namespace

TEST_P(References, AreAllGivenBackByRelease)
{
    Capture errors(stderr);
    Random random(4);
    for (int i = 0; i < storm; ++i) {
        Toolkit toolkit = make_toolkit(surface.get(), has_pad());
        draw_a_little(toolkit, texture, random);
        toolkit.reset();
        ASSERT_EQ(ledger.surfaces_alive(), own_surfaces);
        ASSERT_EQ(ledger.on(surface), 0);
        ASSERT_EQ(ledger.on(texture), 0);
        ASSERT_EQ(ledger.on_directfb(), 0);
    }
}

TEST_P(References, AreHeldUntilTheLastRelease)
{
    Toolkit toolkit = make_toolkit(surface.get(), has_pad());
    EXPECT_EQ(ledger.on_directfb(), 1);
    EXPECT_EQ(ledger.surfaces_alive(), own_surfaces + (has_pad() ? 2 : 1));

    EXPECT_EQ(toolkit->AddRef(toolkit.get()), DFB_OK);
    EXPECT_EQ(toolkit->Release(toolkit.get()), DFB_OK);
    EXPECT_EQ(ledger.on_directfb(), 1);

    toolkit.reset();
    EXPECT_EQ(ledger.on_directfb(), 0);
    EXPECT_EQ(ledger.surfaces_alive(), own_surfaces);
}

TEST_P(References, AreTakenByAttachAndNotByCreation)
{
    Toolkit toolkit = make_unattached_toolkit(has_pad());
    EXPECT_EQ(ledger.on_directfb(), 0);
    EXPECT_EQ(AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get(), surface.get()), DFB_OK);
    EXPECT_EQ(ledger.on_directfb(), 1);
    toolkit.reset();
    EXPECT_EQ(ledger.on_directfb(), 0);
    EXPECT_EQ(ledger.surfaces_alive(), own_surfaces);
}

/// A detach leaves the sub-surface and the reference on DirectFB, and the pad's context until the next attach.
TEST_P(References, OfDetachAndAttachAddUpToWhatIsMeantToStay)
{
    Capture errors(stderr);
    Random random(5);
    Toolkit toolkit = make_unattached_toolkit(has_pad());
    for (int i = 1; i <= storm; ++i) {
        ASSERT_EQ(AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get(), surface.get()), DFB_OK);
        draw_a_little(toolkit, texture, random);
        EXPECT_EQ(ledger.on_directfb(), i);

        Forgotten forgotten(toolkit);
        ASSERT_EQ(DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get()), DFB_OK);
        EXPECT_EQ(ledger.on(surface), references_of_a_sub_surface());
        EXPECT_EQ(ledger.surfaces_alive(), own_surfaces + (has_pad() ? 2 : 1));
        forgotten.give_back_target();
    }
    toolkit.reset();
    EXPECT_EQ(ledger.on_directfb(), storm - 1);
    EXPECT_EQ(ledger.surfaces_alive(), own_surfaces);
    for (int i = 1; i < storm; ++i)
        directfb()->Release(directfb());
}

TEST_P(References, AreGivenBackOnceByReleaseAfterDetach)
{
    for (int i = 0; i < storm; ++i) {
        Toolkit toolkit = make_toolkit(surface.get(), has_pad());
        Forgotten forgotten(toolkit);
        ASSERT_EQ(DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get()), DFB_OK);
        ASSERT_EQ(DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get()), DFB_OK);
        forgotten.give_back_target();
        toolkit.reset();
        ASSERT_EQ(ledger.on_directfb(), 0);
        ASSERT_EQ(ledger.surfaces_alive(), own_surfaces);
    }
}

TEST_P(References, OfAnAttachmentAreForgottenWhenAnotherReplacesIt)
{
    Toolkit toolkit = make_toolkit(surface.get(), has_pad());
    Forgotten forgotten(toolkit);
    EXPECT_EQ(AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get(), texture.get()), DFB_OK);
    EXPECT_EQ(ledger.on_directfb(), 2);
    EXPECT_EQ(ledger.on(surface), 1 + references_of_a_sub_surface());

    forgotten.give_back_target_context();
    forgotten.give_back_target();
    if (has_pad()) {
        forgotten.give_back_scratch_context();
        forgotten.give_back_scratch();
    }
    EXPECT_EQ(ledger.on(surface), 0);
    toolkit.reset();
    EXPECT_EQ(ledger.surfaces_alive(), own_surfaces);
    EXPECT_EQ(ledger.on_directfb(), 1);
    directfb()->Release(directfb());
}

/// A creation that fails gives back a reference on DirectFB that it has not taken.
TEST(FailedCreation, GivesBackEverythingAndOneReferenceMore)
{
    ReferenceLedger ledger;
    const Surface surface = make_surface(8, 8);
    ledger.refuse_surfaces(DFB_NOVIDEOMEMORY);
    Capture errors(stderr);
    for (int i = 1; i <= storm; ++i) {
        directfb()->AddRef(directfb());
        DTKHDDVD* toolkit = nullptr;
        ASSERT_EQ(CreateDrawingToolkit_HDDVD(directfb(), surface.get(), 1, &toolkit), DFB_NOVIDEOMEMORY);
        ASSERT_EQ(toolkit, nullptr);
        ASSERT_EQ(ledger.on_directfb(), 0);
        ASSERT_EQ(ledger.surfaces_alive(), 1);
    }
}

/// A failed attach leaves the new target, without a pad and without a reference on DirectFB.
TEST(FailedAttach, CanBeTriedAgain)
{
    ReferenceLedger ledger;
    const Surface surface = make_surface(8, 8);
    Toolkit toolkit = make_unattached_toolkit(true);
    Capture errors(stderr);
    ledger.refuse_surfaces(DFB_NOVIDEOMEMORY);
    EXPECT_EQ(AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get(), surface.get()), DFB_NOVIDEOMEMORY);
    EXPECT_EQ(errors.text(), "Error creating DrawingToolkit scratchpad!!\n");
    EXPECT_EQ(ledger.on_directfb(), 0);

    ledger.refuse_surfaces(DFB_OK);
    Forgotten forgotten(toolkit);
    EXPECT_EQ(AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get(), surface.get()), DFB_OK);
    forgotten.give_back_target();
    toolkit.reset();
    EXPECT_EQ(ledger.on_directfb(), 0);
    EXPECT_EQ(ledger.surfaces_alive(), 1);
}

TEST(PenReferences, AreSharedByToolkitAndOwner)
{
    ReferenceLedger ledger;
    const Surface surface = make_surface(8, 8);
    const Toolkit toolkit = make_toolkit(surface.get(), false);
    const int before = ledger.surfaces_alive();
    for (int i = 0; i < storm; ++i) {
        Pen pen = make_pen(toolkit, rectangular_pen(3, 3));
        EXPECT_EQ(toolkit->SetPen(toolkit.get(), pen.get()), DFB_OK);
        EXPECT_EQ(toolkit->SetPen(toolkit.get(), pen.get()), DFB_OK);
        EXPECT_EQ(pen->priv->ref_count, 2u);
        pen.reset();
        EXPECT_EQ(toolkit->Line(toolkit.get(), 1, 1, 5, 5), DFB_OK);
        EXPECT_EQ(ledger.surfaces_alive(), before + 1);
        drop_pen(toolkit);
        EXPECT_EQ(ledger.surfaces_alive(), before);
    }
}

} // namespace real
