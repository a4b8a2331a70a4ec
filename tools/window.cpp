#include "window.h"

#include <cstdlib>

#include <dlfcn.h>
#include <unistd.h>

namespace tools {

namespace {

void (*call_back)() = nullptr;

/// Xlib leaves the process when this returns, through exit handlers that wait for the lost connection for ever.
int on_lost_connection(void*)
{
    call_back();
    _exit(EXIT_FAILURE);
}

} // namespace

void when_window_closes(void (*closed)())
{
    using Handler = int (*)(void* display);
    using SetHandler = Handler (*)(Handler);

    // Xlib is there only where DirectFB has loaded its x11 system. A window manager closes a window that does not know
    // of closing, as DirectFB's, by ending its connection.
    void* xlib = dlopen("libX11.so.6", RTLD_LAZY | RTLD_NOLOAD);
    if (!xlib)
        return;
    call_back = closed;
    if (const auto set_handler = reinterpret_cast<SetHandler>(dlsym(xlib, "XSetIOErrorHandler")))
        set_handler(on_lost_connection);
    dlclose(xlib);
}

} // namespace tools
