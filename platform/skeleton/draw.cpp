#include "command.h"
#include "outlines.h"
#include "shapes.h"

namespace board {
namespace {

u32* row_of(const Memory& memory, int y)
{
    return reinterpret_cast<u32*>(memory.address + static_cast<std::ptrdiff_t>(y) * memory.pitch);
}

/// Where a repeated pattern has what it shows at a place.
int wrapped(int place, int begin, int length)
{
    const auto distance = static_cast<int>((int64_t{place} - begin) % length);
    return distance < 0 ? distance + length : distance;
}

u32 color_at(const Command& command, int x, int y)
{
    if (!command.has_pattern)
        return command.color;
    const DFBRectangle& box = command.box;
    return row_of(command.pattern, wrapped(y, box.y, command.pattern.height))[wrapped(x, box.x, command.pattern.width)];
}

u32 blended_channel(u32 source, u32 target, u32 alpha, int shift)
{
    const u32 s = source >> shift & 255, t = target >> shift & 255;
    return (s * alpha + t * (255 - alpha) + 127) / 255 << shift;
}

u32 blended(u32 source, u32 target)
{
    const u32 alpha = source >> 24;
    return blended_channel(source, target, alpha, 24) | blended_channel(source, target, alpha, 16)
         | blended_channel(source, target, alpha, 8) | blended_channel(source, target, alpha, 0);
}

void paint(const Command& command, const Coverage& coverage)
{
    for (int y = 0; y < coverage.height; ++y) {
        u32* const row = row_of(command.target, y);
        for (int x = 0; x < coverage.width; ++x) {
            if (!coverage.has(x, y))
                continue;
            const u32 color = color_at(command, x, y);
            row[x] = command.blends ? blended(color, row[x]) : color;
        }
    }
}

void cover(Coverage& coverage, const Command& command)
{
    switch (command.shape) {
    case Shape::line:
        return cover_line(coverage, Pen(command.pen), command.points[0], command.points[1]);
    case Shape::rectangle:
        return cover_rectangle(coverage, command.box);
    case Shape::rectangle_border:
        return cover_rectangle_border(coverage, Pen(command.pen), command.box);
    case Shape::ellipse:
        return cover_ellipse(coverage, command.box);
    case Shape::ellipse_border:
        return cover_ellipse_border(coverage, Pen(command.pen), command.box);
    case Shape::polygon:
        return cover_polygon(coverage, command.points);
    }
}

} // namespace

void draw(const Command& command)
{
    Coverage coverage(command.target.width, command.target.height);
    cover(coverage, command);
    paint(command, coverage);
}

} // namespace board
