#ifndef TOOLS_WRITE_PNG_H
#define TOOLS_WRITE_PNG_H

#include <string>

#include <directfb.h>

namespace tools {

/// Writes what @p surface (DSPF_ARGB or DSPF_RGB32) shows to the file @p path, without its alpha.
///
/// @throws std::runtime_error when the surface cannot be read or the file cannot be written.
void write_png(const std::string& path, IDirectFBSurface* surface);

} // namespace tools

#endif
