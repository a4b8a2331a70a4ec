# The target zuvo_directfb_internal: DirectFB's inside, and as definitions which form it has, that of 1.7 or that of its
# successor DirectFB2. Both have one driver ABI number, and code compiled for the other one crashes, so no version is
# trusted: each form is compiled. What the forms mean to the sources is in directfb_variant.h.
include(CheckCSourceCompiles)

if(TARGET zuvo_directfb_internal)
  return()
endif()
if(NOT DIRECTFB_INTERNAL_FOUND)
  message(FATAL_ERROR "The platform needs DirectFB's inside: pkg-config does not know directfb-internal")
endif()
add_library(zuvo_directfb_internal INTERFACE)
target_include_directories(zuvo_directfb_internal INTERFACE ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(zuvo_directfb_internal INTERFACE PkgConfig::DIRECTFB_INTERNAL)

# check_directfb(RESULT CODE): whether the code compiles.
function(check_directfb result code)
  set(CMAKE_REQUIRED_INCLUDES ${DIRECTFB_INTERNAL_INCLUDE_DIRS})
  set(CMAKE_REQUIRED_DEFINITIONS -D_GNU_SOURCE)
  set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
  check_c_source_compiles("
#include <directfb.h>
#include <core/core.h>
#include <core/gfxcard.h>
#include <core/surface.h>
#include <core/surface_allocation.h>
#include <core/surface_buffer.h>
#include <core/surface_pool.h>
#include <fusion/build.h>
#include <fusion/object.h>
#include <misc/conf.h>
${code}
" ${result})
endfunction()

# find_form(DEFINITION CODE OTHER-CODE): defines DEFINITION as 1 where CODE compiles, as 0 where OTHER-CODE does.
function(find_form definition code other_code)
  check_directfb(${definition} "${code}")
  if(NOT ${definition})
    check_directfb(${definition}_IS_NOT "${other_code}")
    if(NOT ${definition}_IS_NOT)
      message(FATAL_ERROR "DirectFB's inside is neither that of 1.7 nor that of DirectFB2, the forms that the "
        "platforms know: ${CMAKE_BINARY_DIR}/CMakeFiles/CMakeError.log shows why ${definition} is undecided")
    endif()
  endif()
  target_compile_definitions(zuvo_directfb_internal INTERFACE ${definition}=$<BOOL:${${definition}}>)
endfunction()

find_form(DIRECTFB_DRIVER_HAS_DEVICE
  "int ask(const GraphicsDriverFuncs *driver, CoreGraphicsDevice *device) { return driver->Probe(device); }"
  "int ask(const GraphicsDriverFuncs *driver) { return driver->Probe(); }")
find_form(DIRECTFB_CORE_HAS_BUFFER_ROLES
  "CoreSurfaceBufferRole role = CSBR_BACK;"
  "DFBSurfaceBufferRole role = DSBR_BACK;")
# Where a layer leaves its Flip to the surface, the surface reports with what flags that was.
find_form(DIRECTFB_SURFACE_FLIPS_LAYER
  "DFBResult report(CoreSurface *surface) { return dfb_surface_dispatch_update(surface, 0, 0, 0, DSFLIP_NONE); }"
  "DFBResult report(CoreSurface *surface) { return dfb_surface_dispatch_update(surface, 0, 0, 0); }")
find_form(DIRECTFB_CORE_HAS_TASK_MANAGER
  "bool ask(void) { return dfb_config->task_manager; }"
  "bool ask(void) { return dfb_config->thrifty_surface_buffers; }")

# Whether the short ways to surfaces and their memory are there: all is in this process, and has the fields that are looked
# at. Where it does not compile, DirectFB's own way is taken.
check_directfb(DIRECTFB_CORE_IS_OWN "
#if FUSION_BUILD_MULTI
#error
#endif
FusionObjectDestructor *destructor(CoreDFB *core) { return &core->shared->surface_pool->destructor; }
int references(const CoreSurface *surface) { return surface->object.ref.single.refs; }
bool is_current(const CoreSurfaceBuffer *buffer, CoreSurfaceAllocation *allocation, CoreSurfaceBufferLock *lock)
{
  allocation->accessed[CSAID_CPU] |= allocation->access[CSAID_CPU];
  allocation->accessed[CSAID_GPU] = CSAF_NONE;
  dfb_gfxcard_wait_serial(&allocation->gfx_serial);
  return buffer->written == allocation && !buffer->read && buffer->allocs.count == 1
    && !(allocation->flags & CSALF_PREALLOCATED) && direct_serial_check(&allocation->serial, &buffer->serial)
    && dfb_surface_pool_prelock(allocation->pool, allocation, CSAID_CPU, CSAF_READ) == DFB_OK
    && dfb_surface_pool_lock(allocation->pool, allocation, lock) == DFB_OK
    && allocation->pool->desc.name[0] && allocation->object.id
    && !(buffer->surface->state & CSSF_DESTROYED) && !dfb_config->thrifty_surface_buffers;
}")
target_compile_definitions(zuvo_directfb_internal INTERFACE DIRECTFB_CORE_IS_OWN=$<BOOL:${DIRECTFB_CORE_IS_OWN}>)
