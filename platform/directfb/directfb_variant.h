/**
 * @file directfb_variant.h
 * In what DirectFB 1.7 and its successor DirectFB2 differ. variant.cmake finds out which one this is.
 */
#ifndef ZUVO_DIRECTFB_VARIANT_H
#define ZUVO_DIRECTFB_VARIANT_H

/* DirectFB 1.7 passes its device to every function of a graphics driver's record: the only parameter, or the first. */
#if DIRECTFB_DRIVER_HAS_DEVICE
/* A declaration has no parentheses. NOLINTNEXTLINE(bugprone-macro-parentheses) */
#define DIRECTFB_ONLY_DEVICE CoreGraphicsDevice *device __attribute__((unused))
#define DIRECTFB_DEVICE DIRECTFB_ONLY_DEVICE,
#else
#define DIRECTFB_ONLY_DEVICE void
#define DIRECTFB_DEVICE
#endif

/* The buffer of a surface that is drawn to. DirectFB2 has made the name public. */
#if DIRECTFB_CORE_HAS_BUFFER_ROLES
#define DIRECTFB_BACK_BUFFER CSBR_BACK
#else
#define DIRECTFB_BACK_BUFFER DSBR_BACK
#endif

/* Option of 1.7 by which whatever uses a surface becomes a task. */
#if DIRECTFB_CORE_HAS_TASK_MANAGER
#define DIRECTFB_HAS_TASK_MANAGER dfb_config->task_manager
#else
#define DIRECTFB_HAS_TASK_MANAGER false
#endif

/*
 * How a layer in system memory is buffered, where nothing else was asked for. DirectFB2 swaps the buffers of such a
 * layer where a copying Flip was meant, and draws to the wrong one afterwards. A single buffer is always the right one.
 */
#if DIRECTFB_SURFACE_FLIPS_LAYER
#define DIRECTFB_LAYER_BUFFERS DLBM_FRONTONLY
#else
#define DIRECTFB_LAYER_BUFFERS DLBM_BACKSYSTEM
#endif

#endif
