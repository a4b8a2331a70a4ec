#ifndef DTK_PEN_PEN_SURFACE_H
#define DTK_PEN_PEN_SURFACE_H

#include "toolkit/records.h"

namespace dtk {

/// Loads the toolkit's colours into the picture of its pen, which then stamps in them. It needs a current pen; a pen
/// without a picture is no failure.
DFBResult load_pen_palette(const DTKHDDVD_data& toolkit);

} // namespace dtk

#endif
