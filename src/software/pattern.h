#ifndef DTK_SOFTWARE_PATTERN_H
#define DTK_SOFTWARE_PATTERN_H

#include "toolkit/records.h"

namespace dtk {

/// Where cairo is to begin with a texture: a pattern that begins too far away is the same some whole tiles nearer.
DFBPoint pattern_origin(IDirectFBSurface* texture, const DFBPoint& origin);

/// Makes the fill pattern anew from the texture that it has, after cairo met an error in it.
void renew_fill_pattern(DTKHDDVD_data& toolkit);

} // namespace dtk

#endif
