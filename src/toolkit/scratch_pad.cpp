#include "toolkit/scratch_pad.h"

#include "toolkit/palette.h"

#include <cstdio>

namespace dtk {

namespace {

constexpr DFBSurfacePixelFormat pad_format = DSPF_ARGB;

DFBSurfaceDescription describe_pad(IDirectFBSurface* surface)
{
    DFBSurfaceDescription description = {};
    description.flags =
        static_cast<DFBSurfaceDescriptionFlags>(DSDESC_CAPS | DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT);
    description.caps = DSCAPS_VIDEOONLY;
    description.pixelformat = pad_format;
    surface->GetSize(surface, &description.width, &description.height);
    return description;
}

/// Fills an indexed pad with the key colour, which blending then leaves out.
DFBResult fill_with_key(const DTKHDDVD_data& toolkit, IDirectFBSurface* pad, int width, int height)
{
    if (DFBResult result = push_palette(pad, toolkit.palette))
        return result;
    if (DFBResult result = pad->SetSrcColorKeyIndex(pad, key_index))
        return result;
    if (DFBResult result = pad->SetColorIndex(pad, key_index))
        return result;
    return pad->FillRectangle(pad, 0, 0, width, height);
}

} // namespace

DFBResult create_scratch_pad(DTKHDDVD_data& toolkit, IDirectFBSurface* surface)
{
    const DFBSurfaceDescription description = describe_pad(surface);

    // DirectFB may leave a dead pointer behind when it fails, so the field is written on success only.
    IDirectFBSurface* pad = nullptr;
    if (DFBResult result = toolkit.dfb->CreateSurface(toolkit.dfb, &description, &pad)) {
        std::fputs("Error creating DrawingToolkit scratchpad!!\n", stderr);
        return result;
    }
    toolkit.scratch = pad;

    if (DFB_PIXELFORMAT_IS_INDEXED(description.pixelformat))
        return fill_with_key(toolkit, pad, description.width, description.height);
    return pad->Clear(pad, 0, 0, 0, 0);
}

} // namespace dtk
