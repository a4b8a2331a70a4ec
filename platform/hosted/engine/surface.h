#ifndef ZUVO_SURFACE_H
#define ZUVO_SURFACE_H

#include "../directfb_core.h"
#include "painter.h"

namespace zuvo {

/// Tells whether the engine can use the surface of a handle. Answers a zuvo_error.
int check_surface(unsigned int handle);

/// The pixels of a surface, locked for as long as this lives.
class OpenSurface {
public:
    explicit OpenSurface(DirectFBCoreUse use) : use_(use), is_open_(false), pixels_{} {}
    ~OpenSurface();
    OpenSurface(const OpenSurface&) = delete;
    OpenSurface& operator=(const OpenSurface&) = delete;

    /// Finds and locks the surface of a handle. Answers a zuvo_error.
    int open(unsigned int handle);

    const Pixels& pixels() const { return pixels_; }

private:
    DirectFBCoreUse use_;
    bool is_open_;
    Pixels pixels_;
};

} // namespace zuvo

#endif
