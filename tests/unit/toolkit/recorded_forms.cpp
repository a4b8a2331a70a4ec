#include "toolkit/recorded_forms.h"

#include <cstdint>
#include <dtkhddvd.h>
#include <zuvo.h>

unsigned int platform_handle;
int handle_queries;
std::string reached;

namespace {

DFBResult reach(const std::string& form)
{
    reached += form + "\n";
    return DFBResult(form[form.size() - 2] == 'S' ? software_reached : hardware_reached);
}

std::string words(const char* name, std::initializer_list<long> arguments, const char* suffix)
{
    std::string line = name;
    for (long argument : arguments)
        line += " " + std::to_string(argument);
    return line + suffix;
}

long number(const void* pointer)
{
    return long(reinterpret_cast<std::intptr_t>(pointer));
}

} // namespace

extern "C" {

unsigned int zuvo_dtk_get_handle(void)
{
    handle_queries++;
    return platform_handle;
}

DFBResult CreateDrawingToolkit_HDDVD_SW(IDirectFB* dfb, IDirectFBSurface* surface, u8 use_scratch_pad, DTKHDDVD** ret)
{
    return reach(words("Create", {number(dfb), number(surface), use_scratch_pad, number(ret)}, "_SW"));
}

DFBResult CreateDrawingToolkit_HDDVD_HW(IDirectFB* dfb, IDirectFBSurface* surface, u8 use_scratch_pad, DTKHDDVD** ret)
{
    return reach(words("Create", {number(dfb), number(surface), use_scratch_pad, number(ret)}, "_HW"));
}

DFBResult AttachDFBSurfaceToDrawingToolkit_HDDVD_SW(DTKHDDVD*, IDirectFBSurface* surface)
{
    return reach(words("Attach", {number(surface)}, "_SW"));
}

DFBResult AttachDFBSurfaceToDrawingToolkit_HDDVD_HW(DTKHDDVD*, IDirectFBSurface* surface)
{
    return reach(words("Attach", {number(surface)}, "_HW"));
}

DFBResult DetachDFBSurfaceToDrawingToolkit_HDDVD_SW(DTKHDDVD*)
{
    return reach("Detach_SW");
}

DFBResult DetachDFBSurfaceToDrawingToolkit_HDDVD_HW(DTKHDDVD*)
{
    return reach("Detach_HW");
}

DFBResult DTKHDDVD_AddRef_SW(DTKHDDVD*)
{
    return reach("AddRef_SW");
}

DFBResult DTKHDDVD_AddRef_HW(DTKHDDVD*)
{
    return reach("AddRef_HW");
}

DFBResult DTKHDDVD_Release_SW(DTKHDDVD*)
{
    return reach("Release_SW");
}

DFBResult DTKHDDVD_Release_HW(DTKHDDVD*)
{
    return reach("Release_HW");
}

DFBResult DTKHDDVD_SetStrokeColor_SW(DTKHDDVD*, u8 r, u8 g, u8 b, u8 a)
{
    return reach(words("SetStrokeColor", {r, g, b, a}, "_SW"));
}

DFBResult DTKHDDVD_SetStrokeColor_HW(DTKHDDVD*, u8 r, u8 g, u8 b, u8 a)
{
    return reach(words("SetStrokeColor", {r, g, b, a}, "_HW"));
}

DFBResult DTKHDDVD_SetFillColor_SW(DTKHDDVD*, u8 r, u8 g, u8 b, u8 a)
{
    return reach(words("SetFillColor", {r, g, b, a}, "_SW"));
}

DFBResult DTKHDDVD_SetFillColor_HW(DTKHDDVD*, u8 r, u8 g, u8 b, u8 a)
{
    return reach(words("SetFillColor", {r, g, b, a}, "_HW"));
}

DFBResult DTKHDDVD_SetFillPattern_SW(DTKHDDVD*, IDirectFBSurface* texture)
{
    return reach(words("SetFillPattern", {number(texture)}, "_SW"));
}

DFBResult DTKHDDVD_SetFillPattern_HW(DTKHDDVD*, IDirectFBSurface* texture)
{
    return reach(words("SetFillPattern", {number(texture)}, "_HW"));
}

DFBResult DTKHDDVD_CreatePen_SW(DTKHDDVD*, const DTKHDDVDPenShape* shape, DTKHDDVDPen** ret_pen)
{
    return reach(words("CreatePen", {number(shape), number(ret_pen)}, "_SW"));
}

DFBResult DTKHDDVD_CreatePen_HW(DTKHDDVD*, const DTKHDDVDPenShape* shape, DTKHDDVDPen** ret_pen)
{
    return reach(words("CreatePen", {number(shape), number(ret_pen)}, "_HW"));
}

DFBResult DTKHDDVD_SetPen_SW(DTKHDDVD*, DTKHDDVDPen* pen)
{
    return reach(words("SetPen", {number(pen)}, "_SW"));
}

DFBResult DTKHDDVD_SetPen_HW(DTKHDDVD*, DTKHDDVDPen* pen)
{
    return reach(words("SetPen", {number(pen)}, "_HW"));
}

DFBResult DTKHDDVD_Line_SW(DTKHDDVD*, int x1, int y1, int x2, int y2)
{
    return reach(words("Line", {x1, y1, x2, y2}, "_SW"));
}

DFBResult DTKHDDVD_Line_HW(DTKHDDVD*, int x1, int y1, int x2, int y2)
{
    return reach(words("Line", {x1, y1, x2, y2}, "_HW"));
}

DFBResult DTKHDDVD_Rectangle_SW(DTKHDDVD*, const DFBRectangle* rect, u32 flags)
{
    return reach(words("Rectangle", {number(rect), long(flags)}, "_SW"));
}

DFBResult DTKHDDVD_Rectangle_HW(DTKHDDVD*, const DFBRectangle* rect, u32 flags)
{
    return reach(words("Rectangle", {number(rect), long(flags)}, "_HW"));
}

DFBResult DTKHDDVD_Polygon_SW(DTKHDDVD*, const DFBPoint* points, u32 count, u8 closed, u32 flags)
{
    return reach(words("Polygon", {number(points), long(count), closed, long(flags)}, "_SW"));
}

DFBResult DTKHDDVD_Polygon_HW(DTKHDDVD*, const DFBPoint* points, u32 count, u8 closed, u32 flags)
{
    return reach(words("Polygon", {number(points), long(count), closed, long(flags)}, "_HW"));
}

DFBResult DTKHDDVD_Ellipse_SW(DTKHDDVD*, const DFBRectangle* rect, u32 flags)
{
    return reach(words("Ellipse", {number(rect), long(flags)}, "_SW"));
}

DFBResult DTKHDDVD_Ellipse_HW(DTKHDDVD*, const DFBRectangle* rect, u32 flags)
{
    return reach(words("Ellipse", {number(rect), long(flags)}, "_HW"));
}

} // extern "C"
