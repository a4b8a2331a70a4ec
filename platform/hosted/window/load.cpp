#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>

#include "../start/options.h"
#include "window.h"

namespace {

const char library_name[] = "zuvo/libzuvo_window.so";

bool is_set(const char* variable)
{
    const char* value = std::getenv(variable);
    return value && *value;
}

/// The window's library lies in a folder beside this one, where no linker looks. Its whole name spares the loader's search, which would depend on the
/// folder that the program was started in.
bool find_library(char* path, size_t size)
{
    Dl_info here;
    if (!dladdr(reinterpret_cast<void*>(&window_is_wanted), &here))
        return false;
    const char* slash = std::strrchr(here.dli_fname, '/');
    const int folder_length = slash ? static_cast<int>(slash - here.dli_fname) + 1 : 0;
    const int length = std::snprintf(path, size, "%.*s%s", folder_length, here.dli_fname, library_name);
    return length > 0 && static_cast<size_t>(length) < size;
}

/// The library stays loaded, because DirectFB keeps the input driver in it for the next start.
const ZuvoWindow* load()
{
    char path[4096];
    void* library = find_library(path, sizeof(path)) ? dlopen(path, RTLD_NOW | RTLD_LOCAL) : nullptr;
    void* symbol = library ? dlsym(library, WINDOW_SYMBOL) : nullptr;
    if (!symbol)
        std::fprintf(stderr, "zuvo: no window: %s; install libsdl2-2.0-0 and libzuvo1-window\n", dlerror());
    return static_cast<const ZuvoWindow*>(symbol);
}

} // namespace

bool window_has_display(void)
{
    return is_set("DISPLAY") || is_set("WAYLAND_DISPLAY");
}

bool window_is_wanted(void)
{
    return window_has_display() && zuvo::options().window.is_on;
}

const ZuvoWindow* window_open(void)
{
    const ZuvoWindow* window = window_is_wanted() ? load() : nullptr;
    const zuvo::WindowSettings& window_settings = zuvo::options().window;
    const WindowOptions options = {window_settings.is_full_screen, window_settings.width, window_settings.height};
    return window && window->open(&options) ? window : nullptr;
}
