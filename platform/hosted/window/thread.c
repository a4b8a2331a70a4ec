/*
 * The window's thread. It makes every call of SDL, because SDL is for one thread: even waking it up from another one would
 * write to a second connection to the X server. So the others leave their pictures, and this one looks for events.
 */
#include <limits.h>
#include <pthread.h>
#include <signal.h>
#include <time.h>

#include "closing.h"
#include "display.h"
#include "frame.h"
#include "input.h"

enum {
    longest_nap = 15,           /* Milliseconds from one look for events to the next. */
    time_to_settle = 30000,     /* Microseconds from the first picture, which may be DirectFB's own, to the window. */
    longest_end = 5             /* Seconds. */
};

static struct {
    pthread_t id;
    WindowOptions options;
    long frame_time;
    pthread_mutex_t lock;
    pthread_cond_t has_started;
    enum { STARTING, CONNECTED, REFUSED } state;
    bool is_lost;               /* With its display, or in a call of SDL that does not end. */
} thread = {.lock = PTHREAD_MUTEX_INITIALIZER, .has_started = PTHREAD_COND_INITIALIZER};

/*
 * The X server has gone, or the Wayland compositor: SDL then asks to quit. It may have happened in the middle of a call of
 * SDL, so none can be made any more, not even to end it; and while the picture was locked.
 */
__attribute__((noreturn)) static void on_lost_display(void)
{
    picture_unlock();
    thread.is_lost = true;
    closing_begin(true);
    while (!picture_has_ended()) {
        picture_await(LLONG_MAX, longest_nap);
        closing_insist();
    }
    pthread_exit(NULL);
}

/* Another program has destroyed it. */
static void on_lost_window(void)
{
    closing_begin(false);
}

static void take_window_event(const SDL_WindowEvent *event)
{
    switch (event->event) {
    case SDL_WINDOWEVENT_CLOSE:
        frame_hide();
        closing_begin(false);
        break;
    case SDL_WINDOWEVENT_EXPOSED:
    case SDL_WINDOWEVENT_SIZE_CHANGED:
        frame_renew();
        break;
    default:
        break;
    }
}

static bool is_full_screen_key(const SDL_Event *event)
{
    return (event->type == SDL_KEYDOWN || event->type == SDL_KEYUP) && event->key.keysym.sym == SDLK_F11;
}

static void take_event(const SDL_Event *event)
{
    if (event->type == SDL_WINDOWEVENT)
        take_window_event(&event->window);
    else if (event->type == SDL_RENDER_TARGETS_RESET || event->type == SDL_RENDER_DEVICE_RESET)
        frame_renew();
    else if (event->type == SDL_QUIT)
        on_lost_display();
    else if (!is_full_screen_key(event))
        input_take(event);
    else if (event->type == SDL_KEYDOWN && !event->key.repeat)
        frame_toggle_full_screen();
}

static void take_events(void)
{
    SDL_Event event;

    while (SDL_PollEvent(&event))
        take_event(&event);
}

static void await_first_picture(void)
{
    while (!picture_has_ended() && !picture_await(0, longest_nap))
        take_events();
}

static void live(void)
{
    long long due;

    await_first_picture();
    due = picture_clock() + time_to_settle;
    while (!picture_has_ended()) {
        if (picture_await(due, longest_nap)) {
            due = picture_clock() + thread.frame_time;
            frame_show();
        }
        take_events();
        closing_insist();
    }
}

static void announce(bool is_connected)
{
    pthread_mutex_lock(&thread.lock);
    thread.state = is_connected ? CONNECTED : REFUSED;
    pthread_cond_signal(&thread.has_started);
    pthread_mutex_unlock(&thread.lock);
}

static void *run(void *nothing)
{
    const bool is_connected = display_connect(on_lost_display, on_lost_window);

    (void)nothing;
    if (is_connected)
        thread.frame_time = display_frame_time();
    announce(is_connected);
    if (!is_connected)
        return NULL;
    live();
    frame_close();
    display_disconnect();
    return NULL;
}

/* ---- for the other threads ---- */

/* The program's signals are not for this thread. */
static bool start(void)
{
    sigset_t all, before;
    int failure;

    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    failure = pthread_create(&thread.id, NULL, run, NULL);
    pthread_sigmask(SIG_SETMASK, &before, NULL);
    return !failure;
}

static bool has_connected(void)
{
    bool is_connected;

    pthread_mutex_lock(&thread.lock);
    while (thread.state == STARTING)
        pthread_cond_wait(&thread.has_started, &thread.lock);
    is_connected = thread.state == CONNECTED;
    pthread_mutex_unlock(&thread.lock);
    return is_connected;
}

/* A window manager that hangs keeps the thread waiting for it. */
static void close_window(void)
{
    struct timespec latest;

    clock_gettime(CLOCK_REALTIME, &latest);
    latest.tv_sec += longest_end;
    input_enable(false);
    picture_end();
    if (pthread_timedjoin_np(thread.id, NULL, &latest))
        thread.is_lost = true;
}

static bool open_window(const WindowOptions *options)
{
    if (thread.is_lost)
        return false;
    thread.state = STARTING;
    picture_reset();
    closing_reset();
    frame_reset(options);
    if (!start())
        return false;
    if (!has_connected()) {
        pthread_join(thread.id, NULL);
        return false;
    }
    input_enable(true);
    return true;
}

static long frame_time(void)
{
    return thread.frame_time;
}

extern const ZuvoWindow zuvo_window;

__attribute__((visibility("default"))) const ZuvoWindow zuvo_window = {
    .open = open_window,
    .close = close_window,
    .resize = picture_resize,
    .draw = picture_draw,
    .frame_time = frame_time,
};
