#ifndef DTK_TOOLKIT_CONTEXT_H
#define DTK_TOOLKIT_CONTEXT_H

#include "toolkit/records.h"

namespace dtk {

/// Makes a cairo context that draws on a DirectFB surface without antialiasing.
///
/// The context owns cairo's surface; `ret_surface`, if not NULL, receives it as a loan. A surface that cairo refuses
/// gives a context in error, never NULL.
cairo_t* create_context(IDirectFB* dfb, IDirectFBSurface* surface, cairo_surface_t** ret_surface);

/// Destroys the context that a field holds, if any, with the cairo surface that it owns, and clears the field.
void destroy_context(cairo_t*& context);

} // namespace dtk

#endif
