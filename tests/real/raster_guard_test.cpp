#include "real/directfb.h"
#include "real/random.h"
#include "support/capture.h"

#include <functional>
#include <gtest/gtest.h>

/// The rasterisers on a sub-surface in the middle of a larger surface: whatever they write outside shows there.
namespace real {
namespace {

constexpr DFBRectangle middle = {40, 32, 32, 24};
constexpr u32 color = 0xff00ff00;

class RasterGuard : public testing::Test {
protected:
    RasterGuard() { clear(surface, background); }

    /// The pixels around the middle hold what they held at first.
    void expect_untouched_margin() const
    {
        const Pixels pixels = read(surface.get());
        for (int y = 0; y < pixels.height; ++y) {
            for (int x = 0; x < pixels.width; ++x) {
                if (!is_in_the_middle(x, y)) {
                    ASSERT_EQ(pixels.at(x, y), background) << "at (" << x << ", " << y << ")";
                }
            }
        }
    }

    Surface surface = make_surface(112, 88);
    Surface inner = make_inner();

private:
    static bool is_in_the_middle(int x, int y)
    {
        return x >= middle.x && x < middle.x + middle.w && y >= middle.y && y < middle.y + middle.h;
    }

    Surface make_inner() const
    {
        IDirectFBSurface* sub_surface = nullptr;
        EXPECT_EQ(surface->GetSubSurface(surface.get(), &middle, &sub_surface), DFB_OK);
        return Surface(sub_surface);
    }
};

/// A box around, across, beside or far away from the surface; it may have a negative size.
DFBRectangle random_box(Random& random)
{
    const int reach = random.coin() ? 60 : 5000;
    const int x = random.between(-reach, reach), y = random.between(-reach, reach);
    const int w = random.between(-reach / 4, 2 * reach), h = random.between(-reach / 4, 2 * reach);
    return {x, y, w, h};
}

/// Boxes at the ends of what coordinates can be, none of them large.
constexpr int most = 2147483647;
constexpr int least = -most - 1;
constexpr DFBRectangle distant_boxes[] = {{most, most, 100, 100},   {most - 50, 0, 100, 100}, {0, most - 50, 100, 100},
                                          {least, least, 100, 100}, {least, 5, 100, 20},      {5, least, 20, 100},
                                          {most, least, -90, -90},  {least, most, -90, -90}};

using Draw = std::function<void(const DFBRectangle&)>;

void draw_many(const Draw& draw)
{
    Random random(6);
    for (int i = 0; i < 1500; ++i)
        draw(random_box(random));
    for (const DFBRectangle& box : distant_boxes)
        draw(box);
}

} // namespace

TEST_F(RasterGuard, HoldsForFilledEllipses)
{
    draw_many([&](const DFBRectangle& box) { fill_ellipse_argb(inner.get(), &box, nullptr, color); });
    expect_untouched_margin();
    EXPECT_FALSE(holds_only(inner.get(), background));
}

TEST_F(RasterGuard, HoldsForFilledEllipsesWithAClip)
{
    const DFBRectangle clip = {8, 4, 10, 12};
    draw_many([&](const DFBRectangle& box) { fill_ellipse_argb(inner.get(), &box, &clip, color); });
    expect_untouched_margin();

    const Pixels pixels = read(inner.get());
    EXPECT_EQ(pixels.at(8, 4), color);
    EXPECT_EQ(pixels.at(17, 15), color);
    EXPECT_EQ(pixels.at(7, 4), background);
    EXPECT_EQ(pixels.at(18, 15), background);
    EXPECT_EQ(pixels.at(8, 3), background);
    EXPECT_EQ(pixels.at(17, 16), background);
}

TEST_F(RasterGuard, HoldsForThinOutlines)
{
    const Toolkit toolkit = make_toolkit(inner.get(), false);
    draw_many([&](const DFBRectangle& box) { toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_STROKE); });
    expect_untouched_margin();
    EXPECT_FALSE(holds_only(inner.get(), background));
}

/// Some walks end a column further out than half the width.
TEST_F(RasterGuard, HoldsForThinOutlinesThatTouchASide)
{
    const Toolkit toolkit = make_toolkit(inner.get(), false);
    for (int w = 1; w <= middle.w + 2; ++w) {
        for (int h = 1; h <= middle.h + 2; ++h) {
            for (const int x : {-2, -1, 0, middle.w - w - 1, middle.w - w, middle.w - w + 1, middle.w - w + 2}) {
                const DFBRectangle box = {x, (middle.h - h) / 2, w, h};
                toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_STROKE);
            }
        }
    }
    expect_untouched_margin();
    EXPECT_FALSE(holds_only(inner.get(), background));
}

TEST_F(RasterGuard, HoldsForStamps)
{
    const Toolkit toolkit = make_toolkit(inner.get(), false);
    set_pen(toolkit, rectangular_pen(5, 4));
    draw_many([&](const DFBRectangle& box) { toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_STROKE); });
    expect_untouched_margin();
    EXPECT_FALSE(holds_only(inner.get(), background));
    drop_pen(toolkit);
}

TEST_F(RasterGuard, HoldsForEverythingThroughTheScratchPad)
{
    Capture errors(stderr);
    const Toolkit toolkit = make_toolkit(inner.get(), true);
    toolkit->SetFillColor(toolkit.get(), 0, 0xff, 0, 0x40);
    draw_many([&](const DFBRectangle& box) {
        toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_FILL | DTKHDDVD_STROKE);
        toolkit->Rectangle(toolkit.get(), &box, DTKHDDVD_FILL | DTKHDDVD_STROKE);
    });
    expect_untouched_margin();
    EXPECT_FALSE(holds_only(inner.get(), background));
}

TEST_F(RasterGuard, HoldsForTexturedFills)
{
    const Surface texture = make_surface(5, 3);
    clear(texture, color);
    const Toolkit toolkit = make_toolkit(inner.get(), false);
    toolkit->SetFillPattern(toolkit.get(), texture.get());
    draw_many([&](const DFBRectangle& box) {
        EXPECT_EQ(toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_FILL), DFB_OK);
        EXPECT_EQ(toolkit->Rectangle(toolkit.get(), &box, DTKHDDVD_FILL), DFB_OK);
    });
    expect_untouched_margin();
    EXPECT_FALSE(holds_only(inner.get(), background));
}

TEST(RasterGuardOn8Bits, HoldsForFilledEllipses)
{
    const Surface surface = make_surface(112, 88, DSPF_LUT8);
    IDirectFBSurface* sub_surface = nullptr;
    ASSERT_EQ(surface->GetSubSurface(surface.get(), &middle, &sub_surface), DFB_OK);
    const Surface inner(sub_surface);
    draw_many([&](const DFBRectangle& box) { fill_ellipse_lut8(inner.get(), &box, nullptr, 7); });

    EXPECT_TRUE(holds_only(inner.get(), 7));
    EXPECT_EQ(inner->SetColorIndex(inner.get(), read(surface.get()).at(0, 0)), DFB_OK);
    EXPECT_EQ(inner->FillRectangle(inner.get(), 0, 0, middle.w, middle.h), DFB_OK);
    EXPECT_TRUE(holds_only(surface.get(), read(surface.get()).at(0, 0)));
}

} // namespace real
