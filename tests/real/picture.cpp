#include "real/picture.h"

#include <cstdio>
#include <gtest/gtest.h>

namespace real {
namespace {

/// The parts of a pixel that are compared, each on its own.
std::vector<u32> compared_bits(DFBSurfacePixelFormat format)
{
    if (format == DSPF_ARGB)
        return {0x00ffffff, 0xff000000};
    return {format == DSPF_RGB32 ? 0x00ffffffu : 0xffffffffu};
}

/// The character for a pixel: the wanted one if it fits, else another one that does, else '?'.
char name(u32 value, u32 bits, const Legend& legend, char wanted)
{
    const auto fits = [=](u32 other) { return ((value ^ other) & bits) == 0; };
    const auto found = legend.find(wanted);
    if (found != legend.end() && fits(found->second))
        return wanted;
    for (const auto& [character, other] : legend) {
        if (fits(other))
            return character;
    }
    return '?';
}

struct Rendered {
    std::string rows;
    std::string strangers;
};

Rendered render(const Pixels& pixels, u32 bits, const Legend& legend, const std::string& expected)
{
    Rendered rendered = {"\n", ""};
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            const std::size_t place = rendered.rows.size();
            const char wanted = place < expected.size() ? expected[place] : '?';
            rendered.rows += name(pixels.at(x, y), bits, legend, wanted);
            if (rendered.rows.back() != '?' || rendered.strangers.size() > 200)
                continue;
            char text[64];
            std::snprintf(text, sizeof(text), "(%d, %d) holds 0x%08x\n", x, y, pixels.at(x, y));
            rendered.strangers += text;
        }
        rendered.rows += '\n';
    }
    return rendered;
}

} // namespace

void expect_picture(IDirectFBSurface* surface, const Legend& legend, const std::string& rows)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    EXPECT_EQ(surface->GetPixelFormat(surface, &format), DFB_OK);
    const Pixels pixels = read(surface);
    for (const u32 bits : compared_bits(format)) {
        const Rendered rendered = render(pixels, bits, legend, rows);
        EXPECT_EQ(rendered.rows, rows) << "under the bits 0x" << std::hex << bits << "\n" << rendered.strangers;
    }
}

std::string overlay(const std::string& lower, const std::string& upper, char mark)
{
    EXPECT_EQ(lower.size(), upper.size());
    std::string rows = lower;
    for (std::size_t i = 0; i < rows.size() && i < upper.size(); ++i) {
        if (upper[i] == '#')
            rows[i] = mark;
    }
    return rows;
}

} // namespace real
