#include "accel_dice.h"

namespace accel {

DFBRectangle Dice::rectangle(int most_right, int most_down)
{
    const int x = number(-10, most_right), y = number(-10, most_down);
    const int w = number(1, one_in(4) ? most_right + 20 : 20), h = number(1, one_in(4) ? most_down + 20 : 20);
    return {x, y, w, h};
}

DFBRectangle Dice::rectangle_inside(int most_right, int most_down)
{
    const int x = number(0, most_right - 1), y = number(0, most_down - 1);
    const int w = number(1, most_right - x), h = number(1, most_down - y);
    return {x, y, w, h};
}

DFBColor Dice::colour()
{
    const auto byte = [this] { return static_cast<u8>(one_in(3) ? number(0, 1) * 255 : number(0, 255)); };
    const u8 a = byte(), r = byte(), g = byte(), b = byte();
    return {a, r, g, b};
}

} // namespace accel
