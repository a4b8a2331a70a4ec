#include "x_server.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>

namespace {

std::string new_directory()
{
    static int count = 0;
    std::string directory = temporary_file("display-" + std::to_string(++count));
    std::filesystem::create_directory(directory);
    std::filesystem::permissions(directory, std::filesystem::perms::owner_all);
    return directory;
}

std::uint32_t big_endian(const std::string& bytes, std::size_t place)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8 | static_cast<unsigned char>(bytes[place + i]);
    return value;
}

/// The parts of an X window dump's header that tell where the pixels are.
struct Dump {
    explicit Dump(const std::string& bytes)
        : pixels(big_endian(bytes, 0) + 12 * big_endian(bytes, 76)), pitch(big_endian(bytes, 48))
    {
    }

    std::size_t pixels, pitch;
};

} // namespace

XServer::XServer(const std::string& options)
    : directory_(new_directory()),
      process_("exec Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp -noreset -fbdir " + directory_ + " " + options +
               " 3>" + directory_ + "/number")
{
    await([&] {
        const std::string number = contents(directory_ + "/number");
        if (!number.empty() && number.back() == '\n')
            environment_ = "HOME=" + directory_ + " DISPLAY=:" + number.substr(0, number.size() - 1);
        return !environment_.empty();
    });
}

XServer::~XServer()
{
    process_.signal(SIGTERM);
    process_.wait();
    std::filesystem::remove_all(directory_);
}

bool XServer::run(const std::string& line) const
{
    return std::system(("export " + environment_ + "; { " + line + "; } > /dev/null 2>&1").c_str()) == 0;
}

void XServer::kill()
{
    process_.signal(SIGKILL);
}

Picture XServer::screen(std::size_t left, std::size_t top, unsigned int width, unsigned int height) const
{
    const std::string bytes = contents(directory_ + "/Xvfb_screen0");
    if (bytes.size() < 100)
        return {};
    const Dump dump(bytes);
    Picture picture = {width, height, {}};
    for (std::size_t y = top; y < top + height; ++y) {
        for (std::size_t x = left; x < left + width; ++x) {
            const auto* pixel = reinterpret_cast<const unsigned char*>(&bytes.at(dump.pixels + y * dump.pitch + 4 * x));
            picture.pixels.push_back(static_cast<std::uint32_t>(pixel[2] << 16 | pixel[1] << 8 | pixel[0]));
        }
    }
    return picture;
}

WindowManager::WindowManager(const XServer& server)
    : server_(server), process_("exec env " + server.environment() + " openbox --sm-disable")
{
    await([&] { return server_.run("xdotool set_num_desktops 2 && test $(xdotool get_num_desktops) = 2"); });
}

void WindowManager::hang() const
{
    process_.signal(SIGSTOP);
}

bool WindowManager::close(const std::string& title) const
{
    return await([&] { return server_.run("wmctrl -c '" + title + "'"); });
}

/// The pointer waits in the strip at the right, or its picture would be in the window's.
Compositor::Compositor()
    : directory_(new_directory()),
      process_("export XDG_RUNTIME_DIR=" + directory_ + " " + screen_.environment() +
               "; xdotool mousemove 790 300; exec weston --backend=x11-backend.so --use-pixman --shell=kiosk-shell.so"
               " --width=800 --height=480 --idle-time=0 --no-config --socket=wayland-test")
{
    if (await([&] { return std::filesystem::exists(directory_ + "/wayland-test"); }))
        environment_ = "HOME=" + directory_ + " XDG_RUNTIME_DIR=" + directory_ + " WAYLAND_DISPLAY=wayland-test";
}

Compositor::~Compositor()
{
    process_.signal(SIGTERM);
    process_.wait();
    std::filesystem::remove_all(directory_);
}

void Compositor::kill()
{
    process_.signal(SIGKILL);
}
