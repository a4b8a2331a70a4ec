#include "toolkit/palette.h"

#include "toolkit/ref.h"

namespace dtk {

DFBResult push_palette(IDirectFBSurface* surface, const DFBColor (&colors)[3])
{
    Ref<IDirectFBPalette> palette;
    if (DFBResult result = surface->GetPalette(surface, palette.receive()))
        return result;
    if (!palette)
        return result::ok;
    return palette->SetEntries(palette.get(), colors, 3, 0);
}

} // namespace dtk
