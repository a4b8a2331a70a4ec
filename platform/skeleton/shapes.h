#ifndef BOARD_SHAPES_H
#define BOARD_SHAPES_H

#include <directfb.h>

#include "coverage.h"

namespace board {

/// Each covers what lies inside a shape. Any numbers may be given; what lies outside costs no time.
void cover_rectangle(Coverage& coverage, const DFBRectangle& box);
void cover_ellipse(Coverage& coverage, const DFBRectangle& box);

/// By the winding rule, closed between the last and the first point; a pixel counts where its centre is inside.
void cover_polygon(Coverage& coverage, const std::vector<DFBPoint>& points);

} // namespace board

#endif
