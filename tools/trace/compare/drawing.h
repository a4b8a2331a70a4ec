#ifndef TOOLS_TRACE_COMPARE_DRAWING_H
#define TOOLS_TRACE_COMPARE_DRAWING_H

#include "../player/player.h"

namespace trace {

/// A line, rectangle, polygon or ellipse with all that it is drawn with.
struct Drawing {
    Number primitive;
    Box box;
    std::vector<DFBPoint> points;   ///< A line has two.
    bool is_closed;
    u32 flags;
    DFBColor stroke, fill;
    IDirectFBSurface* texture;      ///< NULL for none.
    std::optional<DTKHDDVDPenShape> pen;

    bool has_stroke() const { return flags & DTKHDDVD_STROKE; }
    bool has_fill() const { return flags & DTKHDDVD_FILL; }

    /// Cairo premultiplies the colour of a polygon, and the scratch pad is blended as if it were not.
    bool is_premultiplied() const
    {
        return primitive == Number::polygon && has_fill() && !texture && fill.a != 255;
    }

    bool blends() const
    {
        return (has_stroke() && stroke.a != 255) || (has_fill() && (texture || fill.a != 255));
    }
};

/// What a call draws, as a player has come to it.
Drawing drawing_of(const Call& call, Player& player);

/// Draws it with a toolkit that has its colours, pattern and pen.
DFBResult draw(const Drawing& drawing, DTKHDDVD* toolkit);

} // namespace trace

#endif
