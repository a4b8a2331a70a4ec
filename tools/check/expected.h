#pragma once

#include "stage.h"

namespace conformance {

/// What the engine has to draw for a scene, drawn by the software back end, or nothing where that cannot draw it.
///
/// Mostly it is the scene itself. Where translucent colours come in, some things are different by nature:
/// - Fill and outline of one call reach the engine as two: a translucent outline blends onto the fill.
/// - A polygon's outline reaches it as lines, one for each edge.
/// - A polygon's plain fill has its true colour, which cairo would premultiply.
/// - Onto RGB32, DirectFB's blending changes even those pixels of the blended box that nothing was drawn on.
std::optional<Picture> expected_picture(Stage& stage, const Scene& scene, const Picture& background);

} // namespace conformance
