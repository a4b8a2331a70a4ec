#ifndef TOOLS_INTERRUPTION_H
#define TOOLS_INTERRUPTION_H

#include "platform.h"

namespace tools {

/// From now on SIGINT and SIGTERM no longer end the program but ask it to end.
void catch_signals();

/// What asks a program to end while DirectFB runs: one of these signals, or Escape, which closing the window presses.
class Interruption {
public:
    /// @throws std::runtime_error when DirectFB does not let it listen to the keyboard.
    explicit Interruption(IDirectFB* dfb);

    /// Whether one of them has come, now or before.
    bool has_come() const;

    /// Waits until one of them comes.
    void await() const;

private:
    Owned<IDirectFBEventBuffer> keys_;
};

} // namespace tools

#endif
