#ifndef TOOLS_TRACE_RECORDER_SURFACES_H
#define TOOLS_TRACE_RECORDER_SURFACES_H

#include "recorder.h"

namespace recorder {

/// Gives a surface its number, and writes its size and format into the trace when these are new. NULL has 0.
void describe(IDirectFBSurface* surface);

/// The same for what a toolkit is about to draw on. A surface that has been cleared before is cleared in the trace.
void describe_target(IDirectFBSurface* surface);

/// The same with its pixels, which the toolkit is going to read.
void take_picture(IDirectFBSurface* surface);

/// Names a surface that the toolkit has made, a pen's picture, with the number that the trace has for it. NULL is allowed.
void name_picture(IDirectFBSurface* surface, std::uint32_t number);

/// Flip and Clear of a surface that a toolkit draws on are recorded from now on, until as many toolkits have left it as
/// have been attached to it. It is this one interface whose slots change, and a reference keeps it alive so long.
void watch(IDirectFBSurface* surface);
void leave(IDirectFBSurface* surface);

} // namespace recorder

#endif
