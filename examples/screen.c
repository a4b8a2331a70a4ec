#include "screen.h"

#include <errno.h>
#include <getopt.h>
#include <poll.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include <png.h>

static const char no_display[] = "there is no display; --png FILE writes the picture to a file";
static const char *program = "";
static volatile sig_atomic_t caught_signal;

static void fail(int status, const char *message)
{
    fprintf(stderr, "%s: %s\n", program, message);
    exit(status);
}

void check(DFBResult result)
{
    if (result)
        fail(1, result <= DTKHDDVD_THIZNULL ? "the toolkit cannot draw" : DirectFBErrorString(result));
}

static void catch_signal(int number)
{
    caught_signal = number;
}

/* ---- options ---- */

static void print_help(const char *what)
{
    printf("Usage: %s [OPTION...] [--dfb:OPTION,...] [--zuvo:OPTION,...]\n%s\n\n"
           "      --png FILE  write a picture to FILE, as PNG, instead of showing it\n"
           "  -h, --help      show this help\n"
           "      --version   show the version\n\n"
           "--dfb:... are options of DirectFB (--dfb:system=fbdev), --zuvo:... of the window (--zuvo:window=fullscreen).\n",
           program, what);
}

/* What was printed may still be on its way to a disk that is full. */
static void end_printing(void)
{
    if (fflush(stdout))
        fail(1, strerror(errno));
    exit(0);
}

/* DirectFB takes its own options away, and the window has read these. */
static int without_window_options(int argc, char **argv)
{
    int i, kept = 0;

    for (i = 0; i < argc; ++i)
        if (strncmp(argv[i], "--zuvo:", 7))
            argv[kept++] = argv[i];
    argv[kept] = NULL;
    return kept;
}

static const char *read_options(int argc, char **argv, const char *what)
{
    static const struct option options[] = {
        {"png", required_argument, NULL, 'p'}, {"help", no_argument, NULL, 'h'}, {"version", no_argument, NULL, 'v'}, {0}};
    const char *png = NULL;
    int letter;

    while ((letter = getopt_long(argc, argv, "h", options, NULL)) != -1) {
        if (letter == 'p')
            png = optarg;
        else if (letter == 'h')
            print_help(what), end_printing();
        else if (letter == 'v')
            printf("%s %d.%d.%d\n", program, DTKHDDVD_VERSION_MAJOR, DTKHDDVD_VERSION_MINOR, DTKHDDVD_VERSION_MICRO), end_printing();
        else
            exit(2);
    }
    if (optind < argc)
        fail(2, "it takes nothing but options: try --help");
    return png;
}

/* ---- the screen ---- */

/* Where DirectFB finds nothing to show a picture on, it may crash. */
static int may_have_display(int argc, char **argv)
{
    static const char *const variables[] = {"DISPLAY", "WAYLAND_DISPLAY", "DFBARGS"};
    static const char *const devices[] = {"/dev/fb0", "/dev/fb/0", "/dev/dri/card0", "/etc/directfbrc"};
    size_t i;

    for (i = 0; i < sizeof variables / sizeof *variables; ++i)
        if (getenv(variables[i]) && *getenv(variables[i]))
            return 1;
    for (i = 0; i < sizeof devices / sizeof *devices; ++i)
        if (!access(devices[i], R_OK))
            return 1;
    while (argc-- > 1)
        if (!strncmp(argv[argc], "--dfb:", 6) && strstr(argv[argc], "system="))
            return 1;
    return 0;
}

static DFBEnumerationResult count_device(DFBInputDeviceID id, DFBInputDeviceDescription description, void *count)
{
    (void)id;
    (void)description;
    ++*(int *)count;
    return DFENUM_OK;
}

/* Without a single key nobody could end the program, and nobody sees it. */
static int has_input(IDirectFB *dfb)
{
    int count = 0;

    check(dfb->EnumInputDevices(dfb, count_device, &count));
    return count > 0;
}

static void start_directfb(Screen *screen)
{
    check(DirectFBSetOption("quiet", NULL));
    /* Its handler ends programs on a console; these end by themselves. */
    check(DirectFBSetOption("no-sighandler", NULL));
    if (screen->png)
        check(DirectFBSetOption("system", "dummy"));
    check(DirectFBCreate(&screen->dfb));
    check(screen->dfb->SetCooperativeLevel(screen->dfb, DFSCL_FULLSCREEN));
    check(screen->dfb->CreateInputEventBuffer(screen->dfb, DICAPS_ALL, DFB_TRUE, &screen->events));
}

void screen_open(Screen *screen, int argc, char **argv, const char *what, int width, int height)
{
    const DFBSurfaceDescription description = {
        .flags = DSDESC_CAPS | DSDESC_WIDTH | DSDESC_HEIGHT | DSDESC_PIXELFORMAT,
        .caps = DSCAPS_PRIMARY | DSCAPS_FLIPPING, .width = width, .height = height, .pixelformat = DSPF_ARGB};
    const int has_display = may_have_display(argc, argv);

    program = strrchr(argv[0], '/') ? strrchr(argv[0], '/') + 1 : argv[0];
    memset(screen, 0, sizeof *screen);
    check(DirectFBInit(&argc, &argv));
    screen->png = read_options(without_window_options(argc, argv), argv, what);
    if (!screen->png && !has_display)
        fail(1, no_display);
    start_directfb(screen);
    if (!screen->png && !has_input(screen->dfb))
        fail(1, no_display);
    check(screen->dfb->CreateSurface(screen->dfb, &description, &screen->surface));
    signal(SIGHUP, catch_signal);
    signal(SIGINT, catch_signal);
    signal(SIGTERM, catch_signal);
}

void screen_show(Screen *screen)
{
    check(screen->surface->Flip(screen->surface, NULL, DSFLIP_BLIT));
    if (!screen->png)
        return;
    if (!screen_save(screen, screen->png))
        exit(1);
    screen->has_ended = 1;
}

void screen_close(Screen *screen)
{
    screen->events->Release(screen->events);
    screen->surface->Release(screen->surface);
    screen->dfb->Release(screen->dfb);
    if (!caught_signal)
        return;
    signal(caught_signal, SIG_DFL);
    raise(caught_signal);
}

/* ---- pictures ---- */

/* Drawing leaves its alpha behind, which no picture wants. */
static void make_opaque(u8 *pixels, int pitch, int width, int height)
{
    int x, y;

    for (y = 0; y < height; ++y)
        for (x = 0; x < width; ++x)
            ((u32 *)(pixels + y * pitch))[x] |= 0xFF000000;
}

int screen_save(const Screen *screen, const char *file)
{
    IDirectFBSurface *surface = screen->surface;
    png_image image = {.version = PNG_IMAGE_VERSION, .format = PNG_FORMAT_BGRA};
    FILE *stream = fopen(file, "wb");
    void *pixels;
    int width, height, pitch, is_written = 0;

    check(surface->GetSize(surface, &width, &height));
    check(surface->Lock(surface, DSLF_READ | DSLF_WRITE, &pixels, &pitch));
    make_opaque(pixels, pitch, width, height);
    image.width = (png_uint_32)width;
    image.height = (png_uint_32)height;
    if (stream)
        is_written = png_image_write_to_stdio(&image, stream, 0, pixels, pitch, NULL);
    check(surface->Unlock(surface));
    if ((stream && fclose(stream)) || !is_written) {
        fprintf(stderr, "%s: cannot write %s: %s\n", program, file, strerror(errno));
        return 0;
    }
    return 1;
}

/* ---- events ---- */

/* A pipe's reader that ended, or a terminal that was closed. */
static int has_lost_reader(void)
{
    struct pollfd output = {.fd = STDOUT_FILENO};

    return poll(&output, 1, 0) > 0 && (output.revents & (POLLERR | POLLHUP));
}

int screen_next_event(Screen *screen, unsigned milliseconds, DFBInputEvent *event)
{
    IDirectFBEventBuffer *events = screen->events;

    screen->has_ended = screen->has_ended || caught_signal || has_lost_reader();
    if (screen->has_ended)
        return 0;
    if (events->HasEvent(events))
        events->WaitForEventWithTimeout(events, milliseconds / 1000, milliseconds % 1000);
    if (events->GetEvent(events, DFB_EVENT(event)))
        return 0;
    screen->has_ended = event->type == DIET_KEYPRESS && event->key_symbol == DIKS_ESCAPE;
    return !screen->has_ended;
}

void screen_await_end(Screen *screen)
{
    DFBInputEvent event;

    while (!screen->has_ended)
        screen_next_event(screen, 200, &event);
}
