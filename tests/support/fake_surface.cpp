#include "support/fake_surface.h"

#include "support/transcript.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <memory>

namespace fake {
namespace {

constexpr int guard_rows = 8;
constexpr unsigned char untouched = 0xEE;

std::vector<std::unique_ptr<Surface>>& all_surfaces()
{
    static std::vector<std::unique_ptr<Surface>> surfaces;
    return surfaces;
}

std::vector<std::unique_ptr<Palette>>& all_palettes()
{
    static std::vector<std::unique_ptr<Palette>> palettes;
    return palettes;
}

/// How many surfaces were made of each name.
std::map<std::string, int>& names()
{
    static std::map<std::string, int> counts;
    return counts;
}

Palette& self(IDirectFBPalette* thiz)
{
    Palette& palette = *static_cast<Palette*>(thiz);
    EXPECT_GT(palette.references, 0) << palette.name << " was called after its last Release";
    return palette;
}

DFBResult set_entries(IDirectFBPalette* thiz, const DFBColor* entries, unsigned int count, unsigned int offset)
{
    Palette& palette = self(thiz);
    std::string line = palette.name + ".SetEntries(";
    for (unsigned int i = 0; i < count; i++)
        line += text("%02x%02x%02x%02x ", entries[i].a, entries[i].r, entries[i].g, entries[i].b);
    const DFBResult result = transcript().call(line + text("from %u)", offset));
    if (!result)
        palette.entries.assign(entries, entries + count);
    return result;
}

Palette& new_palette(const std::string& name)
{
    all_palettes().push_back(std::make_unique<Palette>(name));
    return *all_palettes().back();
}

} // namespace

Palette::Palette(const std::string& name_of_palette) : IDirectFBPalette(), name(name_of_palette)
{
    AddRef = [](IDirectFBPalette* thiz) {
        transcript().note(self(thiz).name + ".AddRef()");
        self(thiz).references++;
        return DirectResult(DFB_OK);
    };
    Release = [](IDirectFBPalette* thiz) {
        transcript().note(self(thiz).name + ".Release()");
        self(thiz).references--;
        return DirectResult(DFB_OK);
    };
    SetEntries = set_entries;
}

DFBResult Surface::call(const std::string& call_and_arguments)
{
    EXPECT_GT(references, 0) << name << "." << call_and_arguments << " was called after its last Release";
    return transcript().call(name + "." + call_and_arguments);
}

unsigned char* Surface::pixels()
{
    memory();
    return bytes_.data() + guard_rows * pitch;
}

const std::vector<unsigned char>& Surface::memory()
{
    if (bytes_.empty())
        bytes_.assign(std::size_t(pitch) * std::size_t(height + 2 * guard_rows), untouched);
    return bytes_;
}

u32 Surface::pixel(int x, int y)
{
    if (bytes_per_pixel() == 1)
        return pixels()[y * pitch + x];
    u32 value;
    std::memcpy(&value, pixels() + (y * pitch / 4 + x) * 4, sizeof value);
    return value;
}

bool Surface::guards_are_untouched()
{
    memory();
    const std::size_t guard = std::size_t(guard_rows * pitch);
    for (std::size_t i = 0; i < guard; i++) {
        if (bytes_[i] != untouched || bytes_[bytes_.size() - 1 - i] != untouched)
            return false;
    }
    return true;
}

void Surface::fill(int x, int y, int w, int h, u32 value)
{
    for (int row = std::max(y, 0); row < std::min(y + h, height); row++) {
        for (int column = std::max(x, 0); column < std::min(x + w, width); column++) {
            if (bytes_per_pixel() == 1)
                pixels()[row * pitch + column] = static_cast<unsigned char>(value);
            else
                std::memcpy(pixels() + (row * pitch / 4 + column) * 4, &value, sizeof value);
        }
    }
}

Surface& new_surface(const std::string& name, int width, int height, DFBSurfacePixelFormat format)
{
    const int number = ++names()[name];
    const std::string unique = number == 1 ? name : name + std::to_string(number);
    all_surfaces().push_back(std::make_unique<Surface>(unique, width, height, format));
    Surface& surface = *all_surfaces().back();
    surface.id = 100 + static_cast<unsigned int>(all_surfaces().size());
    if (DFB_PIXELFORMAT_IS_INDEXED(format))
        surface.palette = &new_palette(unique + ".palette");
    return surface;
}

Surface& surface_named(const std::string& name)
{
    for (const auto& surface : all_surfaces()) {
        if (surface->name == name)
            return *surface;
    }
    ADD_FAILURE() << "there is no surface " << name;
    return new_surface(name, 1, 1, DSPF_ARGB);
}

int surface_references()
{
    int references = 0;
    for (const auto& surface : all_surfaces())
        references += surface->references;
    for (const auto& palette : all_palettes())
        references += palette->references - 1;
    return references;
}

void forget_surfaces()
{
    all_surfaces().clear();
    all_palettes().clear();
    names().clear();
}

void forget_surfaces_but(const Surface& kept)
{
    auto& surfaces = all_surfaces();
    const auto others = [&](const std::unique_ptr<Surface>& surface) { return surface.get() != &kept; };
    surfaces.erase(std::remove_if(surfaces.begin(), surfaces.end(), others), surfaces.end());
    names().clear();
}

std::string name_of(const IDirectFBSurface* surface)
{
    return surface ? static_cast<const Surface*>(surface)->name : "NULL";
}

} // namespace fake
