#include "hardware/engine.h"
#include "toolkit/report.h"
#include "toolkit/trace.h"

using namespace dtk;

namespace {

const BoxPrimitive rectangle = {rectangle_messages, zuvo_dtk_draw_rectangle, zuvo_dtk_draw_rectangle_border};

/// What does not blend is drawn only when DirectFB's own earlier work is complete. A toolkit that was made without
/// DirectFB has none to wait for.
void wait_unless_blending(const DTKHDDVD_data& toolkit, u32 flags)
{
    if (toolkit.dfb && !needs_blending(toolkit, flags, toolkit.has_fill_pattern))
        toolkit.dfb->WaitIdle(toolkit.dfb);
}

} // namespace

DFBResult DTKHDDVD_Rectangle_HW(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    if (!thiz)
        return result::thiz_null;
    trace("DTKHDDVD_Rectangle", *thiz->priv, flags);
    wait_unless_blending(*thiz->priv, flags);
    return report("DTKHDDVD_Rectangle", draw_box(*thiz->priv, rectangle, rect, flags));
}
