#include "real/changing_surface.h"
#include "support/capture.h"
#include "toolkit/records.h"
#include "zuvo.h"

#include <gtest/gtest.h>

/// A target or a texture that changes its size between calls, in both directions: all primitives, both back ends.
namespace real {
namespace {

constexpr DFBDimension first_size = {60, 40};
constexpr DFBDimension sizes[] = {{60, 40}, {20, 10}, {90, 70}, {30, 55}, {100, 12}, {60, 40}};
constexpr u32 both = DTKHDDVD_FILL | DTKHDDVD_STROKE;

/// A shape that lies wholly outside is an area which DirectFB refuses to blend.
void expect_drawn(DFBResult result)
{
    EXPECT_TRUE(result == DFB_OK || result == DFB_INVAREA) << result;
}

/// Shapes that reach beyond each of the sizes.
void draw_shapes(DTKHDDVD* toolkit)
{
    const Capture complaints(stderr);
    const DFBRectangle boxes[] = {{-4, -4, 120, 80}, {3, 2, 30, 60}, {40, 5, 55, 30}};
    const DFBPoint corners[] = {{-10, 20}, {50, -8}, {95, 75}};
    for (const DFBRectangle& box : boxes) {
        expect_drawn(toolkit->Rectangle(toolkit, &box, both));
        expect_drawn(toolkit->Ellipse(toolkit, &box, both));
    }
    expect_drawn(toolkit->Polygon(toolkit, corners, 3, 1, both));
    // The engine draws no line without a pen.
    if (toolkit->priv->pen || !toolkit->priv->dtk)
        expect_drawn(toolkit->Line(toolkit, -5, -5, 110, 80));
}

enum class Fill { opaque, translucent, pattern };

void draw_with(const Toolkit& toolkit, Fill fill, bool has_pen, IDirectFBSurface* texture)
{
    const u8 alpha = fill == Fill::translucent ? 0x80 : 0xff;
    EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 0xff, 0x80, 0x40, alpha), DFB_OK);
    EXPECT_EQ(toolkit->SetStrokeColor(toolkit.get(), 0x20, 0x40, 0xff, alpha), DFB_OK);
    if (fill == Fill::pattern) {
        EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), texture), DFB_OK);
    }
    if (has_pen)
        set_pen(toolkit, rectangular_pen(5, 4));
    draw_shapes(toolkit.get());
    drop_pen(toolkit);
}

/// Every way to fill and to outline.
void draw_everything(const Toolkit& toolkit, IDirectFBSurface* texture)
{
    for (const Fill fill : {Fill::opaque, Fill::translucent, Fill::pattern})
        for (const bool has_pen : {false, true})
            draw_with(toolkit, fill, has_pen, texture);
}

using Create = DFBResult (*)(IDirectFB*, IDirectFBSurface*, u8, DTKHDDVD**);

class ChangingSize : public testing::TestWithParam<std::tuple<Create, bool>> {
protected:
    ChangingSize()
    {
        if (is_hardware())
            zuvo_init(4108);
    }

    ~ChangingSize() override
    {
        if (is_hardware())
            zuvo_uninit();
    }

    static bool is_hardware() { return std::get<0>(GetParam()) == CreateDrawingToolkit_HDDVD_HW; }
    static bool has_pad() { return std::get<1>(GetParam()); }

    static Toolkit make(IDirectFBSurface* surface)
    {
        DTKHDDVD* toolkit = nullptr;
        EXPECT_EQ(std::get<0>(GetParam())(directfb(), surface, has_pad(), &toolkit), DFB_OK);
        return Toolkit(toolkit);
    }

    static void attach_anew(const Toolkit& toolkit, IDirectFBSurface* surface)
    {
        EXPECT_EQ(DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get()), DFB_OK);
        EXPECT_EQ(AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get(), surface), DFB_OK);
    }

    /// What a toolkit draws onto the background.
    Pixels drawn(const Toolkit& toolkit, const Surface& whole) const
    {
        clear(whole, background);
        draw_everything(toolkit, texture.get());
        return read(whole.get());
    }

    static Pixels drawn_with_its_pattern(const Toolkit& toolkit, const Surface& target)
    {
        clear(target, background);
        draw_shapes(toolkit.get());
        return read(target.get());
    }

    /// Compares what @p toolkit draws on a part of @p whole with what a new toolkit draws there.
    void expect_drawn_as_by_a_new_one(const Toolkit& toolkit, IDirectFBSurface* part, const Surface& whole) const
    {
        const Pixels seen = drawn(toolkit, whole), expected = drawn(make(part), whole);
        for (int y = 0; y < seen.height; ++y)
            for (int x = 0; x < seen.width; ++x) {
                const bool is_beyond_the_pad = x >= first_size.w || y >= first_size.h;
                if (has_pad() && is_beyond_the_pad && !is_attached_anew)
                    continue;
                ASSERT_EQ(seen.at(x, y), expected.at(x, y)) << x << ' ' << y << " of " << seen.width << " x " << seen.height;
            }
    }

    /// Draws on @p part of @p changing, which changes its size, with one toolkit: as it is, then attached anew.
    template <class Changing>
    void draw_through_all_sizes(Changing& changing, IDirectFBSurface* part)
    {
        const Toolkit toolkit = make(part);
        for (const DFBDimension& size : sizes) {
            changing.resize(size.w, size.h);
            if (is_hardware() || !cairo_has_back_end())
                expect_drawn_as_by_a_new_one(toolkit, part, changing.surface());
            attach_anew(toolkit, part);
            is_attached_anew = true;
            expect_drawn_as_by_a_new_one(toolkit, part, changing.surface());
            is_attached_anew = false;
            changing.resize(first_size.w, first_size.h);
            attach_anew(toolkit, part);
        }
    }

    Surface texture = make_surface(7, 5);
    bool is_attached_anew = false;
};

INSTANTIATE_TEST_SUITE_P(BackEnds, ChangingSize,
                         testing::Combine(testing::Values(CreateDrawingToolkit_HDDVD_SW, CreateDrawingToolkit_HDDVD_HW),
                                          testing::Bool()),
                         [](const auto& parameters) {
                             return std::string(std::get<0>(parameters.param) == CreateDrawingToolkit_HDDVD_SW ? "Software"
                                                                                                              : "Hardware") +
                                    (std::get<1>(parameters.param) ? "WithAPad" : "");
                         });

Surface part_of(const Surface& surface, const DFBRectangle& rect)
{
    IDirectFBSurface* part = nullptr;
    EXPECT_EQ(surface->GetSubSurface(surface.get(), &rect, &part), DFB_OK);
    return Surface(part);
}

} // namespace

TEST_P(ChangingSize, OfAWindow)
{
    for (const DFBWindowCapabilities caps : {DWCAPS_NONE, DWCAPS_DOUBLEBUFFER}) {
        Window window(first_size.w, first_size.h, caps);
        draw_through_all_sizes(window, window.surface().get());
    }
}

TEST_P(ChangingSize, OfTheScreen)
{
    Screen screen(first_size.w, first_size.h);
    draw_through_all_sizes(screen, screen.surface().get());
}

TEST_P(ChangingSize, OfAWindowWhosePartIsDrawnOn)
{
    Window window(first_size.w, first_size.h, DWCAPS_NONE);
    const Surface part = part_of(window.surface(), {2, 1, 15, 8});
    draw_through_all_sizes(window, part.get());
}

TEST_P(ChangingSize, OfATexture)
{
    if (!is_hardware() && cairo_has_back_end())
        GTEST_SKIP() << "cairo's back end keeps the first size";
    const Surface target = make_surface(80, 50);
    Window window(first_size.w, first_size.h, DWCAPS_NONE);
    const Surface part = part_of(window.surface(), {2, 1, 15, 8});
    for (IDirectFBSurface* const source : {window.surface().get(), part.get()}) {
        const Toolkit toolkit = make(target.get());
        EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), source), DFB_OK);
        for (const DFBDimension& size : sizes) {
            window.resize(size.w, size.h);
            write_pixel(window.surface(), 3, 2, 0xff00ff00);
            const Pixels seen = drawn_with_its_pattern(toolkit, target);
            const Toolkit other = make(target.get());
            EXPECT_EQ(other->SetFillPattern(other.get(), source), DFB_OK);
            EXPECT_EQ(seen, drawn_with_its_pattern(other, target)) << size.w;
        }
    }
}

} // namespace real
