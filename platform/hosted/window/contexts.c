#include "contexts.h"

#include <pthread.h>

#include <core/core.h>
#include <fusion/call.h>
#include <fusion/object.h>

enum { most_contexts = 16 };

static struct {
    pthread_mutex_t lock;
    FusionCall call;            /* DirectFB's dispatcher takes it up after the events before it. */
    int waiting;                /* How many calls are on their way. */
    FusionObject *contexts[most_contexts];
    int count;
} held = {.lock = PTHREAD_MUTEX_INITIALIZER};

static void release_all(void)
{
    while (held.count > 0)
        fusion_object_unref(held.contexts[--held.count]);
}

static FusionCallHandlerResult on_arrival(int caller, int argument, void *pointer, void *context, unsigned int serial,
                                          int *ret_value)
{
    pthread_mutex_lock(&held.lock);
    if (held.waiting > 0 && --held.waiting == 0)
        release_all();
    pthread_mutex_unlock(&held.lock);
    return FCHR_RETURN;
}

void contexts_open(void)
{
    held.waiting = 0;
    fusion_call_init(&held.call, on_arrival, NULL, dfb_core_world(core_dfb));
}

void contexts_close(void)
{
    pthread_mutex_lock(&held.lock);
    held.waiting = 0;
    release_all();
    pthread_mutex_unlock(&held.lock);
    fusion_call_destroy(&held.call);
}

static bool is_held(const FusionObject *context)
{
    int i;

    for (i = 0; i < held.count; ++i)
        if (held.contexts[i] == context)
            return true;
    return false;
}

static bool hold(FusionObject *context)
{
    int references = 0;

    if (is_held(context))
        return true;
    if (held.count == most_contexts || fusion_ref_stat(&context->ref, &references) || references == 0)
        return false;
    if (fusion_object_ref(context))
        return false;
    held.contexts[held.count++] = context;
    return true;
}

static bool hold_next(FusionObjectPool *pool, FusionObject *context, void *are_held)
{
    if (!hold(context))
        *(bool *)are_held = false;
    return true;
}

bool contexts_hold(void)
{
    bool are_held = true;

    pthread_mutex_lock(&held.lock);
    if (fusion_object_pool_enum(core_dfb->shared->layer_context_pool, hold_next, &are_held))
        are_held = false;
    pthread_mutex_unlock(&held.lock);
    return are_held;
}

void contexts_release_later(void)
{
    bool is_sent;

    pthread_mutex_lock(&held.lock);
    ++held.waiting;
    pthread_mutex_unlock(&held.lock);
    is_sent = !fusion_call_execute(&held.call, FCEF_ONEWAY | FCEF_NODIRECT, 0, NULL, NULL);
    if (!is_sent)
        on_arrival(0, 0, NULL, NULL, 0, NULL);
}
