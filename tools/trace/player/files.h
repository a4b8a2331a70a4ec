#ifndef TOOLS_TRACE_PLAYER_FILES_H
#define TOOLS_TRACE_PLAYER_FILES_H

#include <stdexcept>

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

/// Does @p work, and tells which call it was that cannot be made.
template <typename Work>
void naming_call(const std::string& file, const Call& call, std::size_t index, Work&& work)
{
    try {
        work();
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(file + ": call " + std::to_string(index + 1) + ", " + call.name() + ", at " +
                                 std::to_string(call.place) + ": " + error.what());
    }
}

} // namespace trace

#endif
