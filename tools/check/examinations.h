#pragma once

#include "family.h"

namespace conformance {

/// Each examines what its family promises, see families().

void examine_handles(const Examination& examination);
void examine_results(const Examination& examination);
void examine_forgetting(const Examination& examination);
void examine_stale_handles(const Examination& examination);
void examine_formats(const Examination& examination);

void examine_lock(const Examination& examination);
void examine_sync(const Examination& examination);
void examine_idle(const Examination& examination);
void examine_flip(const Examination& examination);
void examine_order(const Examination& examination);
void examine_threads(const Examination& examination);

void examine_state(const Examination& examination);
void examine_flags(const Examination& examination);
void examine_extremes(const Examination& examination);

void examine_shapes(const Examination& examination);
void examine_line(const Examination& examination);
void examine_rectangle(const Examination& examination);
void examine_rectangle_border(const Examination& examination);
void examine_polygon(const Examination& examination);
void examine_polygon_outline(const Examination& examination);
void examine_ellipse(const Examination& examination);
void examine_ellipse_border(const Examination& examination);
void examine_pens(const Examination& examination);
void examine_parts(const Examination& examination);

void examine_colours(const Examination& examination);
void examine_blending(const Examination& examination);
void examine_patterns(const Examination& examination);
void examine_blended_patterns(const Examination& examination);
void examine_rgb32(const Examination& examination);

} // namespace conformance
