#include "compare.h"

#include <algorithm>

namespace conformance {
namespace {

int channel_distance(u32 one, u32 other, int shift)
{
    return std::abs(static_cast<int>(one >> shift & 255) - static_cast<int>(other >> shift & 255));
}

} // namespace

int distance(u32 one, u32 other)
{
    return std::max(
        {channel_distance(one, other, 16), channel_distance(one, other, 8), channel_distance(one, other, 0)});
}

Difference compare(const Picture& expected, const Picture& drawn, int allowed)
{
    Difference difference;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (distance(expected[i], drawn[i]) <= allowed)
            continue;
        if (!difference.count++)
            difference.first = i;
    }
    return difference;
}

std::vector<bool> coverage(const Picture& picture, u32 background)
{
    std::vector<bool> covered;
    for (const u32 pixel : picture)
        covered.push_back(pixel != background);
    return covered;
}

} // namespace conformance
