#ifndef BENCH_PRESCRIBED_STORES_H
#define BENCH_PRESCRIBED_STORES_H

#include <directfb.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include "shape.h"

namespace bench {

/// A place in a locked surface, in pixels from its first one.
struct Place {
    std::ptrdiff_t offset;
    int width;
};

inline std::vector<Place> places(const std::vector<Run>& runs, int pitch)
{
    std::vector<Place> list;
    for (const Run& run : runs)
        list.push_back({static_cast<std::ptrdiff_t>(run.row) * pitch / 4 + run.left, run.width});
    return list;
}

/// Locks the surface, calls `store(pixels)`, and unlocks it.
template <typename Store>
void store_locked(IDirectFBSurface* surface, Store&& store)
{
    void* pixels = nullptr;
    int pitch = 0;
    surface->Lock(surface, DSLF_WRITE, &pixels, &pitch);
    store(static_cast<u32*>(pixels));
    surface->Unlock(surface);
}

inline int pitch_of(IDirectFBSurface* surface)
{
    void* pixels = nullptr;
    int pitch = 0;
    surface->Lock(surface, DSLF_WRITE, &pixels, &pitch);
    surface->Unlock(surface);
    return pitch;
}

} // namespace bench

#endif
