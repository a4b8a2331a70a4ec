#pragma once

#include "real/directfb.h"
#include "real/random.h"

#include <string>

namespace real {

/// A primitive somewhere in and around a surface of that size, with a pen of any small shape or none. Its box is at
/// least two pixels wide and high.
class RandomPrimitive {
public:
    RandomPrimitive(Random& random, int surface_width, int surface_height);

    /// Sets a pen that the toolkit alone holds, or none.
    void choose_pen(const Toolkit& toolkit) const;

    DFBResult draw(const Toolkit& toolkit, u32 flags) const;

    /// All that is needed to draw it again.
    std::string description() const;

private:
    enum Kind { rectangle, line, polygon, ellipse };

    Kind kind_;
    bool closed_;
    int pen_width_, pen_height_;
    DFBRectangle box_;
    std::vector<DFBPoint> points_;
};

} // namespace real
