#include "real/changing_surface.h"
#include "support/capture.h"

#include <gtest/gtest.h>
#include <unistd.h>
#include <utility>

/// What cairo draws on a surface's memory, and reads from it, whatever the pixel format and wherever the memory is by then.
namespace real {
namespace {

constexpr DFBPoint everywhere[] = {{-5, -5}, {500, -5}, {500, 500}, {-5, 500}};

struct Format {
    const char* name;
    DFBSurfacePixelFormat format;
    u32 texel; ///< What cairo makes of 0xffff8040 in this format.
};

const Format formats[] = {
    {"ARGB", DSPF_ARGB, 0xffff8040},         {"RGB32", DSPF_RGB32, 0xffff8040},       {"RGB24", DSPF_RGB24, 0xffff8040},
    {"RGB16", DSPF_RGB16, 0xffff8242},       {"RGB555", DSPF_RGB555, 0xffff8442},     {"BGR555", DSPF_BGR555, 0xffff8442},
    {"ARGB1555", DSPF_ARGB1555, 0xffff8442}, {"ARGB4444", DSPF_ARGB4444, 0xffff8844}, {"RGB444", DSPF_RGB444, 0xffff8844},
    {"RGB332", DSPF_RGB332, 0xffff9255},     {"A8", DSPF_A8, 0xff000000},
};

void PrintTo(const Format& format, std::ostream* stream)
{
    *stream << format.name;
}

std::string name_of(const testing::TestParamInfo<Format>& format)
{
    return format.param.name;
}

class CairoImage : public testing::TestWithParam<Format> {};

INSTANTIATE_TEST_SUITE_P(Of, CairoImage, testing::ValuesIn(formats), name_of);

DFBResult fill(const Toolkit& toolkit)
{
    return toolkit->Polygon(toolkit.get(), everywhere, 4, 1, DTKHDDVD_FILL);
}

u32 texel_of(const Surface& texture)
{
    const Surface target = make_surface(3, 2);
    const Toolkit toolkit = make_toolkit(target.get(), false);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), texture.get()), DFB_OK);
    EXPECT_EQ(fill(toolkit), DFB_OK);
    const Pixels pixels = read(target.get());
    EXPECT_TRUE(holds_only(target.get(), pixels.at(0, 0)));
    return pixels.at(0, 0);
}

} // namespace

TEST_P(CairoImage, TextureKeepsItsColours)
{
    const Surface texture = make_surface(6, 3, GetParam().format);
    clear(texture, 0xffff8040);
    EXPECT_EQ(texel_of(texture), GetParam().texel);
}

TEST_P(CairoImage, TargetHasTheValueThatDirectFBStores)
{
    const Surface target = make_surface(6, 3, GetParam().format), expected = make_surface(6, 3, GetParam().format);
    clear(expected, 0xffff8040);
    const Toolkit toolkit = make_toolkit(target.get(), false);
    EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 0xff, 0x80, 0x40, 0xff), DFB_OK);
    EXPECT_EQ(fill(toolkit), DFB_OK);
    EXPECT_EQ(texel_of(target), texel_of(expected));
}

TEST_P(CairoImage, TargetKeepsWhatIsNotDrawnOn)
{
    const Surface target = make_surface(6, 3, GetParam().format);
    clear(target, 0xffff8040);
    const u32 before = read(target.get()).at(0, 1);
    const Toolkit toolkit = make_toolkit(target.get(), false);
    EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 0, 0, 0, 0xff), DFB_OK);
    constexpr DFBPoint right_half[] = {{4, 0}, {6, 0}, {6, 3}, {4, 3}};
    EXPECT_EQ(toolkit->Polygon(toolkit.get(), right_half, 4, 1, DTKHDDVD_FILL), DFB_OK);
    EXPECT_EQ(read(target.get()).at(0, 1), before);
}

/// DirectFB itself takes the upper half of a byte first.
TEST(CairoImageOfHalfBytes, HasTheLowerHalfFirst)
{
    const Surface texture = make_surface(4, 2, DSPF_A4), target = make_surface(4, 2, DSPF_A4);
    for (const Surface* surface : {&texture, &target}) {
        u8* pixels = nullptr;
        int pitch = 0;
        ASSERT_EQ((*surface)->Lock(surface->get(), DSLF_WRITE, reinterpret_cast<void**>(&pixels), &pitch), DFB_OK);
        for (int y = 0; y < 2; ++y) {
            pixels[y * pitch] = surface == &texture ? 0xf0 : 0x00;
            pixels[y * pitch + 1] = 0x0f;
        }
        (*surface)->Unlock(surface->get());
    }
    const Toolkit toolkit = make_toolkit(target.get(), false);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), texture.get()), DFB_OK);
    constexpr DFBPoint left_part[] = {{0, 0}, {3, 0}, {3, 2}, {0, 2}};
    EXPECT_EQ(toolkit->Polygon(toolkit.get(), left_part, 4, 1, DTKHDDVD_FILL), DFB_OK);
    u8* pixels = nullptr;
    int pitch = 0;
    ASSERT_EQ(target->Lock(target.get(), DSLF_READ, reinterpret_cast<void**>(&pixels), &pitch), DFB_OK);
    for (int y = 0; y < 2; ++y) {
        EXPECT_EQ(pixels[y * pitch], 0xf0);
        EXPECT_EQ(pixels[y * pitch + 1], 0x0f);
    }
    target->Unlock(target.get());
}

/// A screen whose pixel format changes under the toolkit.
TEST(CairoImageOfTheScreen, FollowsItsFormat)
{
    if (cairo_has_back_end())
        GTEST_SKIP() << "cairo's back end keeps the first format";
    IDirectFBDisplayLayer* layer = nullptr;
    ASSERT_EQ(directfb()->GetDisplayLayer(directfb(), DLID_PRIMARY, &layer), DFB_OK);
    layer->SetCooperativeLevel(layer, DLSCL_ADMINISTRATIVE);
    DFBDisplayLayerConfig before = {};
    EXPECT_EQ(layer->GetConfiguration(layer, &before), DFB_OK);
    const auto set_format = [&](DFBSurfacePixelFormat format) {
        DFBDisplayLayerConfig config = {};
        config.flags = DLCONF_PIXELFORMAT;
        config.pixelformat = format;
        EXPECT_EQ(layer->SetConfiguration(layer, &config), DFB_OK);
        usleep(50000);
    };
    set_format(DSPF_ARGB);
    IDirectFBSurface* screen = nullptr;
    EXPECT_EQ(layer->GetSurface(layer, &screen), DFB_OK);
    {
        const Toolkit toolkit = make_toolkit(screen, false);
        EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 0xff, 0x80, 0x40, 0xff), DFB_OK);
        for (const auto& [format, value] : {std::pair{DSPF_ARGB, 0xffff8040}, {DSPF_RGB16, 0xfc08u}, {DSPF_ARGB, 0xffff8040}}) {
            set_format(format);
            EXPECT_EQ(fill(toolkit), DFB_OK);
            EXPECT_EQ(read(screen).at(7, 5), value);
        }
    }
    screen->Release(screen);
    set_format(before.pixelformat);
    layer->Release(layer);
}

TEST(CairoImageOfAWindow, FollowsItsSize)
{
    if (cairo_has_back_end())
        GTEST_SKIP() << "cairo's back end keeps the first size";
    for (const DFBWindowCapabilities caps : {DWCAPS_NONE, DWCAPS_DOUBLEBUFFER}) {
        Window window(60, 40, caps);
        const Toolkit toolkit = make_toolkit(window.surface().get(), false);
        EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 0xff, 0x80, 0x40, 0xff), DFB_OK);
        for (const DFBDimension size : {DFBDimension{60, 40}, {20, 10}, {90, 70}}) {
            window.resize(size.w, size.h);
            EXPECT_EQ(fill(toolkit), DFB_OK);
            EXPECT_TRUE(holds_only(window.surface().get(), 0xffff8040)) << size.w;
        }
    }
}

TEST(CairoImageOfAWindow, FollowsTheSizeOfATexture)
{
    if (cairo_has_back_end())
        GTEST_SKIP() << "cairo's back end keeps the first size";
    Window window(60, 40, DWCAPS_NONE);
    const Surface target = make_surface(80, 50);
    const Toolkit toolkit = make_toolkit(target.get(), false);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), window.surface().get()), DFB_OK);
    for (const DFBDimension size : {DFBDimension{60, 40}, {20, 10}, {90, 70}}) {
        window.resize(size.w, size.h);
        clear(target, 0xff000000);
        EXPECT_EQ(fill(toolkit), DFB_OK);
        EXPECT_TRUE(holds_only(target.get(), background)) << size.w;
    }
}

TEST(CairoImageOfAPart, EndsWithItsParent)
{
    if (cairo_has_back_end())
        GTEST_SKIP() << "cairo's back end does not look at the parent";
    const Surface parent = make_surface(12, 8);
    for (const DFBRectangle part : {DFBRectangle{-3, -2, 8, 6}, {7, 5, 9, 9}}) {
        clear(parent, background);
        IDirectFBSurface* surface = nullptr;
        ASSERT_EQ(parent->GetSubSurface(parent.get(), &part, &surface), DFB_OK);
        const Surface owner(surface);
        const Toolkit toolkit = make_toolkit(surface, false);
        const DFBPoint corner[] = {{3, 2}, {5, 2}, {5, 3}, {3, 3}};
        EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 0xff, 0x80, 0x40, 0xff), DFB_OK);
        EXPECT_EQ(toolkit->Polygon(toolkit.get(), corner, 4, 1, DTKHDDVD_FILL), DFB_OK);
        EXPECT_EQ(read(parent.get()).at(part.x + 3, part.y + 2), 0xffff8040);
        EXPECT_EQ(fill(toolkit), DFB_OK);
        const Pixels pixels = read(parent.get());
        for (int y = 0; y < 8; ++y)
            for (int x = 0; x < 12; ++x) {
                const bool is_inside = x >= part.x && y >= part.y && x < part.x + part.w && y < part.y + part.h;
                EXPECT_EQ(pixels.at(x, y), is_inside ? 0xffff8040 : background) << x << ' ' << y;
            }
    }
}

TEST(CairoImageOfALockedSurface, IsMadeAtTheFirstFillThatMay)
{
    const Surface target = make_surface(6, 4);
    void* pixels = nullptr;
    int pitch = 0;
    ASSERT_EQ(target->Lock(target.get(), DSLF_WRITE, &pixels, &pitch), DFB_OK);
    const Toolkit toolkit = make_toolkit(target.get(), false);
    EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 0xff, 0x80, 0x40, 0xff), DFB_OK);
    {
        Capture errors(stderr);
        EXPECT_EQ(fill(toolkit), own_failure);
    }
    EXPECT_EQ(target->Unlock(target.get()), DFB_OK);
    EXPECT_EQ(fill(toolkit), DFB_OK);
    EXPECT_TRUE(holds_only(target.get(), 0xffff8040));
}

TEST(CairoImageOfTheTarget, IsNoTexture)
{
    const Surface target = make_surface(6, 4);
    const Toolkit toolkit = make_toolkit(target.get(), false);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), target.get()), DFB_OK);
    {
        Capture errors(stderr);
        EXPECT_EQ(fill(toolkit), own_failure);
    }
    EXPECT_TRUE(holds_only(target.get(), background));
    EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 0xff, 0x80, 0x40, 0xff), DFB_OK);
    EXPECT_EQ(fill(toolkit), DFB_OK);
    EXPECT_TRUE(holds_only(target.get(), 0xffff8040));
}

} // namespace real
