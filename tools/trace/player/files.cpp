#include "files.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>

#include "../../platform.h"
#include "../../write_png.h"

namespace trace {

namespace {

using File = std::unique_ptr<FILE, int (*)(FILE*)>;

[[noreturn]] void fail(const char* what, const std::string& path)
{
    throw std::runtime_error(std::string(what) + " " + path + ": " + std::strerror(errno));
}

std::vector<std::uint8_t> read(const std::string& path)
{
    const File file(std::fopen(path.c_str(), "rb"), std::fclose);
    if (!file)
        fail("cannot read", path);
    std::vector<std::uint8_t> bytes;
    std::uint8_t part[1 << 16];
    while (const std::size_t size = std::fread(part, 1, sizeof part, file.get()))
        bytes.insert(bytes.end(), part, part + size);
    if (std::ferror(file.get()))
        fail("cannot read", path);
    return bytes;
}

} // namespace

Trace load(const std::string& path)
{
    const std::vector<std::uint8_t> bytes = read(path);
    try {
        return is_text(bytes) ? parse(std::string(bytes.begin(), bytes.end())) : decode(bytes);
    } catch (const std::runtime_error& error) {
        throw std::runtime_error(path + ": " + error.what());
    }
}

void save(const std::string& path, const char* bytes, std::size_t size)
{
    if (path == "-") {
        std::fwrite(bytes, 1, size, stdout);
        return;
    }
    FILE* file = std::fopen(path.c_str(), "wb");
    if (!file)
        fail("cannot write", path);
    const bool is_written = std::fwrite(bytes, 1, size, file) == size;
    if (std::fclose(file) || !is_written)
        fail("cannot write", path);
}

void save_picture(const std::string& path, IDirectFB* dfb, IDirectFBSurface* surface)
{
    int width, height;
    tools::check(surface->GetSize(surface, &width, &height), "cannot tell the surface's size");
    const auto copy = tools::create_surface(dfb, width, height, DSPF_ARGB);
    tools::check(copy->Blit(copy.get(), surface, nullptr, 0, 0), "cannot copy the surface");
    tools::write_png(path, copy.get());
}

} // namespace trace
