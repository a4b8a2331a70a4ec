#include "driver.h"

#include <stdio.h>
#include <string.h>

#include <directfb.h>
#include <core/core.h>
#include <core/gfxcard.h>
#include <core/state.h>
#include <core/surface.h>
#include <core/surface_pool.h>
#include <direct/modules.h>

#include "directfb_variant.h"

/** The copy that DirectFB has prepared, and holds its lock of the graphics card for. */
typedef struct Copy {
    char *target, *source;
    int target_pitch, source_pitch;
} Copy;

/** The engine's memory is the CPU's. */
static DFBEnumerationResult open_pool(CoreSurfacePool *pool, void *context)
{
    (void) context;
    pool->desc.access[CSAID_GPU] |= pool->desc.access[CSAID_CPU];
    return DFENUM_OK;
}

static DFBResult engine_sync(void *driver_data, void *device_data)
{
    (void) driver_data;
    (void) device_data;
    board_wait(BOARD_WAIT_IDLE);
    return DFB_OK;
}

/** DirectFB calls this before the CPU uses a surface that was locked for the engine. */
static DFBResult wait_serial(void *driver_data, void *device_data, const CoreGraphicsSerial *serial)
{
    (void) driver_data;
    (void) device_data;
    (void) serial;
    board_wait(BOARD_WAIT_LOCK);
    return DFB_OK;
}

static bool is_flip(const CardState *state)
{
    return state->source == state->destination && state->blittingflags == DSBLIT_NOFX
        && state->render_options == DSRO_NONE && DFB_BYTES_PER_PIXEL(state->destination->config.format) == 4;
}

static void check_state(void *driver_data, void *device_data, CardState *state, DFBAccelerationMask accel)
{
    (void) driver_data;
    (void) device_data;
    if (accel == DFXL_BLIT && is_flip(state))
        state->accel |= accel;
}

/** Addresses are those of this call, so nothing is marked as set. */
static void set_state(void *driver_data, void *device_data, GraphicsDeviceFuncs *funcs, CardState *state,
                      DFBAccelerationMask accel)
{
    Copy *copy = driver_data;

    (void) device_data;
    (void) funcs;
    (void) accel;
    *copy = (Copy){state->dst.addr, state->src.addr, (int) state->dst.pitch, (int) state->src.pitch};
}

/** The blitter is a unit of its own, which would not wait for the drawing engine. */
static bool blit(void *driver_data, void *device_data, DFBRectangle *rect, int x, int y)
{
    const Copy *copy = driver_data;
    int row;

    (void) device_data;
    board_wait(BOARD_WAIT_FLIP);
    for (row = 0; row < rect->h; ++row)
        memmove(copy->target + (y + row) * copy->target_pitch + x * 4,
                copy->source + (rect->y + row) * copy->source_pitch + rect->x * 4, (size_t) rect->w * 4);
    return true;
}

static int driver_probe(DIRECTFB_ONLY_DEVICE)
{
    return 1;
}

static void driver_get_info(DIRECTFB_DEVICE GraphicsDriverInfo *info)
{
    snprintf(info->name, sizeof(info->name), "Virtual board");
    snprintf(info->vendor, sizeof(info->vendor), "zuvo");
    info->version.major = 1;
    info->driver_data_size = sizeof(Copy);
}

static DFBResult driver_init(DIRECTFB_DEVICE GraphicsDeviceFuncs *funcs, void *driver_data, void *device_data,
                             CoreDFB *core)
{
    (void) driver_data;
    (void) device_data;
    (void) core;
    funcs->EngineSync = engine_sync;
    funcs->WaitSerial = wait_serial;
    funcs->CheckState = check_state;
    funcs->SetState = set_state;
    funcs->Blit = blit;
    return dfb_surface_pools_enumerate(open_pool, NULL);
}

static DFBResult driver_init_device(DIRECTFB_DEVICE GraphicsDeviceInfo *info, void *driver_data, void *device_data)
{
    (void) driver_data;
    (void) device_data;
    snprintf(info->name, sizeof(info->name), "Late engine");
    snprintf(info->vendor, sizeof(info->vendor), "zuvo");
    info->caps.flags = CCF_READSYSMEM | CCF_WRITESYSMEM;
    return DFB_OK;
}

static void driver_close_device(DIRECTFB_DEVICE void *driver_data, void *device_data)
{
    (void) driver_data;
    (void) device_data;
}

static void driver_close(DIRECTFB_DEVICE void *driver_data)
{
    (void) driver_data;
}

static const GraphicsDriverFuncs driver = {
    .Probe = driver_probe,
    .GetDriverInfo = driver_get_info,
    .InitDriver = driver_init,
    .InitDevice = driver_init_device,
    .CloseDevice = driver_close_device,
    .CloseDriver = driver_close,
};

void driver_register(void)
{
    direct_modules_register(&dfb_graphics_drivers, DFB_GRAPHICS_DRIVER_ABI_VERSION, "zuvo_virtual", &driver);
}
