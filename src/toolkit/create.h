#ifndef DTK_TOOLKIT_CREATE_H
#define DTK_TOOLKIT_CREATE_H

#include "toolkit/records.h"

namespace dtk {

/// Allocates both records of a toolkit with one reference and all operations; complains when there is no memory.
DFBResult allocate_toolkit(DTKHDDVD** ret_toolkit);

/// Gives a toolkit what both back ends start with. No reference on `dfb` is taken.
void initialize(DTKHDDVD_data& toolkit, IDirectFB* dfb, u8 use_scratch_pad);

/// Destroys a toolkit whose creation failed and passes the result on.
DFBResult abandon(DTKHDDVD* toolkit, DTKHDDVD** ret_interface, DFBResult result);

/// Makes a sub-surface of all of `surface` the target, with its scratch pad, and takes a reference on DirectFB.
DFBResult create_target(DTKHDDVD_data& toolkit, IDirectFBSurface* surface);

} // namespace dtk

#endif
