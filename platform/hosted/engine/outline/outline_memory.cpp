#include "outline_memory.h"

#include <cstddef>
#include <cstring>

namespace zuvo {
namespace {

bool has_same_shape(const zuvo_dtk_pen& one, const zuvo_dtk_pen& other)
{
    return !std::memcmp(&one, &other, offsetof(zuvo_dtk_pen, color));
}

} // namespace

int OutlineMemory::render_pen(const zuvo_dtk_pen& pen)
{
    if (is_pen_rendered && has_same_shape(pen, rendered_pen))
        return ZUVO_OK;
    is_pen_rendered = false;
    if (int error = pen_rows.render(pen_polygon, pen))
        return error;
    rendered_pen = pen;
    is_pen_rendered = true;
    return ZUVO_OK;
}

} // namespace zuvo
