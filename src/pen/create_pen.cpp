#include "toolkit/records.h"
#include "toolkit/report.h"

using namespace dtk;

namespace {

/// Allocates both records of a pen with one reference and the operations that every pen has; NULL without memory.
DTKHDDVDPen* allocate_pen()
{
    auto* pen = allocate_cleared<DTKHDDVDPen>();
    if (!pen)
        return nullptr;
    pen->priv = allocate_cleared<DTKHDDVDPen_data>();
    if (!pen->priv) {
        std::free(pen);
        return nullptr;
    }
    pen->priv->ref_count = 1;
    pen->AddRef = DTKHDDVDPen_AddRef;
    pen->Release = DTKHDDVDPen_Release;
    pen->GetSize = DTKHDDVDPen_GetSize;
    pen->GetSurface = DTKHDDVDPen_GetSurface;
    return pen;
}

/// The pen's picture: stroke colour inside, key colour outside.
DFBResult render(const DTKHDDVD_data& toolkit, const DTKHDDVDPenShape& shape, DTKHDDVDPen_data& pen)
{
    if (DFBResult result = render_pen_shape_lut8(toolkit.dfb, &shape, key_index, stroke_index, &pen.surface))
        return result;
    return pen.surface->SetSrcColorKeyIndex(pen.surface, key_index);
}

DFBResult create_software_pen(const DTKHDDVD_data& toolkit, const DTKHDDVDPenShape* shape, DTKHDDVDPen** ret_pen)
{
    if (!shape || !ret_pen)
        return result::invalid_argument;
    *ret_pen = nullptr;
    if (!toolkit.dfb)
        return result::invalid_argument;

    *ret_pen = allocate_pen();
    if (!*ret_pen)
        return result::no_memory;
    if (DFBResult result = render(toolkit, *shape, *(*ret_pen)->priv)) {
        (*ret_pen)->Release(*ret_pen);
        *ret_pen = nullptr;
        return result;
    }
    return result::ok;
}

DFBResult create_hardware_pen(const DTKHDDVDPenShape* shape, DTKHDDVDPen** ret_pen)
{
    if (!shape || !ret_pen)
        return result::invalid_argument;

    *ret_pen = allocate_pen();
    if (!*ret_pen)
        return result::no_memory;

    // Primitives send the toolkit's stroke colour; this one is only recorded.
    (*ret_pen)->GetShape = DTKHDDVDPen_GetShape;
    DTKHDDVDPen_data& pen = *(*ret_pen)->priv;
    pen.shape = *shape;
    pen.color = 0xFF00FFFF;
    ComputeSize(&pen.shape, &pen.width, &pen.height);
    return result::ok;
}

} // namespace

DFBResult DTKHDDVD_CreatePen_SW(DTKHDDVD* thiz, const DTKHDDVDPenShape* shape, DTKHDDVDPen** ret_pen)
{
    if (!thiz)
        return result::thiz_null;
    return report("DTKHDDVD_CreatePen", create_software_pen(*thiz->priv, shape, ret_pen));
}

DFBResult DTKHDDVD_CreatePen_HW(DTKHDDVD* thiz, const DTKHDDVDPenShape* shape, DTKHDDVDPen** ret_pen)
{
    if (!thiz)
        return result::thiz_null;
    return report("DTKHDDVD_CreatePen", create_hardware_pen(shape, ret_pen));
}
