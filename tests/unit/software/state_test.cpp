#include "support/fixture.h"

namespace {

class SoftwareState : public Fakes {
protected:
    /// The colours of the toolkit's palette as aarrggbb words.
    static std::string palette(const Toolkit& toolkit)
    {
        std::string words;
        for (const DFBColor& color : toolkit->priv->palette)
            words += fake::text("%02x%02x%02x%02x ", color.a, color.r, color.g, color.b);
        return words;
    }
};

TEST_F(SoftwareState, StoresTheStrokeColourAndItsComplementAsKey)
{
    const Toolkit toolkit = software_toolkit(1);
    EXPECT_EQ(toolkit->SetStrokeColor(toolkit.get(), 0, 0, 0, 255), 0);
    EXPECT_EQ(palette(toolkit), "ff000000 ffffffff 00ffffff ");
    EXPECT_EQ(toolkit->SetStrokeColor(toolkit.get(), 255, 255, 255, 128), 0);
    EXPECT_EQ(palette(toolkit), "80ffffff ffffffff 00000000 ");
    EXPECT_EQ(toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 4), 0);
    EXPECT_EQ(palette(toolkit), "04010203 ffffffff 00fefdfc ");
    EXPECT_EQ(calls(), "\nscratch.GetPixelFormat()\nscratch.GetPixelFormat()\nscratch.GetPixelFormat()\n")
        << "a 32-bit scratch pad has no palette";
}

TEST_F(SoftwareState, StoresTheFillColourAlone)
{
    const Toolkit toolkit = software_toolkit(0);
    EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 1, 2, 3, 4), 0);
    EXPECT_EQ(palette(toolkit), "ffffffff 04010203 00000000 ");
    EXPECT_EQ(calls(), "\n") << "without pen and scratch pad there is nobody to tell";
}

TEST_F(SoftwareState, PushesAStrokeColourIntoPenAndIndexedPad)
{
    const Toolkit toolkit = indexed_toolkit();
    set_pen(toolkit, 3, 3);
    EXPECT_EQ(toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 4), 0);
    EXPECT_EQ(calls(), R"(
pen.AddRef()
pen.GetPalette()
pen.palette.SetEntries(04010203 ffffffff 00fefdfc from 0)
pen.palette.Release()
pen.Release()
scratch.GetPixelFormat()
scratch.GetPalette()
scratch.palette.SetEntries(04010203 ffffffff 00fefdfc from 0)
scratch.palette.Release()
)");
    drop_pen(toolkit);
}

TEST_F(SoftwareState, PushesAFillColourIntoPenAndIndexedPad)
{
    const Toolkit toolkit = indexed_toolkit();
    set_pen(toolkit, 3, 3);
    EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 1, 2, 3, 4), 0);
    EXPECT_EQ(calls(), R"(
pen.AddRef()
pen.GetPalette()
pen.palette.SetEntries(ffffffff 04010203 00000000 from 0)
pen.palette.Release()
pen.Release()
scratch.GetPixelFormat()
scratch.GetPalette()
scratch.palette.SetEntries(ffffffff 04010203 00000000 from 0)
scratch.palette.Release()
)");
    drop_pen(toolkit);
}

TEST_F(SoftwareState, ReportsEachFailureOfAStrokeColour)
{
    const auto prepare = [&] {
        Toolkit toolkit = indexed_toolkit();
        set_pen(toolkit, 3, 3);
        return toolkit;
    };
    expect_each_failure_reported("DTKHDDVD_SetStrokeColor", prepare,
                                 [](DTKHDDVD* thiz) { return thiz->SetStrokeColor(thiz, 1, 2, 3, 4); });
}

TEST_F(SoftwareState, ReportsEachFailureOfAFillColour)
{
    const auto prepare = [&] {
        Toolkit toolkit = indexed_toolkit();
        set_pen(toolkit, 3, 3);
        return toolkit;
    };
    expect_each_failure_reported("DTKHDDVD_SetFillColor", prepare,
                                 [](DTKHDDVD* thiz) { return thiz->SetFillColor(thiz, 1, 2, 3, 4); });
}

TEST_F(SoftwareState, KeepsTheNewStrokeColourAfterAFailureAndLeavesThePadAlone)
{
    const Toolkit toolkit = indexed_toolkit();
    set_pen(toolkit, 3, 3);
    transcript().fail_every("pen.GetPalette", refusal);
    const Outcome outcome = run([&] { return toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 4); });
    EXPECT_EQ(outcome.result, refusal);
    EXPECT_EQ(palette(toolkit), "04010203 ffffffff 00fefdfc ");
    EXPECT_EQ(calls_with("scratch"), "\n");
    drop_pen(toolkit);
}

TEST_F(SoftwareState, CancelsThePatternByAFillColour)
{
    const Toolkit toolkit = software_toolkit(0);
    set_texture(toolkit);
    EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 1, 2, 3, 4), 0);
    EXPECT_EQ(calls(), "\ncairo_pattern_destroy(texture.pattern)\n");
    EXPECT_EQ(toolkit->priv->fill_pattern, nullptr);
}

TEST_F(SoftwareState, CancelsThePatternThroughTheRecordAndAnswersItsResult)
{
    const Toolkit toolkit = software_toolkit(0);
    set_texture(toolkit);
    toolkit->SetFillPattern = [](DTKHDDVD*, IDirectFBSurface*) { return refusal; };
    const Outcome outcome = run([&] { return toolkit->SetFillColor(toolkit.get(), 1, 2, 3, 4); });
    toolkit->SetFillPattern = DTKHDDVD_SetFillPattern;
    EXPECT_EQ(outcome.result, refusal);
    EXPECT_EQ(outcome.error, complaint("DTKHDDVD_SetFillColor", refusal_text));
}

TEST_F(SoftwareState, ForgetsAPaletteFailureWhenAPatternIsCancelled)
{
    const Toolkit toolkit = indexed_toolkit();
    set_pen(toolkit, 3, 3);
    set_texture(toolkit);
    transcript().fail_every("pen.palette.SetEntries", refusal);
    const Outcome outcome = run([&] { return toolkit->SetFillColor(toolkit.get(), 1, 2, 3, 4); });
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(calls_with("scratch"), "\n") << "a failing pen leaves the pad out";
    drop_pen(toolkit);
}

TEST_F(SoftwareState, RefusesANullToolkit)
{
    const Outcome outcome = run([] {
        EXPECT_EQ(DTKHDDVD_SetStrokeColor_SW(nullptr, 1, 2, 3, 4), thiz_null);
        EXPECT_EQ(DTKHDDVD_SetFillColor_SW(nullptr, 1, 2, 3, 4), thiz_null);
        return DTKHDDVD_SetFillPattern_SW(nullptr, nullptr);
    });
    EXPECT_EQ(outcome.result, thiz_null);
    EXPECT_EQ(outcome.error, "");
}

class SoftwarePattern : public Fakes {
protected:
    fake::Surface& texture = fake::new_surface("texture", 4, 4, DSPF_ARGB);

    void expect_failure(fake::Outcome surface, fake::Outcome pattern, const std::string& message)
    {
        const Toolkit toolkit = software_toolkit(0);
        set_texture(toolkit);
        const int live_without_pattern = 2;
        fake::cairo().surface_creation = surface;
        fake::cairo().pattern_creation = pattern;
        const Outcome outcome = run([&] { return toolkit->SetFillPattern(toolkit.get(), &texture); });
        fake::cairo().surface_creation = fake::cairo().pattern_creation = fake::Outcome::works;
        EXPECT_EQ(outcome.result, own_failure);
        EXPECT_EQ(outcome.error, message + complaint("DTKHDDVD_SetFillPattern", own_failure_text));
        EXPECT_EQ(toolkit->priv->fill_pattern, nullptr);
        EXPECT_EQ(fake::cairo().live_objects, live_without_pattern) << "the target's context and its surface";
    }
};

TEST_F(SoftwarePattern, RepeatsTheTexture)
{
    const Toolkit toolkit = software_toolkit(0);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), &texture), 0);
    EXPECT_EQ(calls(), R"(
cairo_directfb_surface_create(dfb, texture)
cairo_pattern_create_for_surface(texture.cairo)
cairo_pattern_set_extend(texture.pattern, 1)
cairo_surface_destroy(texture.cairo)
)");
    EXPECT_NE(toolkit->priv->fill_pattern, nullptr);
}

TEST_F(SoftwarePattern, ReplacesTheOneBefore)
{
    const Toolkit toolkit = software_toolkit(0);
    set_texture(toolkit);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), &texture), 0);
    EXPECT_EQ(calls(), R"(
cairo_pattern_destroy(texture2.pattern)
cairo_directfb_surface_create(dfb, texture)
cairo_pattern_create_for_surface(texture.cairo)
cairo_pattern_set_extend(texture.pattern, 1)
cairo_surface_destroy(texture.cairo)
)");
}

TEST_F(SoftwarePattern, OfNothingTwiceIsHarmless)
{
    const Toolkit toolkit = software_toolkit(0);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), nullptr), 0);
    EXPECT_EQ(calls(), "\n");
}

TEST_F(SoftwarePattern, ThatBeginsFarAwayIsMovedByWholeTilesOfItsTexture)
{
    const Toolkit toolkit = software_toolkit(0);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), &texture), 0);
    for (const DFBRectangle& rect : {DFBRectangle{-32767, -5, 40000, 40}, {-5, -32767, 40, 40000}}) {
        EXPECT_EQ(toolkit->Rectangle(toolkit.get(), &rect, DTKHDDVD_FILL), 0);
        const char matrix[] = "cairo_pattern_set_matrix(texture.pattern, %d, %d)";
        EXPECT_THAT(calls(), testing::HasSubstr(fake::text(matrix, rect.x < -5 ? 3 : 5, rect.y < -5 ? 3 : 5)));

        // A texture that does not tell its size stays where it is.
        fake::transcript().fail_every("texture.GetSize", DFB_FAILURE);
        EXPECT_EQ(toolkit->Rectangle(toolkit.get(), &rect, DTKHDDVD_FILL), 0);
        EXPECT_THAT(calls(), testing::HasSubstr(fake::text(matrix, -rect.x, -rect.y)));
        fake::transcript().reset();
    }
}

TEST_F(SoftwarePattern, ReportsATextureThatCairoRefuses)
{
    for (fake::Outcome trouble : {fake::Outcome::null, fake::Outcome::error_state})
        expect_failure(trouble, fake::Outcome::works, "cant create cairo surface for texture\n");
}

TEST_F(SoftwarePattern, ReportsAPatternThatCairoRefuses)
{
    for (fake::Outcome trouble : {fake::Outcome::null, fake::Outcome::error_state})
        expect_failure(fake::Outcome::works, trouble, "cant create cairo pattern for texture\n");
}

} // namespace
