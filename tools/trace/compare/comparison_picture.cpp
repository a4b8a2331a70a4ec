#include "comparison.h"

#include <algorithm>

namespace trace {

namespace {

constexpr int margin = 8;

/// The part of the surface that is shown.
DFBRectangle shown(const Finding& finding)
{
    const int height = static_cast<int>(finding.software.size()) / finding.width;
    const int left = std::max(0, finding.difference.left - margin), top = std::max(0, finding.difference.top - margin);
    const int right = std::min(finding.width, finding.difference.right + margin + 1);
    const int bottom = std::min(height, finding.difference.bottom + margin + 1);
    return {left, top, right - left, bottom - top};
}

/// White where the colours differ at all.
Pixels marks_of(const Finding& finding)
{
    Pixels marks;
    for (std::size_t i = 0; i < finding.software.size(); ++i)
        marks.push_back((finding.software[i] ^ finding.engine[i]) & 0xffffff ? 0xffffff : 0);
    return marks;
}

void copy(const Pixels& from, int from_width, const DFBRectangle& part, Pixels& to, int to_width, int left)
{
    for (int y = 0; y < part.h; ++y) {
        const auto start = from.begin() + (static_cast<std::ptrdiff_t>(part.y) + y) * from_width + part.x;
        std::copy_n(start, part.w, to.begin() + static_cast<std::ptrdiff_t>(y) * to_width + left);
    }
}

} // namespace

tools::Owned<IDirectFBSurface> picture_of(const Finding& finding, IDirectFB* dfb)
{
    const DFBRectangle part = shown(finding);
    const int width = 3 * part.w + 2 * margin;
    Pixels sheet(static_cast<std::size_t>(width) * static_cast<std::size_t>(part.h), 0x808080);
    int left = 0;
    for (const Pixels& pixels : {finding.software, finding.engine, marks_of(finding)}) {
        copy(pixels, finding.width, part, sheet, width, left);
        left += part.w + margin;
    }
    auto surface = tools::create_surface(dfb, width, part.h, DSPF_RGB32);
    write_pixels(surface.get(), sheet, width, part.h);
    return surface;
}

} // namespace trace
