#include "directfb_start.h"

#include <stdio.h>

#include <core/core.h>

#include "directfb_system.h"
#include "directfb_variant.h"

static void complete_layer(DFBDisplayLayerConfig *layer)
{
    if (layer->flags & DLCONF_BUFFERMODE)
        return;
    layer->flags |= DLCONF_BUFFERMODE;
    layer->buffermode = DIRECTFB_LAYER_BUFFERS;
}

/** The window goes by the name of DirectFB's x11 system, which DirectFB chooses wherever DISPLAY is set, even to nothing. */
static void complete_system(bool has_window)
{
    if (!dfb_config->system && has_window)
        DirectFBSetOption("system", "x11");
    if (!dfb_config->system || (directfb_system_is("x11") && !has_window)) {
        DirectFBSetOption("system", "dummy");
        DirectFBSetOption("quiet", NULL);
        DirectFBSetOption("no-cursor", NULL);
    }
}

/**
 * DirectFB's handling of signals gives a console back. Where there is none it blocks SIGPIPE, so that a program whose reader
 * has ended would draw for ever, and crashes on Ctrl-C.
 */
static void leave_signals_alone(void)
{
    DirectFBSetOption("no-sighandler", NULL);
}

void directfb_complete_options(int width, int height, bool has_window)
{
    complete_system(has_window);

    if (directfb_system_is_soft()) {
        complete_layer(&dfb_config->layers[DLID_PRIMARY].config);
        leave_signals_alone();
    }

    if (!dfb_config->mode.width) {
        char mode[32];
        snprintf(mode, sizeof(mode), "%dx%d", width, height);
        DirectFBSetOption("mode", mode);
    }
}

/* DirectFB 1.7 never joins the thread that hands out Fusion's messages, and does not hand it out. DirectFB2 does
 * both by itself and does not have the header. */
#if __has_include(<fusion/fusion_internal.h>)

#include <direct/thread.h>
#include <fusion/fusion_internal.h>

static DirectThread *dispatcher;

void directfb_note_start(void)
{
    dispatcher = core_dfb ? core_dfb->world->event_dispatcher_thread : NULL;
}

void directfb_await_end(void)
{
    if (!dispatcher || core_dfb)
        return;
    direct_thread_join(dispatcher);
    direct_thread_destroy(dispatcher);
    dispatcher = NULL;
}

#else

void directfb_note_start(void)
{
}

void directfb_await_end(void)
{
}

#endif
