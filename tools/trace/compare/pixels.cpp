#include "pixels.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "../../platform.h"

namespace trace {

namespace {

/// Calls `visit(row, y)` for each row of a locked surface.
template <typename Visit>
void for_each_row(IDirectFBSurface* surface, DFBSurfaceLockFlags flags, int height, Visit&& visit)
{
    void* memory = nullptr;
    int pitch = 0;
    tools::check(surface->Lock(surface, flags, &memory, &pitch), "cannot reach a surface's pixels");
    for (int y = 0; y < height; ++y)
        visit(static_cast<char*>(memory) + static_cast<std::ptrdiff_t>(y) * pitch, static_cast<std::size_t>(y));
    surface->Unlock(surface);
}

bool is_further_apart(std::uint32_t one, std::uint32_t other)
{
    for (const int shift : {0, 8, 16}) {
        if (std::abs(static_cast<int>(one >> shift & 0xff) - static_cast<int>(other >> shift & 0xff)) > 1)
            return true;
    }
    return false;
}

void add(Difference& difference, int x, int y)
{
    if (difference.count++ == 0)
        difference = {1, x, y, x, y, x, y};
    difference.left = std::min(difference.left, x);
    difference.right = std::max(difference.right, x);
    difference.bottom = y;
}

} // namespace

Pixels read_pixels(IDirectFBSurface* surface, int width, int height)
{
    const auto row_size = static_cast<std::size_t>(width);
    Pixels pixels(row_size * static_cast<std::size_t>(height));
    for_each_row(surface, DSLF_READ, height, [&](const char* row, std::size_t y) {
        std::memcpy(pixels.data() + y * row_size, row, 4 * row_size);
    });
    return pixels;
}

void write_pixels(IDirectFBSurface* surface, const Pixels& pixels, int width, int height)
{
    const auto row_size = static_cast<std::size_t>(width);
    for_each_row(surface, DSLF_WRITE, height, [&](char* row, std::size_t y) {
        std::memcpy(row, pixels.data() + y * row_size, 4 * row_size);
    });
}

Difference compare(const Pixels& one, const Pixels& other, int width)
{
    Difference difference;
    for (std::size_t i = 0; i < one.size(); ++i) {
        if (one[i] != other[i] && is_further_apart(one[i], other[i]))
            add(difference, static_cast<int>(i) % width, static_cast<int>(i / static_cast<std::size_t>(width)));
    }
    return difference;
}

} // namespace trace
