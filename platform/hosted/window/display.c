#include "display.h"

#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <X11/Xlibint.h>

#include "seat.h"

enum { usual_frame_rate = 60 };

static void (*lost)(void), (*lost_window)(void);
static pthread_t owner;
static XIOErrorHandler other_handler;
static XErrorHandler other_error_handler;

/*
 * Xlib ends the process when this returns. It has locked the display for this thread, in some calls so that XUnlockDisplay
 * has no effect, and exit handlers of other libraries want to lock it, too. Nobody needs its lock any more.
 */
static int on_lost_connection(Display *display)
{
    if (!pthread_equal(pthread_self(), owner))
        return other_handler(display);
    display->lock_fns = NULL;
    lost();
    return 0;
}

/* A window, or its memory on the server, that was made here. */
static bool is_own(const Display *display, const XErrorEvent *error)
{
    return (error->error_code == BadWindow || error->error_code == BadDrawable) &&
           (error->resourceid & ~display->resource_mask) == display->resource_base;
}

/*
 * Xlib would end the program. A window manager may take its frame away while SDL asks where it is, which is no harm. What was
 * made here is missing after another program has destroyed the window.
 */
static int on_refused_request(Display *display, XErrorEvent *error)
{
    if (!pthread_equal(pthread_self(), owner))
        return other_error_handler(display, error);
    if (is_own(display, error))
        lost_window();
    return 0;
}

static const char *variable(const char *name)
{
    const char *value = getenv(name);

    return value ? value : "";
}

/* None of those that take over a console or show nothing. SDL_VIDEODRIVER in the environment outweighs this. */
static const char *usual_drivers(void)
{
    if (!*variable("WAYLAND_DISPLAY") || !seat_is_there())
        return "x11";
    return *variable("DISPLAY") ? "x11,wayland" : "wayland";
}

static void set_hints(void)
{
    SDL_SetHint(SDL_HINT_VIDEODRIVER, usual_drivers());
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
    SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
    SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
}

static bool is_x11(void)
{
    return !strcmp(SDL_GetCurrentVideoDriver(), "x11");
}

bool display_connect(void (*when_lost)(void), void (*when_window_lost)(void))
{
    lost = when_lost;
    lost_window = when_window_lost;
    owner = pthread_self();
    set_hints();
    SDL_SetMainReady();
    // SDL keeps it behind its own one, and puts it back before the last answers of the server are read.
    other_error_handler = XSetErrorHandler(on_refused_request);
    if (SDL_InitSubSystem(SDL_INIT_VIDEO)) {
        fprintf(stderr, "zuvo: no window: %s (DISPLAY='%s', WAYLAND_DISPLAY='%s')\n", SDL_GetError(), variable("DISPLAY"),
                variable("WAYLAND_DISPLAY"));
        XSetErrorHandler(other_error_handler);
        return false;
    }
    // The surface of a window would otherwise take the way through OpenGL, which may be computed by the CPU.
    if (is_x11())
        SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    other_handler = XSetIOErrorHandler(on_lost_connection);
    return true;
}

void display_disconnect(void)
{
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    XSetErrorHandler(other_error_handler);
    XSetIOErrorHandler(other_handler);
}

long display_frame_time(void)
{
    SDL_DisplayMode mode;
    const bool is_known = !SDL_GetCurrentDisplayMode(0, &mode) && mode.refresh_rate > 0;

    return 1000000 / (is_known ? mode.refresh_rate : usual_frame_rate);
}

const Output *display_output(void)
{
    return is_x11() ? &surface_output : &texture_output;
}
