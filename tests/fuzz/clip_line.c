/* DirectFB's internal headers are C only. */
#include "engine/surface/directfb_core.h"

#include <gfx/clip.h>

bool directfb_core_clip_line(const DFBRegion *clip, DFBRegion *line)
{
    return dfb_clip_line(clip, line);
}
