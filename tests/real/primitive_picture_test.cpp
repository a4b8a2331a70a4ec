#include "real/picture.h"
#include "real/shapes.h"

#include "toolkit/records.h"

#include <gtest/gtest.h>

/// Every primitive in every mode on an ARGB surface.
///
/// '.' stands for the background, 's' for the stroke, 'f' for a colour fill, a to d for the texels of a texture: one
/// opaque, one translucent and brighter than its alpha, one translucent and premultiplied, one invisible.
namespace real {
namespace {

enum class Fill { none, opaque, translucent, textured };
enum class Stroke { opaque, translucent };

struct Mode {
    const Shape& shape;
    Outline outline;
    Fill fill;
    Stroke stroke;
    bool use_scratch_pad;
};

bool is_drawn_on_scratch_pad(const Mode& mode)
{
    const bool fill_blends = mode.fill == Fill::translucent || mode.fill == Fill::textured;
    const bool stroke_blends = mode.outline != Outline::none && mode.stroke == Stroke::translucent;
    return mode.use_scratch_pad && (fill_blends || stroke_blends);
}

/// DirectFB stores colours as they are; cairo blends what it fills.
Legend drawn_directly(const Mode& mode)
{
    const bool is_filled_by_cairo = &mode.shape == &polygon;
    const u32 translucent_fill = is_filled_by_cairo ? 0xff6060a0 : 0x400000ff;
    return {{'.', background},
            {'s', mode.stroke == Stroke::opaque ? 0xffff0000 : 0x80ff0000},
            {'f', mode.fill == Fill::opaque ? 0xff0000ff : translucent_fill},
            {'a', 0xff00ff00},
            {'b', 0xffffffff},
            {'c', 0xffa0a0a0},
            {'d', background}};
}

/// Everything is blended once. The colour of a translucent polygon is premultiplied in the pad and again by the blend.
Legend blended(const Mode& mode)
{
    const bool is_filled_by_cairo = &mode.shape == &polygon;
    const u32 translucent_fill = is_filled_by_cairo ? 0xcf606070 : 0xcf6060a0;
    return {{'.', background},
            {'s', mode.stroke == Stroke::opaque ? 0xffff0000 : 0xbfc04040},
            {'f', mode.fill == Fill::opaque ? 0xff0000ff : translucent_fill},
            {'a', 0xff00ff00},
            {'b', 0xcfa0a0a0},
            {'c', 0xcf707070},
            {'d', background}};
}

std::string expected_rows(const Mode& mode)
{
    std::string rows = empty_sheet();
    if (mode.fill == Fill::textured)
        rows = mode.shape.textured;
    else if (mode.fill != Fill::none)
        rows = overlay(rows, mode.shape.filled, 'f');
    return overlay(rows, mode.shape.outlined(mode.outline), 's');
}

u32 flags_of(const Mode& mode)
{
    return (mode.fill == Fill::none ? 0 : DTKHDDVD_FILL) | (mode.outline == Outline::none ? 0 : DTKHDDVD_STROKE);
}

Surface make_texture()
{
    Surface texture = make_surface(2, 2);
    write_pixel(texture, 0, 0, 0xff00ff00);
    write_pixel(texture, 1, 0, 0x40ffffff);
    write_pixel(texture, 0, 1, 0x40404040);
    write_pixel(texture, 1, 1, 0x00000000);
    return texture;
}

void set_colors(const Toolkit& toolkit, const Mode& mode)
{
    toolkit->SetStrokeColor(toolkit.get(), 0xff, 0, 0, mode.stroke == Stroke::opaque ? 0xff : 0x80);
    toolkit->SetFillColor(toolkit.get(), 0, 0, 0xff, mode.fill == Fill::translucent ? 0x40 : 0xff);
    if (mode.fill == Fill::textured) {
        EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), make_texture().get()), DFB_OK);
    }
}

void check(const Mode& mode)
{
    SCOPED_TRACE(testing::Message() << "fill " << int(mode.fill) << ", stroke " << int(mode.stroke)
                                    << ", scratch pad " << mode.use_scratch_pad);
    const Surface surface = make_surface(sheet_width, sheet_height);
    const Toolkit toolkit = make_toolkit(surface.get(), mode.use_scratch_pad);
    set_colors(toolkit, mode);
    if (const DTKHDDVDPenShape* shape = pen_of(mode.outline))
        set_pen(toolkit, *shape);

    EXPECT_EQ(mode.shape.draw(toolkit.get(), flags_of(mode)), DFB_OK);
    expect_picture(surface.get(), is_drawn_on_scratch_pad(mode) ? blended(mode) : drawn_directly(mode),
                   expected_rows(mode));
    if (mode.use_scratch_pad) {
        EXPECT_TRUE(holds_only(toolkit->priv->scratch, 0)) << "the scratch pad keeps a drawing";
    }
    drop_pen(toolkit);
}

class PrimitivePicture : public testing::TestWithParam<std::tuple<const Shape*, Outline>> {};

TEST_P(PrimitivePicture, IsTheSameInEveryModeButForItsColours)
{
    const auto [shape, outline] = GetParam();
    for (const Fill fill : {Fill::none, Fill::opaque, Fill::translucent, Fill::textured}) {
        if (fill != Fill::none && !shape->can_be_filled)
            continue;
        for (const Stroke stroke : {Stroke::opaque, Stroke::translucent}) {
            for (const bool use_scratch_pad : {false, true})
                check({*shape, outline, fill, stroke, use_scratch_pad});
        }
    }
}

std::string name_of(const testing::TestParamInfo<PrimitivePicture::ParamType>& parameters)
{
    static const char* const outlines[] = {"none", "thin", "pen_1x1", "pen_3x3", "pen_4x4", "concave_pen"};
    const auto [shape, outline] = parameters.param;
    return std::string(shape->name) + "_" + outlines[int(outline)];
}

constexpr Outline drawn_outlines[] = {Outline::thin, Outline::pen_1x1, Outline::pen_3x3, Outline::pen_4x4,
                                      Outline::concave_pen};

INSTANTIATE_TEST_SUITE_P(Outlined, PrimitivePicture,
                         testing::Combine(testing::Values(&rectangle, &line, &polygon, &ellipse),
                                          testing::ValuesIn(drawn_outlines)),
                         name_of);
INSTANTIATE_TEST_SUITE_P(Filled, PrimitivePicture,
                         testing::Combine(testing::Values(&rectangle, &polygon, &ellipse),
                                          testing::Values(Outline::none)),
                         name_of);

} // namespace
} // namespace real
