#pragma once

#include <stdbool.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Locks a surface of the running DirectFB, as its own threads do.
void lock_core_surface(unsigned int id);
void unlock_core_surface(unsigned int id);

/// The function by which the running DirectFB destroys its surfaces.
typedef void (*DestroySurface)(void);
DestroySurface get_destroy_surface(void);

/// Whether the destruction waits for the engine's use; where other processes may destroy surfaces, the pool is locked.
bool use_is_waited_for(void);

/// The engine's use of a surface, in an instance of its own, and its end.
bool begin_use(unsigned int id);
void end_use(void);

/// What the thread that destroys surfaces has come to since watch_destruction().
typedef enum Destruction {
    NOT_BEGUN,
    WAITS_FOR_USE,
    DESTROYED
} Destruction;

void watch_destruction(void);
Destruction get_destruction(void);

/// Whether the engine's short way to a surface's memory can be taken, and the memory is noted as written then.
bool can_be_held(unsigned int id);

/// Has DirectFB free the memory of surfaces that nobody uses, which the short way does not do.
void set_thrifty(bool is_thrifty);

/// Marks a surface as one that is being destroyed, or takes the mark away.
void mark_destroyed(unsigned int id, bool is_destroyed);

/// Gives DirectFB its own function back: after watch_destruction(), and without it.
void end_watch(void);
void end_lookups(void);

#ifdef __cplusplus
}
#endif
