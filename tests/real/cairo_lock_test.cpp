#include "real/directfb.h"

#include <gtest/gtest.h>

/// cairo locks the surfaces that it draws on and reads. Between two operations the application finds them unlocked.
namespace real {
namespace {

enum class Primitive { rectangle, polygon, ellipse };

DFBResult fill(const Toolkit& toolkit, Primitive primitive)
{
    const DFBRectangle box = {2, 2, 12, 12};
    const DFBPoint points[] = {{2, 2}, {14, 2}, {14, 14}};
    if (primitive == Primitive::rectangle)
        return toolkit->Rectangle(toolkit.get(), &box, DTKHDDVD_FILL);
    if (primitive == Primitive::polygon)
        return toolkit->Polygon(toolkit.get(), points, 3, 1, DTKHDDVD_FILL);
    return toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_FILL);
}

/// Everything that DirectFB refuses while a surface is locked.
void expect_unlocked(const Surface& surface)
{
    void* pixels = nullptr;
    int pitch = 0;
    EXPECT_EQ(surface->Lock(surface.get(), DSLF_WRITE, &pixels, &pitch), DFB_OK);
    EXPECT_EQ(surface->Unlock(surface.get()), DFB_OK);
    EXPECT_EQ(surface->Clear(surface.get(), 0x80, 0x80, 0x80, 0xff), DFB_OK);
    EXPECT_EQ(surface->FillRectangle(surface.get(), 0, 0, 1, 1), DFB_OK);
    EXPECT_EQ(surface->Flip(surface.get(), nullptr, DSFLIP_NONE), DFB_OK);

    const Surface other = make_surface(4, 4);
    EXPECT_EQ(surface->Blit(surface.get(), other.get(), nullptr, 0, 0), DFB_OK);
    EXPECT_EQ(other->Blit(other.get(), surface.get(), nullptr, 0, 0), DFB_OK);
}

/// With and without a scratch pad.
class CairoLock : public testing::TestWithParam<bool> {
protected:
    Surface surface = make_surface(16, 16);
    Surface texture = make_surface(4, 4);
    Toolkit toolkit = make_toolkit(surface.get(), GetParam());
};

INSTANTIATE_TEST_SUITE_P(ScratchPad, CairoLock, testing::Bool());

} // namespace

TEST_P(CairoLock, IsGoneAfterATexturedFill)
{
    ASSERT_EQ(toolkit->SetFillPattern(toolkit.get(), texture.get()), DFB_OK);
    for (const Primitive primitive : {Primitive::rectangle, Primitive::polygon, Primitive::ellipse}) {
        SCOPED_TRACE(static_cast<int>(primitive));
        EXPECT_EQ(fill(toolkit, primitive), DFB_OK);
        expect_unlocked(surface);
        expect_unlocked(texture);
    }
}

TEST_P(CairoLock, IsGoneAfterAPolygonInOneColour)
{
    for (const u8 alpha : {u8{0xff}, u8{0x40}}) {
        toolkit->SetFillColor(toolkit.get(), 0, 0, 0xff, alpha);
        EXPECT_EQ(fill(toolkit, Primitive::polygon), DFB_OK);
        expect_unlocked(surface);
    }
}

TEST_P(CairoLock, DoesNotKeepAnOldPictureOfTheTexture)
{
    ASSERT_EQ(toolkit->SetFillPattern(toolkit.get(), texture.get()), DFB_OK);
    for (const u32 color : {0xff00ff00, 0xffff0000, 0xff0000ff}) {
        for (const Primitive primitive : {Primitive::rectangle, Primitive::polygon, Primitive::ellipse}) {
            clear(texture, color);
            clear(surface, background);
            EXPECT_EQ(fill(toolkit, primitive), DFB_OK);
            EXPECT_EQ(read(surface.get()).at(10, 6), color) << static_cast<int>(primitive);
        }
    }
}

TEST_P(CairoLock, LeavesTheTextureToItsOwnerWhenThePatternEnds)
{
    ASSERT_EQ(toolkit->SetFillPattern(toolkit.get(), texture.get()), DFB_OK);
    EXPECT_EQ(fill(toolkit, Primitive::rectangle), DFB_OK);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), nullptr), DFB_OK);
    expect_unlocked(texture);
}

TEST_P(CairoLock, LetsTheApplicationReleaseTheTextureEarly)
{
    clear(texture, 0xff00ff00);
    ASSERT_EQ(toolkit->SetFillPattern(toolkit.get(), texture.get()), DFB_OK);
    texture.reset();
    EXPECT_EQ(fill(toolkit, Primitive::rectangle), DFB_OK);
    EXPECT_EQ(read(surface.get()).at(10, 6), 0xff00ff00);
}

TEST_P(CairoLock, LetsDirectFBDrawBetweenTwoFillsOfCairo)
{
    toolkit->SetFillColor(toolkit.get(), 0, 0, 0xff, 0xff);
    EXPECT_EQ(fill(toolkit, Primitive::polygon), DFB_OK);
    ASSERT_EQ(surface->SetColor(surface.get(), 0, 0xff, 0, 0xff), DFB_OK);
    ASSERT_EQ(surface->FillRectangle(surface.get(), 0, 8, 4, 8), DFB_OK);
    EXPECT_EQ(fill(toolkit, Primitive::polygon), DFB_OK);

    const Pixels pixels = read(surface.get());
    EXPECT_EQ(pixels.at(10, 4), 0xff0000ffu);
    EXPECT_EQ(pixels.at(1, 10), 0xff00ff00u);
}

} // namespace real
