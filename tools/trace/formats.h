#ifndef TOOLS_TRACE_FORMATS_H
#define TOOLS_TRACE_FORMATS_H

#include <cstdint>
#include <string>

namespace trace {

/// "ARGB" and the like, or a hexadecimal number for a pixel format that has no name here.
std::string name_of_format(std::uint32_t format);

/// @return Whether there is a format of this name, written to @p ret_format.
bool read_format(const std::string& name, std::uint32_t& ret_format);

} // namespace trace

#endif
