#ifndef DTK_TOOLKIT_DRAWING_H
#define DTK_TOOLKIT_DRAWING_H

#include "toolkit/records.h"

namespace dtk {

/// Whether the drawing flags ask for anything.
inline bool draws(u32 flags)
{
    return flags & (DTKHDDVD_FILL | DTKHDDVD_STROKE);
}

/// Whether what the drawing flags ask for is translucent or patterned.
inline bool needs_blending(const DTKHDDVD_data& toolkit, u32 flags, bool has_pattern)
{
    const bool fill_blends = has_pattern || toolkit.palette[fill_index].a != 255;
    const bool stroke_blends = toolkit.palette[stroke_index].a != 255;
    return ((flags & DTKHDDVD_FILL) && fill_blends) || ((flags & DTKHDDVD_STROKE) && stroke_blends);
}

/// Whether the software back end draws in the scratch pad, which it does with whatever is translucent or patterned.
inline bool uses_scratch_pad(const DTKHDDVD_data& toolkit, u32 flags)
{
    return toolkit.use_scratch_pad && needs_blending(toolkit, flags, toolkit.fill_pattern);
}

} // namespace dtk

#endif
