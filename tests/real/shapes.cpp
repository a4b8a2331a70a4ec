#include "real/shapes.h"

namespace real {
namespace {

const DTKHDDVDPenShape pen_1x1 = {0, 0, 1, 0, 1, 1, 0, 1};
const DTKHDDVDPenShape pen_3x3 = {-1, -1, 2, -1, 2, 2, -1, 2};
const DTKHDDVDPenShape pen_4x4 = {-2, -2, 2, -2, 2, 2, -2, 2};

/// An arrow head of 7 x 7 pixels that points to the upper left; its third corner lies inside.
const DTKHDDVDPenShape concave_pen = {-3, -3, 4, -3, -1, -1, -3, 4};

} // namespace

const DTKHDDVDPenShape* pen_of(Outline outline)
{
    switch (outline) {
    case Outline::pen_1x1:
        return &pen_1x1;
    case Outline::pen_3x3:
        return &pen_3x3;
    case Outline::pen_4x4:
        return &pen_4x4;
    case Outline::concave_pen:
        return &concave_pen;
    default:
        return nullptr;
    }
}

const std::string& Shape::outlined(Outline outline) const
{
    static const std::string nothing = empty_sheet();
    switch (outline) {
    case Outline::none:
        return nothing;
    case Outline::pen_3x3:
        return stamped_3x3;
    case Outline::pen_4x4:
        return stamped_4x4;
    case Outline::concave_pen:
        return stamped_concave;
    default:
        return thin;
    }
}

std::string empty_sheet()
{
    std::string rows = "\n";
    for (int y = 0; y < sheet_height; ++y)
        rows += std::string(sheet_width, '.') + "\n";
    return rows;
}

} // namespace real
