#include "real/picture.h"
#include "real/shapes.h"
#include "support/capture.h"

#include <gtest/gtest.h>

/// Targets in other formats than ARGB: what works there, what is refused, and the values that are stored.
namespace real {

/// The values that colours have in a format. Opaque ones are drawn directly, blended ones through the scratch pad.
struct Format {
    const char* name;
    DFBSurfacePixelFormat format;
    u32 black, stroke, fill, texel;
    u32 blended_stroke, blended_fill, blended_polygon;
    bool is_drawn_by_cairo, is_filled_by_the_rasteriser;
};

/// How the list of tests shows a format.
static void PrintTo(const Format& format, std::ostream* stream)
{
    *stream << format.name;
}

namespace {

const Format formats[] = {
    {"RGB32", DSPF_RGB32, 0x000000, 0xff0000, 0x0000ff, 0x00ff00, 0x810000, 0x000041, 0x000010, true, true},
    {"RGB16", DSPF_RGB16, 0x0000, 0xf800, 0x001f, 0x07e0, 0x7800, 0x0008, 0x0002, true, false},
    {"A8", DSPF_A8, 0x00, 0xff, 0xff, 0xff, 0x40, 0x10, 0x10, true, false},
    {"LUT8", DSPF_LUT8, 3, 0, 1, 2, 4, 5, 6, false, false},
};

/// Index 0 to 3 hold the opaque colours, 4 to 6 the blended ones.
void load_palette(const Surface& surface)
{
    const DFBColor colors[] = {{0xff, 0xff, 0, 0}, {0xff, 0, 0, 0xff}, {0xff, 0, 0xff, 0}, {0xff, 0, 0, 0},
                               {0xff, 0x80, 0, 0}, {0xff, 0, 0, 0x40}, {0xff, 0, 0, 0x10}};
    IDirectFBPalette* palette = nullptr;
    ASSERT_EQ(surface->GetPalette(surface.get(), &palette), DFB_OK);
    EXPECT_EQ(palette->SetEntries(palette, colors, 7, 0), DFB_OK);
    palette->Release(palette);
}

std::string name_of(const testing::TestParamInfo<Format>& format)
{
    return format.param.name;
}

class PixelFormat : public testing::TestWithParam<Format> {
protected:
    void SetUp() override
    {
        if (GetParam().format == DSPF_LUT8)
            load_palette(surface);
    }

    void set_colors(const Toolkit& toolkit, u8 stroke_alpha, u8 fill_alpha) const
    {
        EXPECT_EQ(toolkit->SetStrokeColor(toolkit.get(), 0xff, 0, 0, stroke_alpha), DFB_OK);
        EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 0, 0, 0xff, fill_alpha), DFB_OK);
    }

    /// Draws on a black surface and expects the pixels of `rows` to hold `value`; a failure leaves all black.
    void expect(const Toolkit& toolkit, const Shape& shape, u32 flags, DFBResult result, const std::string& rows,
                u32 value)
    {
        SCOPED_TRACE(testing::Message() << shape.name << ", flags " << flags);
        make_black();
        EXPECT_EQ(shape.draw(toolkit.get(), flags), result);
        Legend legend = {{'.', GetParam().black}, {'#', value}};
        for (const char texel : {'a', 'b', 'c', 'd'})
            legend[texel] = value;
        expect_picture(surface.get(), legend, result ? empty_sheet() : rows);
    }

    Surface surface = make_surface(sheet_width, sheet_height, GetParam().format);

private:
    void make_black()
    {
        if (GetParam().format == DSPF_LUT8) {
            EXPECT_EQ(surface->SetColorIndex(surface.get(), GetParam().black), DFB_OK);
            EXPECT_EQ(surface->FillRectangle(surface.get(), 0, 0, sheet_width, sheet_height), DFB_OK);
        } else {
            clear(surface, GetParam().format == DSPF_A8 ? 0 : 0xff000000);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Target, PixelFormat, testing::ValuesIn(formats), name_of);

} // namespace

TEST_P(PixelFormat, TakesFills)
{
    Capture errors(stderr);
    const Format& format = GetParam();
    const Toolkit toolkit = make_toolkit(surface.get(), false);
    set_colors(toolkit, 0xff, 0xff);
    expect(toolkit, rectangle, DTKHDDVD_FILL, DFB_OK, rectangle.filled, format.fill);
    expect(toolkit, polygon, DTKHDDVD_FILL, format.is_drawn_by_cairo ? DFB_OK : own_failure, polygon.filled,
           format.fill);
    expect(toolkit, ellipse, DTKHDDVD_FILL, format.is_filled_by_the_rasteriser ? DFB_OK : own_unsupported,
           ellipse.filled, format.fill);
}

TEST_P(PixelFormat, TakesTexturesWhereCairoDraws)
{
    Capture errors(stderr);
    const Toolkit toolkit = make_toolkit(surface.get(), false);
    const Surface texture = make_surface(2, 2);
    clear(texture, 0xff00ff00);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), texture.get()), DFB_OK);
    const DFBResult result = GetParam().is_drawn_by_cairo ? DFB_OK : own_failure;
    for (const Shape* shape : {&rectangle, &polygon, &ellipse})
        expect(toolkit, *shape, DTKHDDVD_FILL, result, shape->textured, GetParam().texel);
}

TEST_P(PixelFormat, TakesThinOutlinesButForEllipses)
{
    Capture errors(stderr);
    const Toolkit toolkit = make_toolkit(surface.get(), false);
    set_colors(toolkit, 0xff, 0xff);
    for (const Shape* shape : {&rectangle, &line, &polygon})
        expect(toolkit, *shape, DTKHDDVD_STROKE, DFB_OK, shape->thin, GetParam().stroke);
    expect(toolkit, ellipse, DTKHDDVD_STROKE, own_invalid_argument, ellipse.thin, GetParam().stroke);
}

TEST_P(PixelFormat, TakesStampedOutlines)
{
    const Toolkit toolkit = make_toolkit(surface.get(), false);
    set_colors(toolkit, 0xff, 0xff);
    set_pen(toolkit, *pen_of(Outline::pen_3x3));
    for (const Shape* shape : {&rectangle, &line, &polygon, &ellipse})
        expect(toolkit, *shape, DTKHDDVD_STROKE, DFB_OK, shape->stamped_3x3, GetParam().stroke);
    drop_pen(toolkit);
}

TEST_P(PixelFormat, TakesEverythingThroughTheScratchPad)
{
    const Format& format = GetParam();
    const Toolkit toolkit = make_toolkit(surface.get(), true);
    set_colors(toolkit, 0x80, 0x40);
    for (const Shape* shape : {&rectangle, &line, &polygon, &ellipse})
        expect(toolkit, *shape, DTKHDDVD_STROKE, DFB_OK, shape->thin, format.blended_stroke);
    expect(toolkit, rectangle, DTKHDDVD_FILL, DFB_OK, rectangle.filled, format.blended_fill);
    expect(toolkit, polygon, DTKHDDVD_FILL, DFB_OK, polygon.filled, format.blended_polygon);
    expect(toolkit, ellipse, DTKHDDVD_FILL, DFB_OK, ellipse.filled, format.blended_fill);
}

TEST_P(PixelFormat, IsRefusedByTheRasterisersWithAMessage)
{
    const DFBRectangle box = {4, 3, 10, 8};
    Capture errors(stderr);
    EXPECT_EQ(outline_ellipse_argb(surface.get(), &box, 0xffffffff), own_invalid_argument);
    EXPECT_EQ(errors.text(), "outline_ellipse_argb supports only DSPF_ARGB");
    if (GetParam().is_filled_by_the_rasteriser)
        return;
    EXPECT_EQ(fill_ellipse_argb(surface.get(), &box, nullptr, 0xffffffff), own_unsupported);
    EXPECT_EQ(errors.text(), "outline_ellipse_argb supports only DSPF_ARGB"
                             "fill_ellipse_argb only supports DSPF_ARGB and DSPF_RGB32\n");
}

} // namespace real
