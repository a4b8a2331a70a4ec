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

/// Gives DirectFB its own function back.
void end_watch(void);

#ifdef __cplusplus
}
#endif
