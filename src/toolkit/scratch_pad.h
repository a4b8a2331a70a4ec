#ifndef DTK_TOOLKIT_SCRATCH_PAD_H
#define DTK_TOOLKIT_SCRATCH_PAD_H

#include "toolkit/records.h"

namespace dtk {

/// Makes a wholly transparent scratch pad of the size of `surface` the toolkit's own; one before is not given back.
DFBResult create_scratch_pad(DTKHDDVD_data& toolkit, IDirectFBSurface* surface);

} // namespace dtk

#endif
