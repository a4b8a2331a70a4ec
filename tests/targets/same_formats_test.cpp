/// Whatever cairo fills has the same pixels in every target format with every texture format, on every machine, with every
/// cairo, and in both ways of cairo to the pixels. The sums were made on amd64 by cairo 1.16 through its DirectFB back end.
#include "real/directfb.h"
#include "real/random.h"
#include "targets/hash.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct Format {
    const char* name;
    DFBSurfacePixelFormat format;
    int bits;        ///< A pixel's, in memory.
    u32 significant; ///< Those of its bits that DirectFB gives a meaning.
    std::uint64_t sum;
};

void PrintTo(const Format& format, std::ostream* stream)
{
    *stream << format.name;
}

const Format formats[] = {
    {"ARGB", DSPF_ARGB, 32, 0xffffffff, 3903664805513862964u},
    {"RGB32", DSPF_RGB32, 32, 0x00ffffff, 14449635426899513497u},
    {"RGB24", DSPF_RGB24, 24, 0x00ffffff, 13469010908304923938u},
    {"RGB16", DSPF_RGB16, 16, 0xffff, 6754932655471256853u},
    {"ARGB1555", DSPF_ARGB1555, 16, 0xffff, 5590839155883638063u},
    {"RGB555", DSPF_RGB555, 16, 0x7fff, 5876884105705182127u},
    {"BGR555", DSPF_BGR555, 16, 0x7fff, 8096044693568539505u},
    {"ARGB4444", DSPF_ARGB4444, 16, 0xffff, 12529996058087220032u},
    {"RGB444", DSPF_RGB444, 16, 0x0fff, 1866051304405444016u},
    {"RGB332", DSPF_RGB332, 8, 0xff, 14554138645859107343u},
    {"A8", DSPF_A8, 8, 0xff, 2775806508398429698u},
    {"A4", DSPF_A4, 4, 0xff, 7336389066500073214u}, // Two pixels a byte.
};

/// Calls `visit(byte)` for each byte of a surface's pixels, in order; what the visitor leaves there stays.
template <typename Visit>
void for_each_byte(IDirectFBSurface* surface, int bits, Visit&& visit)
{
    int width = 0, height = 0, pitch = 0;
    void* first = nullptr;
    surface->GetSize(surface, &width, &height);
    ASSERT_EQ(surface->Lock(surface, static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE), &first, &pitch), DFB_OK);
    for (int y = 0; y < height; ++y)
        for (int i = 0; i < width * bits / 8; ++i)
            visit(static_cast<u8*>(first)[y * pitch + i], i);
    surface->Unlock(surface);
}

u8 significant_part(const Format& format, int byte)
{
    return static_cast<u8>(format.significant >> byte % std::max(format.bits / 8, 1) * 8);
}

real::Surface make_noise(const Format& format, int width, int height, real::Random& random)
{
    real::Surface surface = real::make_surface(width, height, format.format);
    for_each_byte(surface.get(), format.bits, [&](u8& byte, int i) {
        byte = static_cast<u8>(random.between(0, 255) & significant_part(format, i));
    });
    return surface;
}

/// Cairo's back end begins a shape at a whole byte, and is off by a pixel with an odd left edge in A4.
int random_even(real::Random& random, int low, int high)
{
    return 2 * random.between(low / 2, high / 2);
}

DFBRectangle random_box(real::Random& random)
{
    const int x = random_even(random, -20, 70), y = random.between(-20, 50);
    const int w = random_even(random, -20, 60), h = random.between(-20, 60);
    return {x, y, w, h};
}

void draw_polygon(DTKHDDVD* toolkit, real::Random& random)
{
    DFBPoint points[5];
    for (DFBPoint& point : points) {
        point.x = random_even(random, -20, 80);
        point.y = random.between(-20, 60);
    }
    EXPECT_EQ(toolkit->Polygon(toolkit, points, 5, 1, DTKHDDVD_FILL), DFB_OK);
}

void draw_shape(DTKHDDVD* toolkit, bool is_patterned, real::Random& random)
{
    const DFBRectangle box = random_box(random);
    const int figure = is_patterned ? random.between(0, 2) : 0;
    if (figure == 0)
        draw_polygon(toolkit, random);
    else if (figure == 1)
        EXPECT_EQ(toolkit->Rectangle(toolkit, &box, DTKHDDVD_FILL), DFB_OK);
    else
        EXPECT_EQ(toolkit->Ellipse(toolkit, &box, DTKHDDVD_FILL), DFB_OK);
}

void set_random_color(DTKHDDVD* toolkit, real::Random& random)
{
    u8 color[4];
    for (u8& component : color)
        component = static_cast<u8>(random.between(0, 255));
    const u8 alpha = random.between(0, 1) ? 255 : color[3];
    EXPECT_EQ(toolkit->SetFillColor(toolkit, color[0], color[1], color[2], alpha), DFB_OK);
}

class SameFormats : public testing::TestWithParam<Format> {};

} // namespace

TEST_P(SameFormats, WhateverCairoFills)
{
    const Format& format = GetParam();
    real::Random random(1);
    const real::Surface target = make_noise(format, 62, 43, random);
    const real::Toolkit toolkit = real::make_toolkit(target.get(), false);
    targets::Hash hash;
    for (const Format& other : formats) {
        const real::Surface texture = make_noise(other, 14, 9, random);
        for (int i = 0; i < 12; ++i) {
            const bool is_patterned = i % 2 == 0;
            if (is_patterned)
                EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), texture.get()), DFB_OK);
            else
                set_random_color(toolkit.get(), random);
            draw_shape(toolkit.get(), is_patterned, random);
            for_each_byte(target.get(), format.bits,
                          [&](u8 byte, int at) { hash.put(static_cast<u8>(byte & significant_part(format, at))); });
        }
    }
    EXPECT_EQ(hash.sum(), format.sum);
}

INSTANTIATE_TEST_SUITE_P(, SameFormats, testing::ValuesIn(formats),
                         [](const auto& format) { return format.param.name; });
