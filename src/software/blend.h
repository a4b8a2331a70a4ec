#ifndef DTK_SOFTWARE_BLEND_H
#define DTK_SOFTWARE_BLEND_H

#include "toolkit/result.h"

namespace dtk {

/// Blends a rectangle of the scratch pad onto the same place of the target and makes it transparent again, between
/// the drawing engine's earlier work and whatever comes after. Prints which call failed. A rectangle outside the target
/// is no failure.
DFBResult BlendScratchPad(IDirectFB* dfb, u32 dtk, IDirectFBSurface* target, IDirectFBSurface* scratch,
                          const DFBRectangle& rect);

/// The same where no drawing engine is at work. It is silent, and a rectangle outside the target is a failure, after
/// which the pad keeps its drawing.
DFBResult BlendScratchPadNoSync(IDirectFBSurface* target, IDirectFBSurface* scratch, const DFBRectangle& rect);

} // namespace dtk

#endif
