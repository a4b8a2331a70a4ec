#include "toolkit/create.h"

#include "toolkit/scratch_pad.h"
#include "toolkit/trace.h"

#include <cstdio>

namespace dtk {

namespace {

/// Both back ends share the dispatching operations.
void fill_slots(DTKHDDVD& toolkit)
{
    toolkit.AddRef = DTKHDDVD_AddRef;
    toolkit.Release = DTKHDDVD_Release;
    toolkit.SetStrokeColor = DTKHDDVD_SetStrokeColor;
    toolkit.SetFillColor = DTKHDDVD_SetFillColor;
    toolkit.SetFillPattern = DTKHDDVD_SetFillPattern;
    toolkit.CreatePen = DTKHDDVD_CreatePen;
    toolkit.SetPen = DTKHDDVD_SetPen;
    toolkit.Line = DTKHDDVD_Line;
    toolkit.Rectangle = DTKHDDVD_Rectangle;
    toolkit.Polygon = DTKHDDVD_Polygon;
    toolkit.Ellipse = DTKHDDVD_Ellipse;
}

} // namespace

DFBResult allocate_toolkit(DTKHDDVD** ret_toolkit)
{
    auto* toolkit = allocate_cleared<DTKHDDVD>();
    if (!toolkit) {
        std::fputs("cant allocate interface\n", stderr);
        return result::no_memory;
    }
    toolkit->priv = allocate_cleared<DTKHDDVD_data>();
    if (!toolkit->priv) {
        std::free(toolkit);
        return result::no_memory;
    }
    toolkit->priv->ref_count = 1;
    fill_slots(*toolkit);
    *ret_toolkit = toolkit;
    return result::ok;
}

void initialize(DTKHDDVD_data& toolkit, IDirectFB* dfb, u8 use_scratch_pad)
{
    toolkit.use_scratch_pad = use_scratch_pad;
    toolkit.palette[stroke_index] = {255, 255, 255, 255};
    toolkit.palette[fill_index] = {255, 255, 255, 255};
    toolkit.palette[key_index] = {0, 0, 0, 0};
    toolkit.dfb = dfb;
    configure_tracing();
}

DFBResult abandon(DTKHDDVD* toolkit, DTKHDDVD** ret_interface, DFBResult result)
{
    toolkit->Release(toolkit);
    *ret_interface = nullptr;
    return result;
}

DFBResult create_target(DTKHDDVD_data& toolkit, IDirectFBSurface* surface)
{
    // DirectFB may leave a dead pointer behind when it fails, so the field is written on success only.
    IDirectFBSurface* target = nullptr;
    if (DFBResult result = surface->GetSubSurface(surface, nullptr, &target))
        return result;
    toolkit.target = target;

    if (toolkit.use_scratch_pad) {
        if (DFBResult result = create_scratch_pad(toolkit, surface))
            return result;
    }
    toolkit.dfb->AddRef(toolkit.dfb);
    return result::ok;
}

} // namespace dtk
