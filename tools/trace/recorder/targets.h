#ifndef TOOLS_TRACE_RECORDER_TARGETS_H
#define TOOLS_TRACE_RECORDER_TARGETS_H

#include "recorder.h"

namespace recorder {

/// What is known of the toolkits: how many references there are, what each draws on and fills with. In no turn.

void toolkit_was_made(DTKHDDVD* toolkit, IDirectFBSurface* target);
void target_was_set(DTKHDDVD* toolkit, IDirectFBSurface* target);
void reference_was_taken(DTKHDDVD* toolkit);

/// To be called when a reference has been given back, with the last of which the toolkit is gone.
void reference_was_given_back(DTKHDDVD* toolkit);

void texture_was_set(DTKHDDVD* toolkit, IDirectFBSurface* texture);

/// Before a toolkit fills: the texture's pixels are taken anew where this was asked for.
void take_drawn_texture(DTKHDDVD* toolkit, u32 flags);

} // namespace recorder

#endif
