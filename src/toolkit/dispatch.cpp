#include "toolkit/records.h"
#include "zuvo.h"

namespace {

/// The back end was chosen when the toolkit was made. NULL goes to the software form, which returns the result for it.
bool is_hardware(const DTKHDDVD* thiz)
{
    return thiz && thiz->priv->dtk;
}

} // namespace

DFBResult CreateDrawingToolkit_HDDVD(IDirectFB* dfb, IDirectFBSurface* surface, u8 use_scratch_pad,
                                     DTKHDDVD** ret_interface)
{
    const auto create = zuvo_dtk_get_handle() ? CreateDrawingToolkit_HDDVD_HW : CreateDrawingToolkit_HDDVD_SW;
    return create(dfb, surface, use_scratch_pad, ret_interface);
}

DFBResult AttachDFBSurfaceToDrawingToolkit_HDDVD(DTKHDDVD* thiz, IDirectFBSurface* surface)
{
    return is_hardware(thiz) ? AttachDFBSurfaceToDrawingToolkit_HDDVD_HW(thiz, surface)
                             : AttachDFBSurfaceToDrawingToolkit_HDDVD_SW(thiz, surface);
}

DFBResult DetachDFBSurfaceToDrawingToolkit_HDDVD(DTKHDDVD* thiz)
{
    return is_hardware(thiz) ? DetachDFBSurfaceToDrawingToolkit_HDDVD_HW(thiz)
                             : DetachDFBSurfaceToDrawingToolkit_HDDVD_SW(thiz);
}

DFBResult DTKHDDVD_AddRef(DTKHDDVD* thiz)
{
    return is_hardware(thiz) ? DTKHDDVD_AddRef_HW(thiz) : DTKHDDVD_AddRef_SW(thiz);
}

DFBResult DTKHDDVD_Release(DTKHDDVD* thiz)
{
    return is_hardware(thiz) ? DTKHDDVD_Release_HW(thiz) : DTKHDDVD_Release_SW(thiz);
}

DFBResult DTKHDDVD_SetStrokeColor(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    return is_hardware(thiz) ? DTKHDDVD_SetStrokeColor_HW(thiz, r, g, b, a)
                             : DTKHDDVD_SetStrokeColor_SW(thiz, r, g, b, a);
}

DFBResult DTKHDDVD_SetFillColor(DTKHDDVD* thiz, u8 r, u8 g, u8 b, u8 a)
{
    return is_hardware(thiz) ? DTKHDDVD_SetFillColor_HW(thiz, r, g, b, a)
                             : DTKHDDVD_SetFillColor_SW(thiz, r, g, b, a);
}

DFBResult DTKHDDVD_SetFillPattern(DTKHDDVD* thiz, IDirectFBSurface* texture)
{
    return is_hardware(thiz) ? DTKHDDVD_SetFillPattern_HW(thiz, texture) : DTKHDDVD_SetFillPattern_SW(thiz, texture);
}

DFBResult DTKHDDVD_CreatePen(DTKHDDVD* thiz, const DTKHDDVDPenShape* shape, DTKHDDVDPen** ret_pen)
{
    return is_hardware(thiz) ? DTKHDDVD_CreatePen_HW(thiz, shape, ret_pen)
                             : DTKHDDVD_CreatePen_SW(thiz, shape, ret_pen);
}

DFBResult DTKHDDVD_SetPen(DTKHDDVD* thiz, DTKHDDVDPen* pen)
{
    return is_hardware(thiz) ? DTKHDDVD_SetPen_HW(thiz, pen) : DTKHDDVD_SetPen_SW(thiz, pen);
}

DFBResult DTKHDDVD_Line(DTKHDDVD* thiz, int x1, int y1, int x2, int y2)
{
    return is_hardware(thiz) ? DTKHDDVD_Line_HW(thiz, x1, y1, x2, y2) : DTKHDDVD_Line_SW(thiz, x1, y1, x2, y2);
}

DFBResult DTKHDDVD_Rectangle(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    return is_hardware(thiz) ? DTKHDDVD_Rectangle_HW(thiz, rect, flags) : DTKHDDVD_Rectangle_SW(thiz, rect, flags);
}

DFBResult DTKHDDVD_Polygon(DTKHDDVD* thiz, const DFBPoint* points, u32 num_points, u8 closed, u32 flags)
{
    return is_hardware(thiz) ? DTKHDDVD_Polygon_HW(thiz, points, num_points, closed, flags)
                             : DTKHDDVD_Polygon_SW(thiz, points, num_points, closed, flags);
}

DFBResult DTKHDDVD_Ellipse(DTKHDDVD* thiz, const DFBRectangle* rect, u32 flags)
{
    return is_hardware(thiz) ? DTKHDDVD_Ellipse_HW(thiz, rect, flags) : DTKHDDVD_Ellipse_SW(thiz, rect, flags);
}
