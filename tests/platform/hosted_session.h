#pragma once

#include <memory>
#include <string>
#include <vector>
#include <zuvo.h>

/// The hosted platform, started with its engine, and DirectFB without a display.
class HostedSession {
public:
    HostedSession();
    ~HostedSession();

    struct Release {
        void operator()(IDirectFBSurface* surface) const { surface->Release(surface); }
    };
    using Surface = std::unique_ptr<IDirectFBSurface, Release>;

    /// A surface that holds zeros.
    Surface make_surface(int width, int height, DFBSurfacePixelFormat format = DSPF_ARGB) const;

    IDirectFB* directfb;
    unsigned int engine;
};

/// The engine's handle of a surface.
unsigned int handle_of(const HostedSession::Surface& surface);

/// The pixels of a 32-bit surface, row by row.
std::vector<u32> read(const HostedSession::Surface& surface);

/// A 32-bit surface in rows of characters: '.' where it is 0, '#' elsewhere.
std::string text_of(const HostedSession::Surface& surface);
