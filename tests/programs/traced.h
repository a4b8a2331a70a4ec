#ifndef TESTS_PROGRAMS_TRACED_H
#define TESTS_PROGRAMS_TRACED_H

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "command.h"

/// Without a display. A sanitizer's runtime does not want anything to be loaded before it.
inline const char surroundings[] =
    "DISPLAY= WAYLAND_DISPLAY= DFBARGS=system=dummy,quiet,no-sighandler ASAN_OPTIONS=$ASAN_OPTIONS:verify_asan_link_order=0";

inline Outcome run(const std::string& line)
{
    return run_command(line, surroundings);
}

inline std::string bytes_of(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void write_bytes(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

/// A trace in a file that is gone with it.
class Traced {
public:
    explicit Traced(const std::string& command, const std::string& options = "")
        : path(temporary_file("a trace.dtk")),
          outcome(run("dtk_trace " + options + " -o '" + path + "' '" PROGRAMS "'/" + command))
    {
    }
    ~Traced() { std::filesystem::remove(path); }

    std::string text() const { return run("dtk_replay '" + path + "' --text -").output; }
    std::vector<std::string> lines() const { return lines_of(text()); }
    std::string bytes() const { return bytes_of(path); }
    Outcome replay(const std::string& options = "") const { return run("dtk_replay " + options + " '" + path + "'"); }

    const std::string path;
    const Outcome outcome;
};

/// How often each function stands in a trace.
inline std::map<std::string, int> counts(const std::vector<std::string>& lines)
{
    std::map<std::string, int> result;
    for (const std::string& line : lines)
        ++result[line.substr(0, line.find(' '))];
    return result;
}

#endif
