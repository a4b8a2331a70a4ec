#include "accel.h"

#include <directfb.h>
#include <core/core.h>
#include <core/gfxcard.h>
#include <core/surface_pool.h>
#include <direct/modules.h>
#include <misc/conf.h>
#include <stdio.h>
#include <string.h>

#include "start/directfb_system.h"
#include "directfb_variant.h"
#include "job.h"
#include "state.h"

static const char driver_name[] = "zuvo_accel";

static bool is_started;

/// A system with hardware has a driver for it. With the option no-hardware DirectFB would start one and not use it.
static bool is_wanted(void) { return !dfb_config->software_only && directfb_system_is_soft(); }

static void describe_driver(GraphicsDriverInfo *info)
{
    snprintf(info->name, sizeof(info->name), "Hosted CPU");
    snprintf(info->vendor, sizeof(info->vendor), "zuvo");
    snprintf(info->license, sizeof(info->license), "see LICENSE");
    info->version.major = 1;
    info->driver_data_size = sizeof(AccelJob);
}

/// DirectFB locks surfaces for the accelerator before it calls a driver. Ours is the CPU, so it may do what the CPU
/// may.
static DFBEnumerationResult open_pool(CoreSurfacePool *pool, void *context)
{
    (void)context;
    pool->desc.access[CSAID_GPU] |= pool->desc.access[CSAID_CPU];
    return DFENUM_OK;
}

/// Nothing is ever pending.
static DFBResult engine_sync(void *driver_data, void *device_data)
{
    (void)driver_data;
    (void)device_data;
    return DFB_OK;
}

static DFBResult start(GraphicsDeviceFuncs *funcs, AccelJob *job)
{
    funcs->EngineSync = engine_sync;
    funcs->CheckState = accel_check_state;
    funcs->SetState = accel_set_state;
    funcs->FillRectangle = accel_fill_rectangle;
    funcs->Blit = accel_blit;
    funcs->BatchBlit = accel_batch_blit;
    job->rows = choose_rows();
    is_started = true;
    return dfb_surface_pools_enumerate(open_pool, NULL);
}

/// The lists of what is accelerated stay empty. They would only be advice, and the layers would take it: a Flip then
/// swaps buffers instead of copying, which gives other pictures.
static void describe_device(GraphicsDeviceInfo *info)
{
    snprintf(info->name, sizeof(info->name), "CPU");
    snprintf(info->vendor, sizeof(info->vendor), "zuvo");
    info->caps.flags = CCF_READSYSMEM | CCF_WRITESYSMEM;
    info->caps.clip = DFXL_BLIT | DFXL_FILLRECTANGLE;
}

static int driver_probe(DIRECTFB_ONLY_DEVICE) { return is_wanted(); }

static void driver_get_info(DIRECTFB_DEVICE GraphicsDriverInfo *info) { describe_driver(info); }

static DFBResult driver_init(DIRECTFB_DEVICE GraphicsDeviceFuncs *funcs, void *driver_data, void *device_data,
                             CoreDFB *core)
{
    (void)device_data;
    (void)core;
    return start(funcs, driver_data);
}

static DFBResult driver_init_device(DIRECTFB_DEVICE GraphicsDeviceInfo *info, void *driver_data, void *device_data)
{
    (void)driver_data;
    (void)device_data;
    describe_device(info);
    return DFB_OK;
}

static void driver_close_device(DIRECTFB_DEVICE void *driver_data, void *device_data)
{
    (void)driver_data;
    (void)device_data;
}

static void driver_close(DIRECTFB_DEVICE void *driver_data)
{
    (void)driver_data;
    is_started = false;
}

static const GraphicsDriverFuncs driver = {
    .Probe = driver_probe,
    .GetDriverInfo = driver_get_info,
    .InitDriver = driver_init,
    .InitDevice = driver_init_device,
    .CloseDevice = driver_close_device,
    .CloseDriver = driver_close,
};

void accel_register(void)
{
    direct_modules_register(&dfb_graphics_drivers, DFB_GRAPHICS_DRIVER_ABI_VERSION, driver_name, &driver);
}

int accel_is_on(void) { return is_started; }
