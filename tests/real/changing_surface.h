#pragma once

#include "real/directfb.h"

/// Surfaces whose size changes while they are drawn on.
namespace real {

/// Whether this process's cairo has its DirectFB back end, which keeps the size and the format that a surface had at first.
bool cairo_has_back_end();

/// Waits until a surface tells the size that it was given: DirectFB tells it in a thread of its own.
void await_size(IDirectFBSurface* surface, int width, int height);

/// A window without a display, whose memory moves when its size changes.
class Window {
public:
    Window(int width, int height, DFBWindowCapabilities caps);
    ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    const Surface& surface() const { return surface_; }

    /// The window then holds the background alone.
    void resize(int width, int height);

private:
    IDirectFBDisplayLayer* layer_ = nullptr;
    IDirectFBWindow* window_ = nullptr;
    Surface surface_;
};

/// The screen, which gets its first size back at the end.
class Screen {
public:
    Screen(int width, int height);
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    const Surface& surface() const { return surface_; }

    /// The screen then holds the background alone.
    void resize(int width, int height);

private:
    void configure(int width, int height);

    IDirectFBDisplayLayer* layer_ = nullptr;
    DFBDisplayLayerConfig first_ = {};
    Surface surface_;
};

} // namespace real
