#include "toolkit/create.h"
#include "toolkit/ref.h"
#include "zuvo.h"

#include <cstdio>

using namespace dtk;

namespace {

/// A toolkit without an engine looks like a software one: it holds nothing but DirectFB, which its release drops.
DFBResult abandon_without_engine(DTKHDDVD* toolkit, IDirectFB* dfb, DTKHDDVD** ret_interface)
{
    std::fputs("CreateDrawingToolkit_HDDVD: failed to create zuvo_dtk object\n", stderr);
    toolkit->priv->dfb = dfb;
    return abandon(toolkit, ret_interface, result::failure);
}

} // namespace

DFBResult CreateDrawingToolkit_HDDVD_HW(IDirectFB* dfb, IDirectFBSurface* surface, u8 use_scratch_pad,
                                        DTKHDDVD** ret_interface)
{
    if (!ret_interface)
        return result::invalid_argument;
    *ret_interface = nullptr;
    if (surface && !dfb)
        return result::invalid_argument;

    DTKHDDVD* toolkit = nullptr;
    if (DFBResult result = allocate_toolkit(&toolkit))
        return result;

    toolkit->priv->dtk = zuvo_dtk_get_handle();
    if (!toolkit->priv->dtk)
        return abandon_without_engine(toolkit, dfb, ret_interface);

    *ret_interface = toolkit;
    initialize(*toolkit->priv, dfb, use_scratch_pad);
    if (!surface)
        return result::ok;
    if (DFBResult result = create_target(*toolkit->priv, surface))
        return abandon(toolkit, ret_interface, result);
    return result::ok;
}

DFBResult AttachDFBSurfaceToDrawingToolkit_HDDVD_HW(DTKHDDVD* thiz, IDirectFBSurface* surface)
{
    if (!thiz || !surface || !thiz->priv->dfb)
        return result::invalid_argument;
    return create_target(*thiz->priv, surface);
}

DFBResult DetachDFBSurfaceToDrawingToolkit_HDDVD_HW(DTKHDDVD* thiz)
{
    if (!thiz)
        return result::thiz_null;

    // The sub-surface is not released.
    thiz->priv->target = nullptr;
    give_back(thiz->priv->scratch);
    return result::ok;
}
