#include "real/directfb.h"
#include "real/random.h"

#include <gtest/gtest.h>

/// Patterns that begin far to the left of the surface or above it.

namespace {

using namespace real;

constexpr int width = 60, height = 40;
constexpr int tile_width = 7, tile_height = 5;

/// An opaque texture, all pixels of which differ.
u32 texel(int x, int y)
{
    return 0xff000000 | static_cast<u32>(x) * 0x201000 | static_cast<u32>(y) * 0x0033;
}

Surface make_texture()
{
    Surface texture = make_surface(tile_width, tile_height);
    for (int y = 0; y < tile_height; ++y) {
        for (int x = 0; x < tile_width; ++x)
            write_pixel(texture, x, y, texel(x, y));
    }
    return texture;
}

/// What of a texture that begins at `origin` lies at `coordinate`.
int place(int coordinate, int origin, int tile)
{
    const int rest = (coordinate - origin) % tile;
    return rest < 0 ? rest + tile : rest;
}

class FarPatterns : public testing::TestWithParam<DFBPoint> {
protected:
    void expect_pattern_everywhere(DFBPoint origin) const
    {
        const Pixels pixels = read(surface.get());
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                ASSERT_EQ(pixels.at(x, y), texel(place(x, origin.x, tile_width), place(y, origin.y, tile_height)))
                    << x << ' ' << y;
        }
    }

    Surface surface = make_surface(width, height);
    Surface texture = make_texture();
};

TEST_P(FarPatterns, AreDrawnFromWhereTheyBegin)
{
    const DFBPoint origin = GetParam();
    const Toolkit toolkit = make_toolkit(surface.get(), false);
    ASSERT_EQ(toolkit->SetFillPattern(toolkit.get(), texture.get()), DFB_OK);

    const DFBRectangle rect = {origin.x, origin.y, 100 - origin.x, 100 - origin.y};
    ASSERT_EQ(toolkit->Rectangle(toolkit.get(), &rect, DTKHDDVD_FILL), DFB_OK);
    expect_pattern_everywhere(origin);

    clear(surface, background);
    const DFBPoint corners[] = {origin, {100, origin.y}, {100, 100}, {origin.x, 100}};
    ASSERT_EQ(toolkit->Polygon(toolkit.get(), corners, 4, 1, DTKHDDVD_FILL), DFB_OK);
    expect_pattern_everywhere(origin);

    // An ellipse whose middle is the surface.
    clear(surface, background);
    const DFBRectangle around = {origin.x, origin.y, width - 2 * origin.x, height - 2 * origin.y};
    ASSERT_EQ(toolkit->Ellipse(toolkit.get(), &around, DTKHDDVD_FILL), DFB_OK);
    expect_pattern_everywhere(origin);
}

INSTANTIATE_TEST_SUITE_P(
    , FarPatterns,
    testing::Values(DFBPoint{-100, -100}, DFBPoint{-32700, -200}, DFBPoint{-32700, -32700}, DFBPoint{-32766, -50},
                    DFBPoint{-50, -32766}, DFBPoint{-32767, -32767}, DFBPoint{-32768, -32768}, DFBPoint{-65536, -65537},
                    DFBPoint{-1000001, -999999}, DFBPoint{-4000000, -3000001}));

} // namespace
