#ifndef GEOMETRY_BOX_H
#define GEOMETRY_BOX_H

#include <directfb.h>

#include <algorithm>

namespace geometry {

/// The box one pixel further in on each side, where plain ellipses are filled and outlines of one pixel drawn.
inline DFBRectangle inner_box(const DFBRectangle& box)
{
    return {box.x + 1, box.y + 1, box.w - 2, box.h - 2};
}

/// What two boxes have in common; without a positive width or height where that is nothing.
inline DFBRectangle intersection(const DFBRectangle& one, const DFBRectangle& other)
{
    const int x = std::max(one.x, other.x), y = std::max(one.y, other.y);
    return {x, y, std::min(one.x + one.w, other.x + other.w) - x, std::min(one.y + one.h, other.y + other.h) - y};
}

/// Whether the pixels from the middle of a length as far as its half to both sides, and `excess` more, lie from 0 up to
/// `size`.
inline bool fits(int origin, int length, int excess, int size)
{
    return length >= 0 && origin >= excess && origin + 2LL * (length / 2) + excess < size;
}

/// Whether all pixels of an ellipse's outline lie inside a surface of this size.
inline bool outline_fits(const DFBRectangle& box, int width, int height)
{
    // The walk may end one column beyond the half axis, in a box of 5 x 2 for one.
    return fits(box.x, box.w, 1, width) && fits(box.y, box.h, 0, height);
}

} // namespace geometry

#endif
