#ifndef TOOLS_SHEET_H
#define TOOLS_SHEET_H

#include "platform.h"

namespace tools {

/// A white picture with captions, in DirectFB's own font.
class Sheet {
public:
    /// @throws std::runtime_error when DirectFB cannot make a surface of this size.
    Sheet(IDirectFB* dfb, int width, int height);

    IDirectFBSurface* surface() const { return surface_.get(); }

    /// Fills @p area with grey squares of @p size pixels, so that one sees where a drawing is translucent.
    void fill_checks(const DFBRectangle& area, int size) const;

    /// Writes centred about @p x and below @p y. Without DirectFB's font nothing is written.
    void write(const char* text, int x, int y) const;

private:
    Owned<IDirectFBSurface> surface_;
    Owned<IDirectFBFont> font_;
};

} // namespace tools

#endif
