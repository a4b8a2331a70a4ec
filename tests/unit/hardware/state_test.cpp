#include "support/fixture.h"

#include <dlfcn.h>

namespace {

class HardwareState : public Fakes {
protected:
    fake::Surface& texture = fake::new_surface("texture", 4, 4, DSPF_ARGB);
};

std::string word(const DFBColor& color)
{
    return fake::text("%02x%02x%02x%02x", color.a, color.r, color.g, color.b);
}

TEST_F(HardwareState, StoresColoursAndTellsNobody)
{
    const Toolkit toolkit = hardware_toolkit();
    set_pen(toolkit, 3, 3);
    EXPECT_EQ(toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 4), 0);
    EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 5, 6, 7, 8), 0);
    EXPECT_EQ(word(toolkit->priv->palette[0]), "04010203");
    EXPECT_EQ(word(toolkit->priv->palette[1]), "08050607");
    EXPECT_EQ(word(toolkit->priv->palette[2]), "00000000") << "there is no key to follow the stroke colour";
    EXPECT_EQ(calls(), "\n");
    drop_pen(toolkit);
}

// Elsewhere callers cut their arguments themselves, so there is no calling with more than a byte.
#if defined(__i386__) || defined(__x86_64__)
TEST_F(HardwareState, CutsColoursToTheirLowByte)
{
    using SetColor = DFBResult (*)(DTKHDDVD*, unsigned int, unsigned int, unsigned int, unsigned int);
    const Toolkit toolkit = hardware_toolkit();
    for (const char* name : {"DTKHDDVD_SetStrokeColor", "DTKHDDVD_SetStrokeColor_HW"}) {
        const auto set_color = reinterpret_cast<SetColor>(dlsym(RTLD_DEFAULT, name));
        EXPECT_EQ(set_color(toolkit.get(), 300, 257, 512, 0x1FF), 0);
        EXPECT_EQ(word(toolkit->priv->palette[0]), "ff2c0100");
    }
}
#endif

TEST_F(HardwareState, KeepsThePatternsHandle)
{
    const Toolkit toolkit = hardware_toolkit();
    texture.id = 4711;
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), &texture), 0);
    EXPECT_EQ(calls(), "\ntexture.GetID()\n");
    EXPECT_EQ(toolkit->priv->has_fill_pattern, 1);
    EXPECT_EQ(toolkit->priv->fill_pattern_handle, 4711u);
    EXPECT_EQ(texture.references, 1) << "the caller keeps the surface alive";
}

TEST_F(HardwareState, ChangesThePatternByAskingForItsHandle)
{
    static const DTKHDDVD_data* asking;
    const Toolkit toolkit = hardware_toolkit();
    texture.id = 4711;
    toolkit->SetFillPattern(toolkit.get(), &texture);
    asking = toolkit->priv;
    fake::Surface& other = fake::new_surface("other", 4, 4, DSPF_ARGB);
    other.GetID = [](IDirectFBSurface*, DFBSurfaceID* ret_id) {
        EXPECT_EQ(ret_id, &asking->fill_pattern_handle) << "the handle is stored where it is kept";
        EXPECT_EQ(*ret_id, 4711u);
        return refusal;
    };
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), &other), 0);
    EXPECT_EQ(toolkit->priv->fill_pattern_handle, 4711u) << "nothing else writes it";
    EXPECT_EQ(toolkit->priv->has_fill_pattern, 1);
}

TEST_F(HardwareState, DoesNotLookWhetherThePatternHasAHandle)
{
    const Toolkit toolkit = hardware_toolkit();
    transcript().fail_every("texture.GetID", refusal);
    const Outcome outcome = run([&] { return toolkit->SetFillPattern(toolkit.get(), &texture); });
    EXPECT_EQ(outcome.result, 0);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(toolkit->priv->has_fill_pattern, 1);
}

TEST_F(HardwareState, ClearsThePattern)
{
    const Toolkit toolkit = hardware_toolkit();
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), nullptr), 0) << "without one it is harmless";
    toolkit->SetFillPattern(toolkit.get(), &texture);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), nullptr), 0);
    EXPECT_EQ(toolkit->priv->has_fill_pattern, 0);
    EXPECT_EQ(toolkit->priv->fill_pattern_handle, 0u);
}

TEST_F(HardwareState, CancelsThePatternByAFillColour)
{
    const Toolkit toolkit = hardware_toolkit();
    toolkit->SetFillPattern(toolkit.get(), &texture);
    EXPECT_EQ(toolkit->SetStrokeColor(toolkit.get(), 1, 2, 3, 4), 0);
    EXPECT_EQ(toolkit->priv->has_fill_pattern, 1);
    EXPECT_EQ(toolkit->SetFillColor(toolkit.get(), 1, 2, 3, 4), 0);
    EXPECT_EQ(toolkit->priv->has_fill_pattern, 0);
    EXPECT_EQ(toolkit->priv->fill_pattern_handle, 0u);
}

TEST_F(HardwareState, ReportsAPatternThatCannotBeCancelled)
{
    const Toolkit toolkit = hardware_toolkit();
    toolkit->SetFillPattern(toolkit.get(), &texture);
    toolkit->SetFillPattern = [](DTKHDDVD*, IDirectFBSurface* surface) {
        EXPECT_EQ(surface, nullptr);
        return refusal;
    };
    const Outcome outcome = run([&] { return toolkit->SetFillColor(toolkit.get(), 1, 2, 3, 4); });
    EXPECT_EQ(outcome.result, refusal);
    EXPECT_EQ(outcome.error, complaint("DTKHDDVD_SetFillColor", refusal_text));
    EXPECT_EQ(word(toolkit->priv->palette[1]), "04010203");
}

TEST_F(HardwareState, RefusesANullToolkit)
{
    const DFBRectangle rect = {1, 2, 3, 4};
    const DFBPoint point = {1, 2};
    const Outcome outcome = run([&] {
        EXPECT_EQ(DTKHDDVD_SetStrokeColor_HW(nullptr, 1, 2, 3, 4), thiz_null);
        EXPECT_EQ(DTKHDDVD_SetFillColor_HW(nullptr, 1, 2, 3, 4), thiz_null);
        EXPECT_EQ(DTKHDDVD_SetFillPattern_HW(nullptr, nullptr), thiz_null);
        EXPECT_EQ(DTKHDDVD_SetPen_HW(nullptr, nullptr), thiz_null);
        EXPECT_EQ(DTKHDDVD_Line_HW(nullptr, 1, 2, 3, 4), thiz_null);
        EXPECT_EQ(DTKHDDVD_Rectangle_HW(nullptr, &rect, 3), thiz_null);
        EXPECT_EQ(DTKHDDVD_Ellipse_HW(nullptr, &rect, 3), thiz_null);
        return DTKHDDVD_Polygon_HW(nullptr, &point, 1, 0, 3);
    });
    EXPECT_EQ(outcome.result, thiz_null);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(calls(), "\n");
}

} // namespace
