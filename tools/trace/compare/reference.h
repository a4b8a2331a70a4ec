#ifndef TOOLS_TRACE_COMPARE_REFERENCE_H
#define TOOLS_TRACE_COMPARE_REFERENCE_H

#include "drawing.h"
#include "pixels.h"

namespace trace {

/// Draws single drawings in software, on surfaces of its own and through a scratch pad. The engine must be out of sight.
class Reference {
public:
    Reference(IDirectFB* dfb, int width, int height) : dfb_(dfb), width_(width), height_(height) {}

    int width() const { return width_; }
    int height() const { return height_; }

    /// What a drawing makes of @p background, or nothing where software does not draw it.
    std::optional<Pixels> draw(const Drawing& drawing, const Pixels& background, DFBSurfacePixelFormat format);

    /// The pixels that a drawing covers: those that come out different when its colours are.
    std::optional<std::vector<bool>> shape_of(const Drawing& drawing, const Pixels& background);

private:
    std::optional<Pixels> draw_marked(Drawing drawing, const Pixels& background, u8 mark);

    IDirectFB* dfb_;
    int width_, height_;
};

/// What the engine is documented to draw for a drawing, made of software's drawings: each part that it blends by itself, a
/// translucent polygon's colour as it is, nothing where it needs a pen and has none. Or nothing where software does not
/// draw it.
std::optional<Pixels> expected_of_engine(Reference& reference, const Drawing& drawing, const Pixels& background,
                                         DFBSurfacePixelFormat format);

} // namespace trace

#endif
