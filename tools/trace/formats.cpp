#include "formats.h"

#include <cstdio>

#include <directfb.h>

namespace trace {

namespace {

constexpr struct {
    const char* name;
    DFBSurfacePixelFormat format;
} formats[] = {
    {"ARGB", DSPF_ARGB}, {"RGB32", DSPF_RGB32},       {"RGB24", DSPF_RGB24},       {"RGB16", DSPF_RGB16}, {"A8", DSPF_A8},
    {"LUT8", DSPF_LUT8}, {"ARGB1555", DSPF_ARGB1555}, {"ARGB4444", DSPF_ARGB4444}, {"ABGR", DSPF_ABGR},
};

} // namespace

std::string name_of_format(std::uint32_t format)
{
    for (const auto& known : formats) {
        if (known.format == static_cast<DFBSurfacePixelFormat>(format))
            return known.name;
    }
    char text[16];
    std::snprintf(text, sizeof text, "0x%x", format);
    return text;
}

bool read_format(const std::string& name, std::uint32_t& ret_format)
{
    for (const auto& known : formats) {
        if (name != known.name)
            continue;
        ret_format = static_cast<std::uint32_t>(known.format);
        return true;
    }
    return false;
}

} // namespace trace
