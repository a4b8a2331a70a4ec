#include "functions.h"

namespace trace {

const Function functions[number_count] = {
    {},
    {"end", "", false},
    {"surface", "Suumf", false},
    {"pixels", "sX", false},
    {"Flip", "srf", false},
    {"Clear", "sc", false},
    {"result", "uf", false},
    {},
    {"CreateDrawingToolkit_HDDVD", "dsbT", true},
    {"AttachDFBSurfaceToDrawingToolkit_HDDVD", "ts", true},
    {"DetachDFBSurfaceToDrawingToolkit_HDDVD", "t", true},
    {"DTKHDDVD_AddRef", "t", true},
    {"DTKHDDVD_Release", "t", true},
    {"DTKHDDVD_SetStrokeColor", "tc", true},
    {"DTKHDDVD_SetFillColor", "tc", true},
    {"DTKHDDVD_SetFillPattern", "ts", true},
    {"DTKHDDVD_CreatePen", "tkN", true},
    {"DTKHDDVD_SetPen", "tp", true},
    {"DTKHDDVD_Line", "tqq", true},
    {"DTKHDDVD_Rectangle", "tru", true},
    {"DTKHDDVD_Polygon", "tPbu", true},
    {"DTKHDDVD_Ellipse", "tru", true},
    {"DTKHDDVDPen_AddRef", "p", false},
    {"DTKHDDVDPen_Release", "p", false},
    {"DTKHDDVDPen_GetSize", "p", true},
    {"DTKHDDVDPen_GetSurface", "pS", true},
    {"DTKHDDVDPen_GetShape", "p", false},
    {"ComputeSize", "k", false},
    {"render_pen_shape_a8", "dkS", false},
    {"render_pen_shape_lut8", "dkbbS", false},
    {"stamp_line", "sqqs", false},
    {"stamp_rectangle", "srs", false},
    {"stamp_ellipse", "srs", false},
    {"fill_ellipse_argb", "srrf", false},
    {"fill_ellipse_lut8", "srrf", false},
    {"outline_ellipse_argb", "srf", false},
};

bool is_code(std::uint8_t code)
{
    const unsigned number = code >> 2, form = code & 3;
    if (number >= number_count || !functions[number].name)
        return false;
    return functions[number].has_forms ? form <= 2 : form == 0;
}

const char* suffix_of(Form form)
{
    static const char* const suffixes[] = {"", "_SW", "_HW"};
    return suffixes[static_cast<unsigned>(form)];
}

} // namespace trace
