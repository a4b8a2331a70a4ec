#ifndef TESTS_PROGRAMS_X_SERVER_H
#define TESTS_PROGRAMS_X_SERVER_H

#include <string>

#include <sys/types.h>

#include "command.h"

/// A process that runs beside the test; its output is kept.
class Process {
public:
    /// Runs @p line in a shell, which becomes the program: the line is to begin with `exec`.
    explicit Process(const std::string& line);
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process();

    void signal(int number) const;
    Outcome wait();
    std::string output() const;

private:
    std::string file_;
    pid_t pid_;
};

/// An X server without a monitor, on a display number of its own.
class XServer {
public:
    XServer();
    ~XServer();

    /// The variable that leads programs to it, or nothing where it did not start.
    const std::string& environment() const { return environment_; }

    /// The upper left part of what it shows.
    Picture screen(unsigned int width, unsigned int height) const;

private:
    std::string directory_;
    std::string environment_;
    Process process_;
};

#endif
