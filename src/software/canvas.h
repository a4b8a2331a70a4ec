#ifndef DTK_SOFTWARE_CANVAS_H
#define DTK_SOFTWARE_CANVAS_H

#include "toolkit/cairo_surface.h"
#include "toolkit/drawing.h"
#include "toolkit/ref.h"

namespace dtk {

/// Where a primitive draws: onto the target, or into the scratch pad, which is blended onto the target at the end.
///
/// The first four fields are one or the other, chosen together. `dirty` follows what is drawn; `pixels` and `texture` are
/// empty but while cairo draws. The context and its surface are references, because one in error is replaced for good.
struct Canvas {
    IDirectFBSurface* surface;          ///< NULL in a toolkit that is not attached.
    cairo_t*& context;                  ///< The toolkit's own; NULL likewise.
    cairo_surface_t*& context_surface;  ///< What the toolkit remembers of the context's surface.
    bool is_scratch_pad;
    DFBRectangle dirty;                 ///< Covers what was drawn into the scratch pad.
    LockedPixels pixels, texture;       ///< What cairo has between `begin_path` and `fill_path`.
};

/// Chooses between the scratch pad and the target.
Canvas choose_canvas(DTKHDDVD_data& toolkit, u32 flags);

/// Ends a primitive: what went into the scratch pad is blended onto the target.
DFBResult finish(const DTKHDDVD_data& toolkit, const Canvas& canvas);

/// Whether outlines are stamped. Without a pen, and with one of 1 x 1, they are one pixel wide.
bool has_wide_pen(const DTKHDDVD_data& toolkit);

/// Gets the current pen's picture; a pen without one cannot draw an outline.
DFBResult get_pen_surface(const DTKHDDVD_data& toolkit, Ref<IDirectFBSurface>& surface);

/// The rectangle between two corners, both of them included.
DFBRectangle covering(long long left, long long top, long long right, long long bottom);

/// The area that a pen of this size touches around `rect`. It does not begin left of or above the surface.
DFBRectangle stamped_area(const DFBRectangle& rect, int pen_width, int pen_height);

/// Gets the canvas ready for stamping around `rect` with the current pen's picture, which it hands out.
DFBResult begin_stamping(const DTKHDDVD_data& toolkit, const DFBRectangle& rect, Canvas& canvas,
                         Ref<IDirectFBSurface>& pen_surface);

/// Sets the drawing colour of the canvas.
DFBResult set_color(const Canvas& canvas, const DFBColor& color);

/// Makes the fill pattern the context's source, with the texture's top left corner at (x, y).
void set_pattern_source(const DTKHDDVD_data& toolkit, const Canvas& canvas, int x, int y);

/// Gets cairo the canvas, and the texture, to draw a path inside `box`; `fill_path` takes them back. Fails where there is no
/// context, or nothing to draw on: nothing is drawn then.
DFBResult begin_path(DTKHDDVD_data& toolkit, Canvas& canvas, const DFBRectangle& box);

/// Fills the context's path. A context or a pattern that ends in error is made anew; the drawing is lost, and the fill
/// fails.
DFBResult fill_path(DTKHDDVD_data& toolkit, Canvas& canvas);

} // namespace dtk

#endif
