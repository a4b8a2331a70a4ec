#include "seat.h"

#include <string.h>

#include <wayland-client.h>

static void on_global(void *has_seat, struct wl_registry *registry, uint32_t name, const char *interface, uint32_t version)
{
    if (!strcmp(interface, wl_seat_interface.name))
        *(bool *)has_seat = true;
}

static void on_global_removed(void *has_seat, struct wl_registry *registry, uint32_t name)
{
}

bool seat_is_there(void)
{
    static const struct wl_registry_listener listener = {on_global, on_global_removed};
    struct wl_display *display = wl_display_connect(NULL);
    struct wl_registry *registry;
    bool has_seat = false;

    if (!display)
        return false;
    registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &listener, &has_seat);
    wl_display_roundtrip(display);
    wl_registry_destroy(registry);
    wl_display_disconnect(display);
    return has_seat;
}
