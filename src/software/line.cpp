#include "software/canvas.h"
#include "software/thin_line.h"
#include "toolkit/report.h"
#include "toolkit/trace.h"

#include <algorithm>

using namespace dtk;

namespace {

struct Line {
    int x1, y1, x2, y2;
};

/// The area around a line; the pen's reach is half its size and one pixel more.
DFBRectangle stamped_line_area(const Line& line, int pen_width, int pen_height)
{
    const long long reach_x = pen_width / 2 + 1;
    const long long reach_y = pen_height / 2 + 1;
    return covering(std::min(line.x1, line.x2) - reach_x, std::min(line.y1, line.y2) - reach_y,
                    std::max(line.x1, line.x2) + reach_x - 1, std::max(line.y1, line.y2) + reach_y - 1);
}

DFBResult draw_stamped(const DTKHDDVD_data& toolkit, const Line& line, Canvas& canvas)
{
    if (canvas.is_scratch_pad) {
        int width = 0, height = 0;
        if (DFBResult result = toolkit.pen->GetSize(toolkit.pen, &width, &height))
            return result;
        canvas.dirty = stamped_line_area(line, width, height);
    }

    // The pen's picture holds the key colour around its shape.
    if (DFBResult result = canvas.surface->SetBlittingFlags(canvas.surface, DSBLIT_SRC_COLORKEY))
        return result;
    Ref<IDirectFBSurface> pen_surface;
    if (DFBResult result = get_pen_surface(toolkit, pen_surface))
        return result;
    return stamp_line(canvas.surface, line.x1, line.y1, line.x2, line.y2, pen_surface.get());
}

DFBResult draw_thin(const DTKHDDVD_data& toolkit, const Line& line, Canvas& canvas)
{
    const auto [left, right] = std::minmax(line.x1, line.x2);
    const auto [top, bottom] = std::minmax(line.y1, line.y2);
    canvas.dirty = covering(left, top, right, bottom);
    if (DFBResult result = set_color(canvas, toolkit.palette[stroke_index]))
        return result;
    return draw_thin_line(canvas.surface, {line.x1, line.y1}, {line.x2, line.y2});
}

DFBResult draw_line(DTKHDDVD_data& toolkit, const Line& line)
{
    Canvas canvas = choose_canvas(toolkit, DTKHDDVD_STROKE);
    if (!canvas.surface)
        return result::failure;

    const auto draw = has_wide_pen(toolkit) ? draw_stamped : draw_thin;
    if (DFBResult result = draw(toolkit, line, canvas))
        return result;
    return finish(toolkit, canvas);
}

} // namespace

DFBResult DTKHDDVD_Line_SW(DTKHDDVD* thiz, int x1, int y1, int x2, int y2)
{
    if (!thiz)
        return result::thiz_null;
    trace("DTKHDDVD_Line", *thiz->priv, DTKHDDVD_STROKE);
    return report("DTKHDDVD_Line", draw_line(*thiz->priv, {x1, y1, x2, y2}));
}
