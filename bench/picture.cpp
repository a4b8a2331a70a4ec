#include "picture.h"

#include <algorithm>

namespace bench {

void clear(const Memory& memory, Colour colour)
{
    for (int y = 0; y < picture_height; ++y)
        std::fill_n(memory.row(y), picture_width, colour);
}

Picture read(const Memory& memory)
{
    Picture picture;
    picture.reserve(static_cast<std::size_t>(picture_width) * picture_height);
    for (int y = 0; y < picture_height; ++y)
        std::transform(memory.row(y), memory.row(y) + picture_width, std::back_inserter(picture),
                       [](std::uint32_t pixel) { return pixel & 0xffffff; });
    return picture;
}

std::vector<Run> painted_runs(const Picture& picture)
{
    const auto is_painted = [](std::uint32_t pixel) { return pixel != (background & 0xffffff); };
    std::vector<Run> runs;
    for (int y = 0; y < picture_height; ++y) {
        const auto begin = picture.begin() + static_cast<std::ptrdiff_t>(y) * picture_width;
        const auto end = begin + picture_width;
        for (auto from = std::find_if(begin, end, is_painted); from != end;) {
            const auto to = std::find_if_not(from, end, is_painted);
            runs.push_back({y, static_cast<int>(from - begin), static_cast<int>(to - from)});
            from = std::find_if(to, end, is_painted);
        }
    }
    return runs;
}

Box bounds(const std::vector<Run>& runs)
{
    if (runs.empty())
        return {0, 0, 0, 0};
    int left = picture_width, right = 0;
    for (const Run& run : runs) {
        left = std::min(left, run.left);
        right = std::max(right, run.left + run.width);
    }
    return {left, runs.front().row, right - left, runs.back().row + 1 - runs.front().row};
}

long count_pixels(const std::vector<Run>& runs)
{
    long count = 0;
    for (const Run& run : runs)
        count += run.width;
    return count;
}

} // namespace bench
