#ifndef TOOLS_OPTIONS_H
#define TOOLS_OPTIONS_H

#include <functional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "platform.h"

namespace tools {

struct Size {
    int width, height; ///< In pixels.
};

/// The command line of a program, read by CLI11, and how the program ends: `--help` and `--version` are answered before
/// anything is opened, and what fails is one line on standard error.
class Program : public CLI::App {
public:
    Program(const std::string& description, const std::string& name);

    /// Adds `--backend` for one of the two back ends.
    CLI::Option* add_back_end(BackEnd& back_end);

    /// Adds an option that takes a size as WxH, or as N for a square.
    CLI::Option* add_size(const std::string& name, Size& size, const std::string& description, Size smallest, Size largest);

    /// Adds an option that takes the path of a file or a folder.
    CLI::Option* add_path(const std::string& name, std::string& path, const std::string& description);

    /// Takes everything from the first argument that is no option as @p command, the program to run and its arguments, with
    /// those for DirectFB and the platform.
    void take_command(std::vector<std::string>& command);

    /// Reads the command line and does the program's @p work.
    ///
    /// @return The exit status: what @p work returned, 1 when it throws or standard output cannot be written, 2 when the
    ///     command line or a std::invalid_argument of @p work is to blame.
    int run(int argc, char** argv, const std::function<int()>& work);

    /// The arguments for DirectFB and the platform, `--dfb:...` and `--zuvo:...`, which may stand anywhere.
    const std::vector<std::string>& words() const { return words_; }

private:
    void read(int argc, char** argv);
    void read_command(int argc, char** argv);
    int fail(int status, const std::string& message) const;

    std::vector<std::string> words_;
    std::vector<std::string>* command_ = nullptr;
};

/// Takes numbers from @p smallest to 1000000000.
CLI::Validator number_from(double smallest);

/// Takes one of @p names, which the help shows.
CLI::Option* take_one_of(CLI::Option* option, const std::vector<std::string>& names);

/// The arguments for a program that opens a window only where its user asks for one in @p words.
std::vector<std::string> without_window(const std::vector<std::string>& words);

} // namespace tools

#endif
