#pragma once

#include "support/fake_surface.h"

#include <random>

namespace fake {

/// A part of a surface as rows of characters, after one newline: '#' where a pixel holds `color`, '.' where it was
/// never written, '?' elsewhere.
inline std::string picture(Surface& surface, const DFBRectangle& part, u32 color)
{
    const u32 untouched = surface.bytes_per_pixel() == 1 ? 0xEE : 0xEEEEEEEE;
    std::string rows = "\n";
    for (int y = part.y; y < part.y + part.h; y++) {
        for (int x = part.x; x < part.x + part.w; x++) {
            const u32 value = surface.pixel(x, y);
            rows += value == color ? '#' : value == untouched ? '.' : '?';
        }
        rows += '\n';
    }
    return rows;
}

/// A source of numbers that is the same on every machine.
class Random {
public:
    explicit Random(unsigned int seed) : engine_(seed) {}

    /// A whole number from `low` to `high`, both included.
    int between(int low, int high)
    {
        return low + int(engine_() % static_cast<unsigned int>(high - low + 1));
    }

private:
    std::mt19937 engine_;
};

} // namespace fake
