#pragma once

#include "guarded_memory.h"

#include <directfb.h>
#include <memory>
#include <vector>

namespace fuzz {

struct MemoryDirectFB;

/// A surface in guarded memory that refuses what DirectFB refuses, and whatever it is told to.
struct MemorySurface : IDirectFBSurface {
    MemorySurface(MemoryDirectFB& directfb, int width, int height, DFBSurfacePixelFormat format);

    /// Counts one call and answers whether it is the one that fails.
    DFBResult call();

    /// The same for a call that a locked interface refuses.
    DFBResult drawing_call();

    void fill(long long left, long long top, long long w, long long h);
    void store(int x, int y);
    void check() const { memory->check(); }

    MemoryDirectFB& owner;
    int references = 1;
    int width, height, pitch;
    DFBSurfacePixelFormat format;
    std::shared_ptr<GuardedMemory> memory;  ///< Shared with the sub-surfaces.
    bool is_locked = false;
    u32 color = 0;
};

/// DirectFB's main interface over memory surfaces, which live as long as it does: a use after the last Release is found.
struct MemoryDirectFB : IDirectFB {
    MemoryDirectFB();

    MemorySurface* create(int width, int height, DFBSurfacePixelFormat format);

    /// Answers an error once, when the countdown comes to its end.
    DFBResult next_result();

    /// Ends the program when a surface's surroundings were written to, or stayed locked but by the application.
    void check(const MemorySurface* locked_by_application) const;

    int references = 1;
    unsigned calls_until_failure = 0;
    std::vector<std::unique_ptr<MemorySurface>> surfaces;
    IDirectFBPalette palette = {};
};

} // namespace fuzz
