#ifndef TESTS_PROGRAMS_PROCESS_H
#define TESTS_PROGRAMS_PROCESS_H

#include <chrono>
#include <string>
#include <thread>

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

    /// Waits for its end; a process that is still there after 20 seconds is killed, which counts as a status of -1.
    Outcome wait();
    std::string output() const;

    /// Waits until its output contains @p text. Returns whether it does.
    bool says(const std::string& text) const;

private:
    std::string file_;
    pid_t pid_;
};

/// Asks @p is_reached every 20 milliseconds, for 20 seconds at most. Returns its last answer.
template <typename Condition>
bool await(Condition is_reached)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!is_reached()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

#endif
