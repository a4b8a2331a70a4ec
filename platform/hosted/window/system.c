/*
 * A DirectFB system whose screen is a window of the desktop.
 *
 * It takes the place of DirectFB's own x11 system: of the systems whose name is asked for, in capitals or not, DirectFB
 * takes the one that was registered first, and this one is registered before the program begins.
 */
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#include <core/core_system.h>
#include <misc/conf.h>

#include "layer.h"
#include "window.h"

static const ZuvoWindow *window;

/* The record has no type in DirectFB's successor. With CORE_X11, DirectFB's input driver would look into our data. */
static void system_get_info(CoreSystemInfo *info)
{
    info->caps = CSCAPS_ACCELERATION | CSCAPS_SYSMEM_EXTERNAL;
    snprintf(info->name, sizeof(info->name), "Window");
}

/*
 * The desktop shows a pointer. One of DirectFB's would be a second one, and leave a hole in what is drawn below it; where
 * DirectFB can, it goes on telling its windows where the pointer is.
 */
static void hide_cursor(void)
{
#ifdef WINDOW_CURSOR_UPDATES
    dfb_config->no_cursor_updates = true;
#else
    dfb_config->no_cursor = true;
#endif
}

/* DirectFB's own handling of these is made for a console and crashes here. The display takes the window away. */
static void leave_signals_alone(void)
{
    sigset_t signals;

    sigemptyset(&signals);
    sigaddset(&signals, SIGHUP);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGPIPE);
    sigaddset(&signals, SIGQUIT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_UNBLOCK, &signals, NULL);
}

/* Without a window the layer stays in memory, because DirectFB 1.7 is likely to crash when a system does not start. */
static DFBResult system_initialize(CoreDFB *core, void **ret_data)
{
    window = window_open();
    hide_cursor();
    leave_signals_alone();
    layer_register(window);
    return DFB_OK;
}

/* After a deadly signal the window's thread may be anywhere; the process ends and takes it along. */
static DFBResult system_shutdown(bool emergency)
{
    if (window && !emergency)
        window->close();
    window = NULL;
    return DFB_OK;
}

/* DirectFB's programs have a video mode to choose from. */
static VideoMode modes[] = {
    {.xres = 640, .yres = 480},  {.xres = 720, .yres = 480},   {.xres = 720, .yres = 576},   {.xres = 800, .yres = 600},
    {.xres = 1024, .yres = 768}, {.xres = 1280, .yres = 720}, {.xres = 1280, .yres = 1024}, {.xres = 1920, .yres = 1080},
};

static VideoMode *system_get_modes(void)
{
    size_t i;

    for (i = 0; i < sizeof(modes) / sizeof(modes[0]); ++i) {
        modes[i].bpp = 32;
        modes[i].next = i + 1 < sizeof(modes) / sizeof(modes[0]) ? &modes[i + 1] : NULL;
    }
    return modes;
}

/* ---- what a window has no use for ---- */

typedef __typeof__(((CoreSystemFuncs *)0)->GetAccelerator()) Accelerator;

static DFBResult system_join(CoreDFB *core, void **ret_data) { return DFB_UNSUPPORTED; }
static DFBResult system_leave(bool emergency) { return DFB_UNSUPPORTED; }
static DFBResult system_suspend(void) { return DFB_OK; }
static DFBResult system_resume(void) { return DFB_OK; }
static VideoMode *system_get_current_mode(void) { return NULL; }
static DFBResult system_thread_init(void) { return DFB_OK; }
static bool system_input_filter(CoreInputDevice *device, DFBInputEvent *event) { return false; }
static volatile void *system_map_mmio(unsigned int offset, int length) { return NULL; }
static void system_unmap_mmio(volatile void *address, int length) { }
static Accelerator system_get_accelerator(void) { return (Accelerator)-1; }
static unsigned long system_video_memory_physical(unsigned int offset) { return 0; }
static void *system_video_memory_virtual(unsigned int offset) { return NULL; }
static unsigned int system_videoram_length(void) { return 0; }
static void system_get_busid(int *ret_bus, int *ret_device, int *ret_function) { }
static void system_get_deviceid(unsigned int *ret_vendor, unsigned int *ret_device) { }

#ifdef WINDOW_AUXILIARY_MEMORY
static unsigned int system_auxram_length(void) { return 0; }
static unsigned long system_aux_memory_physical(unsigned int offset) { return 0; }
static void *system_aux_memory_virtual(unsigned int offset) { return NULL; }
static int system_surface_data_size(void) { return 0; }
static void system_surface_data_init(CoreSurface *surface, void *data) { }
static void system_surface_data_destroy(CoreSurface *surface, void *data) { }
#endif

/* ---- the choice of the system ---- */

static bool has_configuration(const char *home)
{
    char path[4096];

    snprintf(path, sizeof(path), "%s/.directfbrc", home ? home : "");
    return !access(path, R_OK) || !access("/etc/directfbrc", R_OK);
}

/*
 * DirectFB would not choose this system by itself without DISPLAY, and its successor not where it may open a console. Who
 * has chosen a system, or has a configuration file, is left alone.
 */
static void ask_for_system(void)
{
    const char *others = getenv("DFBARGS");
    char options[4096];

    if (!others)
        others = "";
    if (strstr(others, "system=") || has_configuration(getenv("HOME")))
        return;
    if (snprintf(options, sizeof(options), "system=x11,%s", others) < (int)sizeof(options))
        setenv("DFBARGS", options, 1);
}

__attribute__((constructor)) static void register_system(void)
{
    if (!window_has_display())
        return;
    direct_modules_register(&dfb_core_systems, DFB_CORE_SYSTEM_ABI_VERSION, "X11", &system_funcs);
    ask_for_system();
}
