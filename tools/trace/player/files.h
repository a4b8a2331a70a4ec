#ifndef TOOLS_TRACE_PLAYER_FILES_H
#define TOOLS_TRACE_PLAYER_FILES_H

#include <directfb.h>

#include "../call.h"

namespace trace {

/// Reads a trace, in whichever of its forms.
///
/// @throws std::runtime_error with the file's name.
Trace load(const std::string& path);

/// Writes bytes to a file, "-" for standard output.
void save(const std::string& path, const char* bytes, std::size_t size);

/// Writes a surface of any format as PNG.
void save_picture(const std::string& path, IDirectFB* dfb, IDirectFBSurface* surface);

} // namespace trace

#endif
