#include "pen/pen_surface.h"
#include "toolkit/palette.h"
#include "toolkit/report.h"

using namespace dtk;

namespace {

DFBResult load_into_pen(const DTKHDDVD_data& toolkit)
{
    return toolkit.pen ? load_pen_palette(toolkit) : result::ok;
}

DFBResult load_into_scratch_pad(const DTKHDDVD_data& toolkit)
{
    if (!toolkit.scratch)
        return result::ok;
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    if (DFBResult result = toolkit.scratch->GetPixelFormat(toolkit.scratch, &format))
        return result;
    return DFB_PIXELFORMAT_IS_INDEXED(format) ? push_palette(toolkit.scratch, toolkit.palette) : result::ok;
}

/// Palette surfaces that will be drawn with take the toolkit's colours at once.
DFBResult load_palette(const DTKHDDVD_data& toolkit)
{
    if (DFBResult result = load_into_pen(toolkit))
        return result;
    return load_into_scratch_pad(toolkit);
}

/// The key colour is the complement of the stroke colour, so that keying it out never removes stroke pixels.
DFBResult set_stroke_color(DTKHDDVD_data& toolkit, const DFBColor& color)
{
    const auto inverse = [](u8 component) { return static_cast<u8>(component ^ 255); };
    toolkit.palette[stroke_index] = color;
    toolkit.palette[key_index] = {0, inverse(color.r), inverse(color.g), inverse(color.b)};
    return load_palette(toolkit);
}

/// A colour cancels a pattern. The result of that hides a palette that could not be loaded.
DFBResult set_fill_color(DTKHDDVD* thiz, const DFBColor& color)
{
    thiz->priv->palette[fill_index] = color;
    const DFBResult result = load_palette(*thiz->priv);
    return thiz->priv->fill_pattern ? thiz->SetFillPattern(thiz, nullptr) : result;
}

} // namespace

DFBResult DTKHDDVD_SetStrokeColor_SW(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    if (!thiz)
        return result::thiz_null;
    return report("DTKHDDVD_SetStrokeColor", set_stroke_color(*thiz->priv, {a, r, g, b}));
}

DFBResult DTKHDDVD_SetFillColor_SW(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    if (!thiz)
        return result::thiz_null;
    return report("DTKHDDVD_SetFillColor", set_fill_color(thiz, {a, r, g, b}));
}
