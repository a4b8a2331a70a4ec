#include "support/fixture.h"

namespace {

const DTKHDDVDPenShape square = {-2, -2, 2, -2, 2, 2, -2, 2};

class PenShape : public Fakes {
protected:
    DFBResult render(const DTKHDDVDPenShape& shape, u8 background, u8 foreground)
    {
        return render_pen_shape_lut8(&dfb, &shape, background, foreground, &image);
    }

    IDirectFBSurface* image = nullptr;
};

TEST_F(PenShape, FillsTheShiftedCornersIntoAnAlphaSurface)
{
    EXPECT_EQ(render_pen_shape_a8(&dfb, &square, &image), 0);
    EXPECT_EQ(image, &fake::surface_named("alpha"));
    EXPECT_EQ(calls(), R"(
dfb.CreateSurface(flags 15, caps 2, 4 x 4, A8)
alpha.Clear(0, 0, 0, 0)
cairo_directfb_surface_create(dfb, alpha)
cairo_create(alpha.cairo)
cairo_set_antialias(alpha.cr, 1)
cairo_move_to(alpha.cr, 0, 0)
cairo_line_to(alpha.cr, 4, 0)
cairo_line_to(alpha.cr, 4, 4)
cairo_line_to(alpha.cr, 0, 4)
cairo_fill(alpha.cr)
cairo_destroy(alpha.cr)
cairo_surface_destroy(alpha.cairo)
)");
    EXPECT_EQ(fake::cairo().live_objects, 0);
}

TEST_F(PenShape, ShiftsByTheTruncatedHalfOfTheExtent)
{
    const DTKHDDVDPenShape uneven = {1, -3, 8, 0, 4, 2, 3, 1};
    EXPECT_EQ(render_pen_shape_a8(&dfb, &uneven, &image), 0);
    EXPECT_EQ(calls_with("_to("), R"(
cairo_move_to(alpha.cr, 4, -1)
cairo_line_to(alpha.cr, 11, 2)
cairo_line_to(alpha.cr, 7, 4)
cairo_line_to(alpha.cr, 6, 3)
)");
}

TEST_F(PenShape, KeepsTheAlphaSurfaceWhenItCannotBeCleared)
{
    transcript().fail_every("alpha.Clear", refusal);
    EXPECT_EQ(render_pen_shape_a8(&dfb, &square, &image), refusal);
    EXPECT_EQ(image, &fake::surface_named("alpha"));
    EXPECT_EQ(fake::surface_named("alpha").references, 1);
}

TEST_F(PenShape, TurnsAlphaIntoTwoIndices)
{
    fake::cairo().on_fill = [](const std::string&) {
        fake::Surface& alpha = fake::surface_named("alpha");
        alpha.fill(1, 1, 2, 1, 255);
        alpha.fill(0, 3, 1, 1, 1);
    };
    EXPECT_EQ(render(square, 9, 3), 0);
    std::string rows = "\n";
    for (int y = 0; y < 4; y++) {
        for (int x = 0; x < 4; x++)
            rows += std::to_string(fake::surface_named("pen").pixel(x, y));
        rows += "\n";
    }
    EXPECT_EQ(rows, R"(
9999
9339
9999
3999
)");
    EXPECT_TRUE(fake::surface_named("pen").guards_are_untouched());
}

TEST_F(PenShape, ConvertsThePictureInOrder)
{
    EXPECT_EQ(render(square, 2, 0), 0);
    EXPECT_EQ(image, &fake::surface_named("pen"));
    const std::string all = calls();
    EXPECT_EQ(all.substr(all.find("alpha.GetSize")), R"(alpha.GetSize()
dfb.CreateSurface(flags 15, caps 4, 4 x 4, LUT8)
pen.SetColorIndex(2)
pen.FillRectangle(0, 0, 4, 4)
pen.Lock(2)
alpha.Lock(1)
alpha.Unlock()
pen.Unlock()
alpha.Release()
)");
}

TEST_F(PenShape, UsesThePitchOfEachSurface)
{
    static const auto create_surface = dfb.CreateSurface;
    dfb.CreateSurface = [](IDirectFB* thiz, const DFBSurfaceDescription* description, IDirectFBSurface** ret_surface) {
        const DFBResult result = create_surface(thiz, description, ret_surface);
        static_cast<fake::Surface*>(*ret_surface)->pitch += description->pixelformat == DSPF_A8 ? 3 : 12;
        return result;
    };
    fake::cairo().on_fill = [](const std::string&) { fake::surface_named("alpha").fill(3, 2, 1, 1, 255); };
    EXPECT_EQ(render(square, 2, 0), 0);
    EXPECT_EQ(fake::surface_named("pen").pixel(3, 2), 0u);
    EXPECT_EQ(fake::surface_named("pen").pixel(2, 2), 2u);
    EXPECT_EQ(fake::surface_named("pen").pixel(0, 3), 2u);
}

TEST_F(PenShape, ImposesNoMinimumSize)
{
    transcript().fail_every("dfb.CreateSurface", DFB_INVARG);
    EXPECT_EQ(render({3, 3, 3, 3, 3, 3, 3, 3}, 2, 0), DFB_INVARG);
    EXPECT_EQ(calls(), fake::text("\ndfb.CreateSurface(flags 15, caps 2, 0 x 0, A8) = %d\n", int(DFB_INVARG)));
}

TEST_F(PenShape, MakesAThinPenOfHeightZero)
{
    EXPECT_EQ(render({0, 0, 3, 0, 3, 0, 0, 0}, 2, 0), DFB_INVARG) << "the fill of an empty surface is refused";
    EXPECT_EQ(calls_with("CreateSurface"), R"(
dfb.CreateSurface(flags 15, caps 2, 3 x 0, A8)
dfb.CreateSurface(flags 15, caps 4, 3 x 0, LUT8)
)");
}

TEST_F(PenShape, AnswersEachFailureAndLeavesNothingLocked)
{
    int n = 0;
    do {
        fake::forget_surfaces();
        transcript().reset();
        transcript().fail_call(++n, refusal);
        image = &screen;
        const Outcome outcome = run([&] { return render(square, 2, 0); });
        const std::string failed = transcript().failed_call();
        if (failed.empty() || failed.find("Unlock") != std::string::npos) {
            EXPECT_EQ(outcome.result, 0) << failed;
            continue;
        }
        EXPECT_EQ(outcome.result, refusal) << failed;
        EXPECT_EQ(outcome.error, "") << failed;
        EXPECT_EQ(image, nullptr) << failed;
        if (n > 1) {
            EXPECT_EQ(fake::surface_named("alpha").references, 0) << failed;
        }
        if (n > 4) {
            EXPECT_EQ(fake::surface_named("pen").references, 1) << "an unfinished palette surface is not released";
            EXPECT_FALSE(fake::surface_named("pen").locked) << failed;
        }
        EXPECT_EQ(fake::cairo().live_objects, 0) << failed;
    } while (!transcript().failed_call().empty());
    EXPECT_GT(n, 8);
}

} // namespace
