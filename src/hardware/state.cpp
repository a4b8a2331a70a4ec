#include "toolkit/records.h"
#include "toolkit/report.h"
#include "zuvo.h"

using namespace dtk;

namespace {

/// A colour cancels a pattern.
DFBResult set_fill_color(DTKHDDVD* thiz, const DFBColor& color)
{
    thiz->priv->palette[fill_index] = color;
    return thiz->priv->has_fill_pattern ? thiz->SetFillPattern(thiz, nullptr) : result::ok;
}

} // namespace

DFBResult DTKHDDVD_SetStrokeColor_HW(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    if (!thiz)
        return result::thiz_null;
    thiz->priv->palette[stroke_index] = {a, r, g, b};
    return result::ok;
}

DFBResult DTKHDDVD_SetFillColor_HW(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    if (!thiz)
        return result::thiz_null;
    return report("DTKHDDVD_SetFillColor", set_fill_color(thiz, {a, r, g, b}));
}

/// A texture that the platform gives no handle is found out by the engine, when it is drawn with.
DFBResult DTKHDDVD_SetFillPattern_HW(DTKHDDVD* thiz, IDirectFBSurface* texture)
{
    if (!thiz)
        return result::thiz_null;
    DTKHDDVD_data& toolkit = *thiz->priv;
    if (!texture) {
        toolkit.has_fill_pattern = 0;
        toolkit.fill_pattern_handle = 0;
        return result::ok;
    }
    zuvo_dtk_surface_handle(texture, &toolkit.fill_pattern_handle);
    toolkit.has_fill_pattern = 1;
    return result::ok;
}
