#ifndef TESTS_PROGRAMS_COMMAND_H
#define TESTS_PROGRAMS_COMMAND_H

#include <cstdint>
#include <string>
#include <vector>

/// How a program ended.
struct Outcome {
    int status;         ///< Its exit status, or -1 when a signal ended it.
    std::string output; ///< What it wrote to standard output and standard error.
    int signal = 0;     ///< The signal that ended it, or 0.
};

/// The outcome of a process with this @p status, as waitpid gives it.
Outcome outcome_of(int status, const std::string& output);

/// For a Process: the shell's command that becomes a program of the build directory with its arguments.
std::string program(const std::string& line);

/// Runs a program of the build directory, in a shell: @p line is its name and its arguments, @p environment the
/// variables that it sees beside the test's own.
Outcome run_command(const std::string& line, const std::string& environment = "");

/// The names of the examples that there are here.
std::vector<std::string> examples();

/// The lines of @p text without their ends.
std::vector<std::string> lines_of(const std::string& text);

/// What a file holds; nothing where there is none.
std::string contents(const std::string& file);

/// A file name in the test's own directory of temporary files.
std::string temporary_file(const std::string& name);

/// A PNG file's pixels, 0xRRGGBB in reading order. Empty when the file cannot be read.
struct Picture {
    unsigned int width = 0, height = 0;
    std::vector<std::uint32_t> pixels;
};

Picture read_png(const std::string& path);
void write_png(const std::string& path, const Picture& picture);

#endif
