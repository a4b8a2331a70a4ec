#ifndef TOOLS_TRACE_RUNS_H
#define TOOLS_TRACE_RUNS_H

#include <cstdint>
#include <vector>

namespace trace {

/// The pixels of a surface, row by row without gaps.
struct Picture {
    std::uint32_t width = 0, height = 0;
    std::uint8_t pixel_size = 0;            ///< In bytes, 1 to 4.
    std::vector<std::uint8_t> bytes;

    bool operator==(const Picture& other) const
    {
        return width == other.width && height == other.height && pixel_size == other.pixel_size && bytes == other.bytes;
    }
};

/// Appends the picture as runs: twice a number of pixels and one pixel that is repeated, or twice a number of pixels plus
/// one and these pixels. Two equal pixels in a row make a run.
void append_runs(std::vector<std::uint8_t>& bytes, const Picture& picture);

} // namespace trace

#endif
