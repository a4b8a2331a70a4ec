#pragma once

#ifdef __cplusplus
extern "C" {
#endif

/// Locks a surface of the running DirectFB, as its own threads do.
void lock_core_surface(unsigned int id);
void unlock_core_surface(unsigned int id);

/// The function by which the running DirectFB destroys its surfaces.
typedef void (*DestroySurface)(void);
DestroySurface get_destroy_surface(void);

#ifdef __cplusplus
}
#endif
