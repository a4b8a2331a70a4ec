#include "write_png.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <vector>

#include <png.h>

#include "platform.h"

namespace tools {

namespace {

struct Picture {
    int width = 0, height = 0;
    std::vector<std::uint8_t> rgb;
};

void append_row(std::vector<std::uint8_t>& rgb, const std::uint8_t* row, int width)
{
    for (int x = 0; x < width; ++x) {
        std::uint32_t pixel;
        std::memcpy(&pixel, row + 4 * x, sizeof pixel);
        rgb.push_back(static_cast<std::uint8_t>(pixel >> 16));
        rgb.push_back(static_cast<std::uint8_t>(pixel >> 8));
        rgb.push_back(static_cast<std::uint8_t>(pixel));
    }
}

void require_readable_format(IDirectFBSurface* surface)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    check(surface->GetPixelFormat(surface, &format), "cannot tell the surface's pixel format");
    if (format != DSPF_ARGB && format != DSPF_RGB32)
        throw std::runtime_error("only 32-bit surfaces can be written as PNG");
}

Picture read(IDirectFBSurface* surface)
{
    require_readable_format(surface);
    Picture picture;
    check(surface->GetSize(surface, &picture.width, &picture.height), "cannot tell the surface's size");

    void* pixels = nullptr;
    int pitch = 0;
    check(surface->Lock(surface, DSLF_READ, &pixels, &pitch), "cannot read the surface");
    for (int y = 0; y < picture.height; ++y)
        append_row(picture.rgb, static_cast<const std::uint8_t*>(pixels) + y * pitch, picture.width);
    surface->Unlock(surface);
    return picture;
}

bool write(FILE* file, const Picture& picture)
{
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    return png_image_write_to_stdio(&image, file, 0, picture.rgb.data(), 0, nullptr);
}

} // namespace

/// The file is opened here because libpng would remove what cannot be written to its end, were it /dev/full.
void write_png(const std::string& path, IDirectFBSurface* surface)
{
    const Picture picture = read(surface);
    FILE* file = std::fopen(path.c_str(), "wb");
    const bool is_written = file && write(file, picture);
    const bool is_closed = file && std::fclose(file) == 0;
    if (!is_written || !is_closed)
        throw std::runtime_error("cannot write " + path + ": " + std::strerror(errno));
}

} // namespace tools
