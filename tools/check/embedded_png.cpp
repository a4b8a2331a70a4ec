#include "embedded_png.h"

#include <stdexcept>

#include <png.h>

namespace conformance {
namespace {

std::string rgb_of(const Picture& picture)
{
    std::string rgb;
    for (const u32 pixel : picture) {
        for (const int shift : {16, 8, 0})
            rgb += static_cast<char>(pixel >> shift & 255);
    }
    return rgb;
}

} // namespace

std::string png_of(const Picture& picture)
{
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = surface_width;
    image.height = surface_height;
    image.format = PNG_FORMAT_RGB;
    const std::string rgb = rgb_of(picture);
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    std::string bytes(size, '\0');
    if (!png_image_write_to_memory(&image, bytes.data(), &size, 0, rgb.data(), 0, nullptr))
        throw std::runtime_error(std::string("cannot make a PNG: ") + image.message);
    bytes.resize(size);
    return bytes;
}

std::string base64(const std::string& bytes)
{
    static const char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        u32 group = 0;
        for (std::size_t k = 0; k < 3; ++k)
            group = group << 8 | (i + k < bytes.size() ? static_cast<u8>(bytes[i + k]) : 0u);
        for (std::size_t k = 0; k < 4; ++k)
            text += i + k <= bytes.size() ? digits[group >> (18 - 6 * k) & 63] : '=';
    }
    return text;
}

} // namespace conformance
