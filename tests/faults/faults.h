#pragma once

#include <directfb.h>
#include <string>

/// A shim between the library and real DirectFB, cairo and engine: it counts calls and references, and lets a call
/// fail.
namespace faults {

/// Puts the shim into DirectFB's main interface; every surface and palette made through it gets one too.
void watch(IDirectFB* dfb);

/// The same for a surface that was made before.
void watch(IDirectFBSurface* surface);

/// What a call answers that is told to fail.
constexpr DFBResult refusal = DFB_BUSY;
constexpr int engine_refusal = 0x77;

/// Lets the n-th call of the library from now on fail; 1 is the next one, 0 lets all succeed.
void fail_call(unsigned n);

/// The call that failed, such as "Blit"; empty as long as none has.
std::string failed_call();

/// Counts one call and answers whether it fails. Of the calls that cairo makes only locks can fail: at the others'
/// results it never looks.
bool fails(const char* name, const void* caller);

/// Whether a call of this name may be made by cairo's back end, or for an image of cairo's where there is none. A failure of
/// it becomes one of cairo's, and is not looked at before something is drawn.
bool may_be_for_cairo(const std::string& call);

/// How many references on surfaces, palettes and DirectFB were taken and not given back since the shim is there.
int held_references();

} // namespace faults
