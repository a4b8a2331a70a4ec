#include "hardware/engine.h"
#include "toolkit/report.h"
#include "toolkit/trace.h"

using namespace dtk;

namespace {

DFBResult draw_line(const DTKHDDVD_data& toolkit, int x1, int y1, int x2, int y2)
{
    EngineErrors errors(line_messages);
    bind_target(toolkit, errors);

    // The engine may still hold the pen of another primitive, so a line without one is not drawn.
    if (!toolkit.pen)
        return result::failure;
    load_pen(toolkit, errors);
    const bool blends = needs_blending(toolkit, DTKHDDVD_STROKE, false);
    errors.check(line_messages.draw_outline, zuvo_dtk_draw_line(toolkit.dtk, x1, y1, x2, y2, draw_flags(blends)));
    return errors.result();
}

} // namespace

DFBResult DTKHDDVD_Line_HW(DTKHDDVD* thiz, int x1, int y1, int x2, int y2)
{
    if (!thiz)
        return result::thiz_null;
    trace("DTKHDDVD_Line", *thiz->priv, DTKHDDVD_STROKE);
    return report("DTKHDDVD_Line", draw_line(*thiz->priv, x1, y1, x2, y2));
}
