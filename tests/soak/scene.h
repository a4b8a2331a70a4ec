#pragma once

#include <cstdint>
#include <directfb.h>

namespace soak {

/// Draws a random scene by a new toolkit onto `target` with `texture` as its pattern, the same for the same seed, and
/// answers a number made of all its pixels.
std::uint64_t draw_scene(IDirectFB* dfb, IDirectFBSurface* target, IDirectFBSurface* texture, unsigned seed);

} // namespace soak
