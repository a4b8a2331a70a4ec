#ifndef TEST_DTKHD_PHASES_H
#define TEST_DTKHD_PHASES_H

#include "scene.h"

namespace dtk {

/// Draws and shows frame @p number, counted from 1, and stamps the start and the stop of each phase.
///
/// A failing call ends its phase only, so that every frame is shown.
///
/// @return The first failing result.
DFBResult draw_frame(const Scene& scene, int number);

} // namespace dtk

#endif
