#pragma once

#include <dtkhddvd.h>
#include <string>
#include <vector>

namespace real {

/// What outlines a shape.
enum class Outline { none, thin, pen_1x1, pen_3x3, pen_4x4, concave_pen };

/// The corners of an outline's pen, NULL when it has none.
const DTKHDDVDPenShape* pen_of(Outline outline);

/// The size of the surface that every shape is drawn on.
constexpr int sheet_width = 20;
constexpr int sheet_height = 15;

/// One primitive, and the pixels it covers. Rows are as in expect_picture; '#' is covered.
struct Shape {
    const char* name;
    DFBResult (*draw)(DTKHDDVD* toolkit, u32 flags);
    bool can_be_filled;
    std::string filled;             ///< With a colour.
    std::string textured;           ///< With the 2 x 2 texture of the texels a b / c d.
    std::string thin;               ///< The outline one pixel wide.
    std::string stamped_3x3;        ///< The outline with the pen of 3 x 3 pixels.
    std::string stamped_4x4;
    std::string stamped_concave;    ///< The outline with the concave pen.

    const std::string& outlined(Outline outline) const;
};

extern const Shape rectangle, line, polygon, ellipse;

/// A sheet that nothing was drawn on.
std::string empty_sheet();

} // namespace real
