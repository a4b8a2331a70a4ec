#include "real/directfb.h"
#include "toolkit/records.h"
#include "zuvo.h"

#include <gtest/gtest.h>

/// Outlines that leave the surface on each side: what lies inside is what it would be on a larger surface.
namespace real {
namespace {

constexpr int width = 60, height = 40, margin = 80;

using Create = DFBResult (*)(IDirectFB*, IDirectFBSurface*, u8, DTKHDDVD**);
using Draw = DFBResult (*)(DTKHDDVD*, const DFBRectangle&);

DFBResult draw_line(DTKHDDVD* toolkit, const DFBRectangle& box)
{
    return toolkit->Line(toolkit, box.x, box.y, box.x + box.w, box.y + box.h);
}

DFBResult draw_rectangle(DTKHDDVD* toolkit, const DFBRectangle& box)
{
    return toolkit->Rectangle(toolkit, &box, DTKHDDVD_STROKE);
}

DFBResult draw_polygon(DTKHDDVD* toolkit, const DFBRectangle& box)
{
    const DFBPoint corners[] = {{box.x, box.y}, {box.x + box.w, box.y + box.h / 3}, {box.x + box.w / 2, box.y + box.h}};
    return toolkit->Polygon(toolkit, corners, 3, 1, DTKHDDVD_STROKE);
}

DFBResult draw_ellipse(DTKHDDVD* toolkit, const DFBRectangle& box)
{
    return toolkit->Ellipse(toolkit, &box, DTKHDDVD_STROKE);
}

/// Over the left, the upper, the right and the lower border, over two opposite ones, and over all.
const DFBRectangle boxes[] = {{-11, 9, 25, 17}, {17, -13, 25, 21}, {47, 9, 25, 17},  {17, 27, 25, 25},
                              {-7, 12, 77, 15}, {22, -9, 15, 61},  {-9, -7, 81, 57}, {-6, -5, 20, 17}};

class OutlineEdge : public testing::TestWithParam<std::tuple<Create, Draw, int>> {
protected:
    OutlineEdge()
    {
        if (is_hardware())
            zuvo_init(4108);
    }

    ~OutlineEdge() override
    {
        if (is_hardware())
            zuvo_uninit();
    }

    static bool is_hardware() { return std::get<0>(GetParam()) == CreateDrawingToolkit_HDDVD_HW; }

    static Pixels drawn(const Surface& surface, const DFBRectangle& box, u8 alpha)
    {
        const auto [create, draw, size] = GetParam();
        DTKHDDVD* made = nullptr;
        EXPECT_EQ(create(directfb(), surface.get(), alpha != 255, &made), DFB_OK);
        const Toolkit toolkit(made);
        EXPECT_EQ(toolkit->SetStrokeColor(toolkit.get(), 0xff, 0x80, 0x40, alpha), DFB_OK);
        if (size > 0)
            set_pen(toolkit, rectangular_pen(size, size));
        EXPECT_EQ(draw(toolkit.get(), box), DFB_OK);
        drop_pen(toolkit);
        return read(surface.get());
    }
};

/// DirectFB cuts thin slanted lines before it walks them, which may move them by a pixel.
INSTANTIATE_TEST_SUITE_P(Stamped, OutlineEdge,
                         testing::Combine(testing::Values(CreateDrawingToolkit_HDDVD_SW, CreateDrawingToolkit_HDDVD_HW),
                                          testing::Values(draw_line, draw_rectangle, draw_polygon, draw_ellipse),
                                          testing::Values(2, 5)));
INSTANTIATE_TEST_SUITE_P(Thin, OutlineEdge,
                         testing::Combine(testing::Values(CreateDrawingToolkit_HDDVD_SW, CreateDrawingToolkit_HDDVD_HW),
                                          testing::Values(draw_rectangle, draw_ellipse), testing::Values(1)));
INSTANTIATE_TEST_SUITE_P(WithoutAPen, OutlineEdge,
                         testing::Combine(testing::Values(CreateDrawingToolkit_HDDVD_SW),
                                          testing::Values(draw_rectangle, draw_ellipse), testing::Values(0)));

} // namespace

TEST_P(OutlineEdge, CutsNothingElseOff)
{
    for (const u8 alpha : {u8(0xff), u8(0x60)})
        for (const DFBRectangle& box : boxes) {
            const Pixels seen = drawn(make_surface(width, height), box, alpha);
            const DFBRectangle moved = {box.x + margin, box.y + margin, box.w, box.h};
            const Pixels whole = drawn(make_surface(width + 2 * margin, height + 2 * margin), moved, alpha);
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x)
                    ASSERT_EQ(seen.at(x, y), whole.at(x + margin, y + margin)) << x << ' ' << y << " of " << box.x << ' ' << box.y;
        }
}

} // namespace real
