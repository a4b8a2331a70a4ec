#include "pen/pen_surface.h"
#include "toolkit/palette.h"
#include "toolkit/ref.h"
#include "toolkit/report.h"

using namespace dtk;

namespace dtk {

DFBResult load_pen_palette(const DTKHDDVD_data& toolkit)
{
    Ref<IDirectFBSurface> surface;
    if (DFBResult result = toolkit.pen->GetSurface(toolkit.pen, surface.receive()))
        return result;
    return surface ? push_palette(surface.get(), toolkit.palette) : result::ok;
}

} // namespace dtk

namespace {

/// The old pen is given back before the new one is referenced.
void replace_pen(DTKHDDVD_data& toolkit, DTKHDDVDPen* pen)
{
    give_back(toolkit.pen);
    if (pen)
        pen->AddRef(pen);
    toolkit.pen = pen;
}

} // namespace

DFBResult DTKHDDVD_SetPen_SW(DTKHDDVD* thiz, DTKHDDVDPen* pen)
{
    if (!thiz)
        return result::thiz_null;
    replace_pen(*thiz->priv, pen);
    return pen ? report("DTKHDDVD_SetPen", load_pen_palette(*thiz->priv)) : result::ok;
}

DFBResult DTKHDDVD_SetPen_HW(DTKHDDVD* thiz, DTKHDDVDPen* pen)
{
    if (!thiz)
        return result::thiz_null;
    replace_pen(*thiz->priv, pen);
    return result::ok;
}
