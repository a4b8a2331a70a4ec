#ifndef TOOLS_TRACE_PLAYER_SCREEN_H
#define TOOLS_TRACE_PLAYER_SCREEN_H

#include "objects.h"

namespace trace {

/// The window, or the console, on which frames are shown.
class Screen {
public:
    Screen(const tools::Platform& platform, int width, int height);

    /// Shows what is on @p surface, at the display's rate. Returns whether to go on: Escape and closing the window end it.
    bool show(IDirectFBSurface* surface);

private:
    bool was_escape_pressed();

    tools::Owned<IDirectFBSurface> surface_;
    tools::Owned<IDirectFBEventBuffer> events_;
};

} // namespace trace

#endif
