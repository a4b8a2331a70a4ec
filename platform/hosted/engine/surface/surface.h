#ifndef ZUVO_SURFACE_H
#define ZUVO_SURFACE_H

#include "directfb_core.h"
#include "directfb_part.h"
#include "engine/paint/pixels.h"

#include <climits>

namespace zuvo {

/// Returns whether the engine can use the surface of a handle. Returns a zuvo_error.
int check_surface(unsigned int handle);

/// Whether two handles name the same surface, or parts of one that overlap.
bool share_pixels(unsigned int one, unsigned int other);

/// The pixels of a surface, locked for as long as this lives.
class OpenSurface {
public:
    explicit OpenSurface(DirectFBCoreUse use) : use_(use), is_open_(false), pixels_{}, origin_{0, 0} {}
    ~OpenSurface();
    OpenSurface(const OpenSurface&) = delete;
    OpenSurface& operator=(const OpenSurface&) = delete;

    /// Finds and locks the surface of a handle. Returns a zuvo_error.
    int open(unsigned int handle);

    /// All pixels of the surface, or those of the part that lie inside it: one at least.
    const Pixels& pixels() const { return pixels_; }

    /// A point of the surface's coordinates, or of the part's, among the pixels.
    DFBPoint at(int x, int y) const { return {moved(x, origin_.x), moved(y, origin_.y)}; }
    DFBRectangle at(const DFBRectangle& rect) const
    {
        return {moved(rect.x, origin_.x), moved(rect.y, origin_.y), rect.w, rect.h};
    }

private:
    /// A part begins left of its pixels or above them, if at all, so this goes beyond the numbers on one side only.
    static int moved(int coordinate, int distance)
    {
        int sum = 0;
        return __builtin_add_overflow(coordinate, distance, &sum) ? INT_MIN : sum;
    }

    /// Leaves the pixels of a part. Returns a zuvo_error.
    [[gnu::noinline]] int cut(const DirectFBPart& part);

    DirectFBCoreUse use_;
    bool is_open_;
    Pixels pixels_;
    DFBPoint origin_;       ///< Where the coordinates begin among the pixels; not positive.
};

} // namespace zuvo

#endif
