/**
 * @file directfb_system.h
 * Which of DirectFB's systems is to be used, known from DirectFBInit on.
 */
#ifndef ZUVO_DIRECTFB_SYSTEM_H
#define ZUVO_DIRECTFB_SYSTEM_H

#include <directfb.h>
#include <misc/conf.h>
#include <stdbool.h>
#include <strings.h>

static inline bool directfb_system_is(const char *name)
{
    return dfb_config->system && !strcasecmp(dfb_config->system, name);
}

/** Whether layers lie in system memory: nothing shows them, or a window does. Other systems have hardware. */
static inline bool directfb_system_is_soft(void)
{
    return directfb_system_is("dummy") || directfb_system_is("x11");
}

#endif
