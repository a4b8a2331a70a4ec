#include "hardware/engine.h"
#include "toolkit/report.h"
#include "toolkit/trace.h"

using namespace dtk;

namespace {

const BoxPrimitive ellipse = {ellipse_messages, zuvo_dtk_draw_ellipse, zuvo_dtk_draw_ellipse_border};

} // namespace

DFBResult DTKHDDVD_Ellipse_HW(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    if (!thiz)
        return result::thiz_null;
    trace("DTKHDDVD_Ellipse", *thiz->priv, flags);
    return report("DTKHDDVD_Ellipse", draw_box(*thiz->priv, ellipse, rect, flags));
}
