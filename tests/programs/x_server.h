#ifndef TESTS_PROGRAMS_X_SERVER_H
#define TESTS_PROGRAMS_X_SERVER_H

#include <string>

#include "command.h"
#include "process.h"

/// An X server without a monitor, of 800 x 600 pixels, on a display number of its own.
class XServer {
public:
    /// Starts it as it comes, but for @p options.
    explicit XServer(const std::string& options = "");
    ~XServer();

    /// The variables that lead programs to it, and to a home of their own, or nothing where it did not start.
    const std::string& environment() const { return environment_; }

    /// A part of what it shows.
    Picture screen(std::size_t left, std::size_t top, unsigned int width, unsigned int height) const;

    /// Runs a shell command there. Returns whether it succeeded.
    bool run(const std::string& line) const;

    /// The server ends without a word to anybody.
    void kill();

private:
    std::string directory_;
    std::string environment_;
    Process process_;
};

/// A window manager on an X server. It is ready when this has been made: openbox first leaves a request that comes while it
/// starts lying until another one follows.
class WindowManager {
public:
    explicit WindowManager(const XServer& server);

    /// Closes a window as its button does. The window may be about to appear.
    bool close(const std::string& title) const;

    /// It answers nothing any more.
    void hang() const;

private:
    const XServer& server_;
    Process process_;
};

/// A Wayland compositor of 800 x 480 pixels that shows every window full screen. Its own screen is a window in the upper left
/// corner of an X server.
class Compositor {
public:
    Compositor();
    ~Compositor();

    const std::string& environment() const { return environment_; }
    const XServer& screen() const { return screen_; }
    void kill();

private:
    XServer screen_;
    std::string directory_;
    std::string environment_;
    Process process_;
};

#endif
