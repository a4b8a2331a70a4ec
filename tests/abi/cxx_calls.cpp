/* Each call in C and by the C++ interface, for cxx_calls.sh to compare their instructions. */
#include <dtkhddvd.hpp>

using namespace dtkhddvd;

struct Holder {
    DTKHDDVD* toolkit;
};

#define IN_C(name, ...) DFBResult c_##name(const Holder& holder, __VA_ARGS__)
#define IN_CXX(name, ...) DFBResult cxx_##name(Toolkit& toolkit, __VA_ARGS__)

extern "C" {

IN_C(color, const DFBColor& c) { return holder.toolkit->SetFillColor(holder.toolkit, c.r, c.g, c.b, c.a); }
IN_CXX(color, const DFBColor& c) { return toolkit.set_fill_color(c).error(); }

IN_C(pattern, IDirectFBSurface* texture) { return holder.toolkit->SetFillPattern(holder.toolkit, texture); }
IN_CXX(pattern, IDirectFBSurface* texture) { return toolkit.set_fill_pattern(texture).error(); }

IN_C(line, int x, int y) { return holder.toolkit->Line(holder.toolkit, x, y, y, x); }
IN_CXX(line, int x, int y) { return toolkit.line({x, y}, {y, x}).error(); }

IN_C(rectangle, const DFBRectangle& box)
{
    return holder.toolkit->Rectangle(holder.toolkit, &box, DTKHDDVD_FILL);
}
IN_CXX(rectangle, const DFBRectangle& box) { return toolkit.rectangle(box, Draw::fill).error(); }

IN_C(polygon, const DFBPoint (&points)[3])
{
    return holder.toolkit->Polygon(holder.toolkit, points, 3, 1, DTKHDDVD_FILL | DTKHDDVD_STROKE);
}
IN_CXX(polygon, const DFBPoint (&points)[3]) { return toolkit.polygon(points, Outline::closed, Draw::both).error(); }

IN_C(ellipse, int x, int y)
{
    const DFBRectangle box = {x, y, 30, 20};
    return holder.toolkit->Ellipse(holder.toolkit, &box, DTKHDDVD_STROKE);
}
IN_CXX(ellipse, int x, int y) { return toolkit.ellipse({x, y, 30, 20}, Draw::stroke).error(); }

} // extern "C"
