/*
 * window_modes FORMAT MODE: four bars on the layer in a pixel format and a buffer mode. Prints the results, how often flips
 * waited for the display, and how long 6 of them took, in milliseconds. The first SIGUSR1 has it printed how busy the
 * processor was until then and makes the lower left corner white, the second one ends DirectFB, but not the program.
 */
#include <dlfcn.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <time.h>
#include <unistd.h>

#include <directfb.h>
#include <zuvo.h>

static const DFBColor bars[] = {{0xFF, 0xFF, 0, 0}, {0xFF, 0, 0xFF, 0}, {0xFF, 0, 0, 0xFF}, {0xFF, 0xFF, 0xFF, 0xFF}};

static void draw_bars(IDirectFBSurface *surface)
{
    int i;

    for (i = 0; i < 4; ++i) {
        surface->SetColor(surface, bars[i].r, bars[i].g, bars[i].b, bars[i].a);
        surface->FillRectangle(surface, i * 160, 0, 160, 480);
    }
}

static int waits, waits_in_order;

static long long nanoseconds(clockid_t clock)
{
    struct timespec now;

    clock_gettime(clock, &now);
    return now.tv_sec * 1000000000LL + now.tv_nsec;
}

/* A wait for the display ends within a frame of 1/50 s, where a microsecond begins. */
static int is_in_order(const struct timespec *due)
{
    const long long left = due->tv_sec * 1000000000LL + due->tv_nsec - nanoseconds(CLOCK_MONOTONIC);

    return left < 20000000 && due->tv_nsec % 1000 == 0;
}

/* In front of the C library's: counts the waits for the display. */
int clock_nanosleep(clockid_t clock, int flags, const struct timespec *time, struct timespec *rest)
{
    typedef int Sleep(clockid_t, int, const struct timespec *, struct timespec *);
    Sleep *sleep = (Sleep *)dlsym(RTLD_NEXT, "clock_nanosleep");

    if (flags == TIMER_ABSTIME) {
        ++waits;
        waits_in_order += is_in_order(time);
    }
    return sleep(clock, flags, time, rest);
}

static sigset_t user_signal(void)
{
    sigset_t signals;

    sigemptyset(&signals);
    sigaddset(&signals, SIGUSR1);
    return signals;
}

static void await_signal(void)
{
    const sigset_t signals = user_signal();
    int number;

    sigwait(&signals, &number);
}

static void flip_often(IDirectFBSurface *surface, DFBSurfaceFlipFlags flags)
{
    int i;

    waits = waits_in_order = 0;
    for (i = 0; i < 6; ++i) {
        draw_bars(surface);
        surface->Flip(surface, NULL, flags);
    }
    printf("%d waits, %d in order\n", waits, waits_in_order);
}

static void draw_corner(IDirectFBSurface *surface)
{
    const DFBRegion corner = {0, 440, 39, 479};

    surface->SetColor(surface, 0xFF, 0xFF, 0xFF, 0xFF);
    surface->FillRectangle(surface, 0, 440, 40, 40);
    surface->Flip(surface, &corner, DSFLIP_NONE);
}

/* How busy the processor was until the signal. */
static void print_costs_of_wait(void)
{
    const long long start = nanoseconds(CLOCK_MONOTONIC), busy = nanoseconds(CLOCK_PROCESS_CPUTIME_ID);

    await_signal();
    printf("busy: %lld in 1000\n",
           (nanoseconds(CLOCK_PROCESS_CPUTIME_ID) - busy) * 1000 / (nanoseconds(CLOCK_MONOTONIC) - start));
    fflush(stdout);
}

static void show(IDirectFBSurface *surface)
{
    const long long start = nanoseconds(CLOCK_MONOTONIC);
    long long end;

    flip_often(surface, DSFLIP_WAITFORSYNC);
    end = nanoseconds(CLOCK_MONOTONIC);
    flip_often(surface, DSFLIP_NONE);
    printf("%lld ms\n", (end - start) / 1000000);
    fflush(stdout);
    print_costs_of_wait();
    draw_corner(surface);
    await_signal();
}

/* A layer of options that the window does not have. */
static void print_failed_options(IDirectFBDisplayLayer *layer, DFBDisplayLayerConfig config)
{
    DFBDisplayLayerConfigFlags failed = DLCONF_NONE;
    DFBResult result;

    config.flags |= DLCONF_OPTIONS;
    config.options = DLOP_DEINTERLACING;
    result = layer->TestConfiguration(layer, &config, &failed);
    printf("options: %s, %s\n", DirectFBErrorString(result), failed == DLCONF_OPTIONS ? "alone" : "not alone");
}

static DFBEnumerationResult print_mode(int width, int height, int depth, void *nothing)
{
    (void)nothing;
    printf("%dx%dx%d ", width, height, depth);
    return DFENUM_OK;
}

static DFBDisplayLayerConfig read_arguments(char **argv)
{
    const DFBDisplayLayerConfig config = {
        .flags = DLCONF_WIDTH | DLCONF_HEIGHT | DLCONF_PIXELFORMAT | DLCONF_BUFFERMODE, .width = 640, .height = 480,
        .pixelformat = (DFBSurfacePixelFormat)strtoul(argv[1], NULL, 0),
        .buffermode = (DFBDisplayLayerBufferMode)strtoul(argv[2], NULL, 0)};

    return config;
}

static DFBResult show_bars(IDirectFBDisplayLayer *layer, const DFBDisplayLayerConfig *config)
{
    IDirectFBSurface *surface;
    DFBResult result;

    layer->SetCooperativeLevel(layer, DLSCL_ADMINISTRATIVE);
    result = layer->SetConfiguration(layer, config);
    printf("%s\n", DirectFBErrorString(result));
    if (result || layer->GetSurface(layer, &surface))
        return DFB_FAILURE;
    print_failed_options(layer, *config);
    show(surface);
    surface->Release(surface);
    return DFB_OK;
}

static void stay(void)
{
    puts("ended");
    fflush(stdout);
    pause();
}

int main(int argc, char **argv)
{
    const sigset_t signals = user_signal();
    DFBDisplayLayerConfig config;
    IDirectFB *dfb;
    IDirectFBDisplayLayer *layer;
    DFBResult result;

    zuvo_display_close(0);
    sigprocmask(SIG_BLOCK, &signals, NULL); /* No other thread is to take it. */
    if (DirectFBInit(&argc, &argv) || argc < 3 || DirectFBCreate(&dfb))
        return 2;
    config = read_arguments(argv);
    dfb->EnumVideoModes(dfb, print_mode, NULL);
    dfb->GetDisplayLayer(dfb, DLID_PRIMARY, &layer);
    result = show_bars(layer, &config);
    layer->Release(layer);
    dfb->Release(dfb);
    if (!result)
        stay();
    return result ? 1 : 0;
}
