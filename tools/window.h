#ifndef TOOLS_WINDOW_H
#define TOOLS_WINDOW_H

namespace tools {

/// Has @p closed called, in any thread and with any lock held, when the user closes DirectFB's X11 window. The program
/// has to end there: nothing of DirectFB works any more. Call this when DirectFB runs; without a window nothing
/// happens.
void when_window_closes(void (*closed)());

} // namespace tools

#endif
