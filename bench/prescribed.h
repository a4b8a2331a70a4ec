#ifndef BENCH_PRESCRIBED_H
#define BENCH_PRESCRIBED_H

#include <cairo.h>

#include "recorder.h"
#include "toolkit_painter.h"

namespace bench {

struct CairoDestroyer {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};

/// Makes the DirectFB and cairo calls that the software back end has to make for a shape, and its stores, in order
/// and without anything of the toolkit: walks and points are computed beforehand.
class Prescribed : public SurfacePainter {
public:
    Prescribed(IDirectFB* dfb, IDirectFBSurface* shared);

    Draw prepare(const Task& task) override;

private:
    using Context = std::unique_ptr<cairo_t, CairoDestroyer>;

    /// What is drawn onto: the target, or the scratch pad that is then blended onto it.
    struct Canvas {
        IDirectFBSurface* surface;
        cairo_t* context;
    };

    Canvas canvas(Paint paint) const;
    Draw blended(const Draw& draw, Paint paint, const DFBRectangle& dirty) const;

    Draw filled_ellipse(const Task& task) const;
    Draw thin_ellipse(const Task& task) const;
    Draw stamped(const Task& task) const;
    Draw filled_rectangle(const Task& task) const;
    Draw filled_polygon(const Task& task) const;
    Draw textured_rectangle(const Task& task) const;
    Draw textured_ellipse(const Task& task) const;

    void set_pattern_origin(cairo_t* context, int x, int y) const;
    void fill_path(const Canvas& canvas, cairo_pattern_t* pattern) const;

    Owned<IDirectFBSurface> target_;
    Owned<IDirectFBSurface> scratch_;
    Owned<IDirectFBSurface> texture_;
    Owned<IDirectFBSurface> pen_;
    Context target_context_;
    Context scratch_context_;
    std::unique_ptr<cairo_pattern_t, CairoDestroyer> pattern_;
};

} // namespace bench

#endif
