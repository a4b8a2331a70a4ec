#include "hardware/messages.h"

namespace dtk {

const EngineMessages line_messages = {
    "DTKHDDVD_Line",
    "zuvo_dtk_set_output_surface with",
    nullptr,
    nullptr,
    nullptr,
    "zuvo_dtk_set_pen with",
    "zuvo_dtk_draw_line with",
};

const EngineMessages rectangle_messages = {
    "DTKHDDVD_Rectangle",
    "zuvo_dtk_set_output_surface with",
    "zuvo_dtk_set_fill_pattern failed with",
    "zuvo_dtk_draw_rectangle failed with",
    "zuvo_dtk_draw_rectangle failed with",
    "zuvo_dtk_set_pen with",
    "zuvo_dtk_draw_rectangle failed with",
};

const EngineMessages ellipse_messages = {
    "DTKHDDVD_Ellipse",
    "zuvo_dtk_set_output_surface with",
    "zuvo_dtk_set_fill_pattern failed with",
    "zuvo_dtk_draw_ellipse failed with",
    "zuvo_dtk_draw_rectangle failed with",
    "zuvo_dtk_set_pen with",
    "zuvo_dtk_draw_rectangle failed with",
};

const EngineMessages polygon_messages = {
    "DTKHDDVD_Polygon",
    "zuvo_dtk_set_output_surface with",
    "zuvo_dtk_set_fill_pattern failed with",
    "zuvo_dtk_draw_rectangle failed with",
    "zuvo_dtk_draw_polygon failed with",
    "zuvo_dtk_set_pen with",
    "zuvo_dtk_draw_polygon failed with",
};

} // namespace dtk
