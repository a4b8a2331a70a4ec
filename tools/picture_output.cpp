#include "picture_output.h"

#include "interruption.h"
#include "write_png.h"

namespace tools {

namespace {

/// The layer takes the picture's size, and the window that of the layer.
void show(const Platform& platform, IDirectFBSurface* picture)
{
    platform.require_display();
    catch_signals();
    int width = 0, height = 0;
    check(picture->GetSize(picture, &width, &height), "cannot tell the picture's size");
    const Owned<IDirectFBSurface> screen = platform.layer_surface(width, height);
    check(screen->Blit(screen.get(), picture, nullptr, 0, 0), "cannot copy the picture");
    check(screen->Flip(screen.get(), nullptr, DSFLIP_NONE), "cannot show the picture");
    Interruption(platform.dfb()).await();
}

} // namespace

PictureOutput::PictureOutput(Program& program) : program_(program)
{
    program.add_path("file", file_, "the PNG file to write; may be left out with --window");
    program.add_flag("--window", window_, "show the picture in a window; Escape or closing it ends the program");
}

std::vector<std::string> PictureOutput::platform_arguments() const
{
    if (file_.empty() && !window_)
        throw CLI::RequiredError("file");
    return window_ ? program_.words() : without_window(program_.words());
}

void PictureOutput::put(const Platform& platform, IDirectFBSurface* picture) const
{
    if (!file_.empty())
        write_png(file_, picture);
    if (window_)
        show(platform, picture);
}

} // namespace tools
