#ifndef TOOLS_PICTURE_OUTPUT_H
#define TOOLS_PICTURE_OUTPUT_H

#include <string>
#include <vector>

#include "options.h"

namespace tools {

/// Where a program's picture goes: into a PNG file, into a window, or both.
class PictureOutput {
public:
    /// Adds `file` and `--window` to the program's command line.
    explicit PictureOutput(Program& program);
    PictureOutput(const PictureOutput&) = delete;
    PictureOutput& operator=(const PictureOutput&) = delete;

    /// The arguments to start the platform with: those of the command line, which open a window only with `--window`.
    ///
    /// @throws CLI::RequiredError when neither a file nor the window is asked for.
    std::vector<std::string> platform_arguments() const;

    /// Writes @p picture to the file. In the window it is shown until somebody ends the program.
    ///
    /// @throws std::runtime_error when the file cannot be written, or there is no display for the window.
    void put(const Platform& platform, IDirectFBSurface* picture) const;

private:
    const Program& program_;
    std::string file_;
    bool window_ = false;
};

} // namespace tools

#endif
