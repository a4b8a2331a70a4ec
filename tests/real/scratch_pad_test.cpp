#include "real/random_primitive.h"
#include "support/capture.h"

#include "toolkit/records.h"

#include <gtest/gtest.h>
#include <set>

namespace real {
namespace {

constexpr int width = 48;
constexpr int height = 40;

/// A toolkit with a scratch pad on a surface of width x height pixels.
class ScratchPad : public testing::Test {
protected:
    void SetUp() override
    {
        toolkit->SetStrokeColor(toolkit.get(), 0xff, 0, 0, 0x80);
        toolkit->SetFillColor(toolkit.get(), 0, 0, 0xff, 0x40);
    }
    void TearDown() override { drop_pen(toolkit); }

    IDirectFBSurface* pad() { return toolkit->priv->scratch; }

    Surface surface = make_surface(width, height);
    Toolkit toolkit = make_toolkit(surface.get(), true);
};

Surface make_checkered_texture()
{
    Surface texture = make_surface(3, 2);
    clear(texture, 0x80ffff00);
    write_pixel(texture, 1, 1, 0xff00ff00);
    return texture;
}

std::set<u32> colors_of(IDirectFBSurface* surface)
{
    const Pixels pixels = read(surface);
    return {pixels.values.begin(), pixels.values.end()};
}

/// What DirectFB answers to a blend that lies wholly outside.
bool is_expected(DFBResult result)
{
    return result == DFB_OK || result == DFB_INVAREA;
}

} // namespace

TEST_F(ScratchPad, IsTransparentAfterEachPrimitiveInAndAroundTheSurface)
{
    Capture errors(stderr);
    Random random(1);
    const Surface texture = make_checkered_texture();
    for (int i = 0; i < 4000; ++i) {
        const RandomPrimitive primitive(random, width, height);
        const auto flags = static_cast<u32>(random.between(1, 3));
        primitive.choose_pen(toolkit);
        toolkit->SetFillPattern(toolkit.get(), random.coin() ? texture.get() : nullptr);
        EXPECT_TRUE(is_expected(primitive.draw(toolkit, flags))) << primitive.description();
        ASSERT_TRUE(holds_only(pad(), 0)) << primitive.description() << ", flags " << flags << ", number " << i;
    }
}

TEST_F(ScratchPad, GivesAnOutlineOneColourHoweverItsStampsOverlap)
{
    Capture errors(stderr);
    Random random(2);
    for (int i = 0; i < 2000; ++i) {
        clear(surface, background);
        const RandomPrimitive primitive(random, width, height);
        primitive.choose_pen(toolkit);
        EXPECT_TRUE(is_expected(primitive.draw(toolkit, DTKHDDVD_STROKE))) << primitive.description();
        for (const u32 color : colors_of(surface.get()))
            ASSERT_TRUE(color == background || color == 0xbfc04040) << std::hex << color << primitive.description();
    }
}

TEST_F(ScratchPad, BlendsFillAndOutlineOnceEach)
{
    toolkit->SetStrokeColor(toolkit.get(), 0xff, 0, 0, 0x80);
    set_pen(toolkit, rectangular_pen(5, 5));
    const DFBRectangle box = {10, 10, 24, 20};

    EXPECT_EQ(toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_STROKE | DTKHDDVD_FILL), DFB_OK);
    EXPECT_EQ(colors_of(surface.get()), (std::set<u32>{background, 0xbfc04040, 0xcf6060a0}));
}

TEST_F(ScratchPad, OutsideTheSurfaceIsRefusedAndKeepsItsDrawing)
{
    ASSERT_EQ(pad()->SetColor(pad(), 1, 2, 3, 4), DFB_OK);
    ASSERT_EQ(pad()->FillRectangle(pad(), 0, 0, 1, 1), DFB_OK);
    const DFBRectangle outside = {width + 1, 0, 10, 10};

    Capture errors(stderr);
    EXPECT_EQ(toolkit->Rectangle(toolkit.get(), &outside, DTKHDDVD_FILL), DFB_INVAREA);
    EXPECT_EQ(errors.text(), "error in DTKHDDVD_Rectangle: An invalid area has been specified or detected\n");
    EXPECT_EQ(read(pad()).at(0, 0), 0x04010203u);
    EXPECT_TRUE(holds_only(surface.get(), background));

    // The next blend over the place shows it and clears it.
    const DFBRectangle corner = {0, 0, 2, 2};
    EXPECT_EQ(toolkit->Rectangle(toolkit.get(), &corner, DTKHDDVD_STROKE), DFB_OK);
    EXPECT_TRUE(holds_only(pad(), 0));
}

TEST_F(ScratchPad, IsNotTouchedByOpaquePrimitives)
{
    ASSERT_EQ(pad()->Clear(pad(), 9, 9, 9, 9), DFB_OK);
    toolkit->SetStrokeColor(toolkit.get(), 0xff, 0, 0, 0xff);
    toolkit->SetFillColor(toolkit.get(), 0, 0, 0xff, 0xff);
    set_pen(toolkit, rectangular_pen(3, 3));
    Random random(3);
    for (int i = 0; i < 200; ++i) {
        const RandomPrimitive primitive(random, width, height);
        EXPECT_EQ(primitive.draw(toolkit, DTKHDDVD_STROKE | DTKHDDVD_FILL), DFB_OK) << primitive.description();
    }
    EXPECT_TRUE(holds_only(pad(), 0x09090909));
    EXPECT_FALSE(holds_only(surface.get(), background));
}

TEST_F(ScratchPad, HasTheSizeOfTheSurfaceAndStartsTransparent)
{
    int pad_width = 0, pad_height = 0;
    ASSERT_EQ(pad()->GetSize(pad(), &pad_width, &pad_height), DFB_OK);
    EXPECT_EQ(pad_width, width);
    EXPECT_EQ(pad_height, height);
    EXPECT_TRUE(holds_only(pad(), 0));
}

TEST_F(ScratchPad, IsTransparentAfterEllipsesOfAFewPixels)
{
    for (int w = 1; w <= 4; ++w) {
        for (int h = 1; h <= 4; ++h) {
            const DFBRectangle box = {20, 20, w, h};
            EXPECT_EQ(toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_STROKE), DFB_OK);
            EXPECT_TRUE(holds_only(pad(), 0)) << "the outline of " << w << " x " << h;
            EXPECT_EQ(pad()->Clear(pad(), 0, 0, 0, 0), DFB_OK);
            EXPECT_EQ(toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_FILL), DFB_OK);
            EXPECT_TRUE(holds_only(pad(), 0)) << "the fill of " << w << " x " << h;
        }
    }
}

TEST_F(ScratchPad, IsTransparentAfterThinEllipsesOfAnySize)
{
    Capture errors(stderr);
    const Surface texture = make_checkered_texture();
    const std::vector<int> sizes = {-5, -4, -3, -2, -1, 0, 1, 2, 3, 4, 5, 6, 7, -3000, -100, -41, 30, 31, 79, 1001};
    for (const int w : sizes) {
        for (const int h : sizes) {
            for (const DFBPoint& corner : {DFBPoint{20, 20}, {-3, 11}, {0, 0}, {width - 2, height - 1}, {60, 70}}) {
                for (const u32 flags : {1u, 3u, 7u}) {
                    toolkit->SetFillPattern(toolkit.get(), flags == 7 ? texture.get() : nullptr);
                    const DFBRectangle box = {corner.x, corner.y, w, h};
                    if (toolkit->Ellipse(toolkit.get(), &box, flags) == DFB_OK) {
                        ASSERT_TRUE(holds_only(pad(), 0))
                            << corner.x << ' ' << corner.y << ' ' << w << ' ' << h << ", flags " << flags;
                    }
                    ASSERT_EQ(pad()->Clear(pad(), 0, 0, 0, 0), DFB_OK);
                }
            }
        }
    }
}

TEST_F(ScratchPad, IsTransparentAfterThinEllipsesOfHugeNegativeSize)
{
    Capture errors(stderr);
    const int least = -2147483647 - 1, huge = -(1 << 25);
    for (const DFBRectangle& box : {DFBRectangle{20, 20, least, 3}, {20, 20, huge, huge - 1},
                                    {20, 20, huge, -1}, {20, 20, 1, huge}, {-huge / 2, 20, huge, 5}}) {
        if (toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_STROKE) == DFB_OK) {
            ASSERT_TRUE(holds_only(pad(), 0)) << box.x << ' ' << box.w << ' ' << box.h;
        }
        ASSERT_EQ(pad()->Clear(pad(), 0, 0, 0, 0), DFB_OK);
    }
}

TEST_F(ScratchPad, ShowsThinEllipsesOfNoOrNegativeSize)
{
    for (int w = -5; w <= 1; ++w) {
        for (int h = -5; h <= 1; ++h) {
            clear(surface, background);
            const DFBRectangle box = {20, 20, w, h};
            EXPECT_EQ(toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_STROKE), DFB_OK) << w << ' ' << h;
            EXPECT_FALSE(holds_only(surface.get(), background)) << w << ' ' << h;
        }
    }
}

TEST_F(ScratchPad, RefusesToBlendBoxesWithoutWidthOrHeight)
{
    Capture errors(stderr);
    for (const DFBRectangle& box : {DFBRectangle{20, 20, 0, 5}, {20, 20, 5, 0}, {20, 20, -5, -5}}) {
        EXPECT_EQ(toolkit->Rectangle(toolkit.get(), &box, DTKHDDVD_FILL), DFB_INVARG);
        EXPECT_EQ(toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_FILL), DFB_INVARG);
    }
    EXPECT_TRUE(holds_only(surface.get(), background));
}

} // namespace real
