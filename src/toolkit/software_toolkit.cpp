#include "toolkit/context.h"
#include "toolkit/create.h"
#include "toolkit/ref.h"

using namespace dtk;

namespace {

/// Binds target and scratch pad; a creation does not record the cairo surfaces, which the contexts own.
DFBResult attach_at_creation(DTKHDDVD_data& toolkit, IDirectFBSurface* surface)
{
    if (DFBResult result = create_target(toolkit, surface))
        return result;
    toolkit.target_cr = create_context(toolkit.dfb, surface, nullptr);
    if (toolkit.use_scratch_pad)
        toolkit.scratch_cr = create_context(toolkit.dfb, toolkit.scratch, nullptr);
    return result::ok;
}

} // namespace

DFBResult CreateDrawingToolkit_HDDVD_SW(IDirectFB* dfb, IDirectFBSurface* surface, u8 use_scratch_pad,
                                        DTKHDDVD** ret_interface)
{
    if (!ret_interface)
        return result::invalid_argument;
    *ret_interface = nullptr;
    if (surface && !dfb)
        return result::invalid_argument;

    if (DFBResult result = allocate_toolkit(ret_interface))
        return result;

    DTKHDDVD* toolkit = *ret_interface;
    initialize(*toolkit->priv, dfb, use_scratch_pad);
    if (!surface)
        return result::ok;
    if (DFBResult result = attach_at_creation(*toolkit->priv, surface))
        return abandon(toolkit, ret_interface, result);
    return result::ok;
}

DFBResult AttachDFBSurfaceToDrawingToolkit_HDDVD_SW(DTKHDDVD* thiz, IDirectFBSurface* surface)
{
    if (!thiz || !surface || !thiz->priv->dfb)
        return result::invalid_argument;

    DTKHDDVD_data& toolkit = *thiz->priv;

    // What a detach leaves behind holds the whole scratch pad that it drew into.
    if (!toolkit.target)
        destroy_context(toolkit.scratch_cr);
    if (DFBResult result = create_target(toolkit, surface))
        return result;
    toolkit.target_cr = create_context(toolkit.dfb, surface, &toolkit.target_cairo_surface);
    if (toolkit.use_scratch_pad)
        toolkit.scratch_cr = create_context(toolkit.dfb, toolkit.scratch, &toolkit.scratch_cairo_surface);
    return result::ok;
}

DFBResult DetachDFBSurfaceToDrawingToolkit_HDDVD_SW(DTKHDDVD* thiz)
{
    if (!thiz)
        return result::thiz_null;

    // The sub-surface is not released. The attach has given up its references on the cairo surfaces already.
    DTKHDDVD_data& toolkit = *thiz->priv;
    toolkit.target = nullptr;
    give_back(toolkit.scratch);
    toolkit.target_cairo_surface = nullptr;
    toolkit.scratch_cairo_surface = nullptr;
    cairo_destroy(toolkit.target_cr);
    toolkit.target_cr = nullptr;
    return result::ok;
}
