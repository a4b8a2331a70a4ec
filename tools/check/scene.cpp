#include "scene.h"

#include <algorithm>
#include <ostream>

namespace conformance {
namespace {

int between(std::mt19937& random, int low, int high)
{
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
}

bool one_in(std::mt19937& random, unsigned count)
{
    return random() % count == 0;
}

DFBColor random_color(std::mt19937& random, bool is_translucent)
{
    const u8 alpha = is_translucent && !one_in(random, 4) ? static_cast<u8>(random()) : 255;
    return {alpha, static_cast<u8>(random()), static_cast<u8>(random()), static_cast<u8>(random())};
}

/// Partly outside as often as not.
DFBPoint random_point(std::mt19937& random)
{
    const int beyond = one_in(random, 3) ? 120 : 5;
    return {between(random, -beyond, surface_width + beyond), between(random, -beyond, surface_height + beyond)};
}

DFBRectangle random_box(std::mt19937& random, int smallest)
{
    const int largest = one_in(random, 2) ? 24 : 260;
    const DFBPoint corner = random_point(random);
    return {corner.x, corner.y, between(random, smallest, largest), between(random, smallest, largest)};
}

/// Mostly small; convex, concave, crossing or off the centre as it comes.
DTKHDDVDPenShape random_quadrilateral(std::mt19937& random)
{
    const int reach = one_in(random, 8) ? 40 : between(random, 1, 7);
    const auto coordinate = [&random, reach] { return between(random, -reach, reach); };
    DTKHDDVDPenShape pen;
    for (int* value : {&pen.x0, &pen.y0, &pen.x1, &pen.y1, &pen.x2, &pen.y2, &pen.x3, &pen.y3})
        *value = coordinate();
    return pen;
}

DTKHDDVDPenShape random_rectangular_pen(std::mt19937& random)
{
    const int left = between(random, -4, 0), top = between(random, -4, 0);
    const int right = between(random, 1, 4), bottom = between(random, 1, 4);
    return {left, top, right, top, right, bottom, left, bottom};
}

/// A software pen needs a width and a height.
bool has_surface(const DTKHDDVDPenShape& pen)
{
    const auto [left, right] = std::minmax({pen.x0, pen.x1, pen.x2, pen.x3});
    const auto [top, bottom] = std::minmax({pen.y0, pen.y1, pen.y2, pen.y3});
    return left < right && top < bottom;
}

std::optional<DTKHDDVDPenShape> random_pen(std::mt19937& random)
{
    if (one_in(random, 4))
        return std::nullopt;
    return random_wide_pen(random);
}

std::vector<DFBPoint> random_points(std::mt19937& random, int count)
{
    std::vector<DFBPoint> points;
    for (int i = 0; i < count; ++i)
        points.push_back(random_point(random));

    // Level and upright edges, and polygons without any other ones.
    const bool is_square = one_in(random, 6);
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (is_square || one_in(random, 8))
            (i % 2 ? points[i].x : points[i].y) = i % 2 ? points[i - 1].x : points[i - 1].y;
    }
    return points;
}

/// Inside the surface.
DFBRectangle random_part(std::mt19937& random)
{
    const int x = between(random, 0, surface_width - 1), y = between(random, 0, surface_height - 1);
    return {x, y, between(random, 1, surface_width - x), between(random, 1, surface_height - y)};
}

} // namespace

DTKHDDVDPenShape random_wide_pen(std::mt19937& random)
{
    if (one_in(random, 3))
        return random_rectangular_pen(random);
    for (;;) {
        const DTKHDDVDPenShape pen = random_quadrilateral(random);
        if (has_surface(pen))
            return pen;
    }
}

Scene random_scene(std::mt19937& random, Variety variety)
{
    Scene scene;
    scene.primitive = static_cast<Primitive>(random() % 4);
    scene.target_format = one_in(random, 4) ? DSPF_RGB32 : DSPF_ARGB;
    // Through its scratch pad the software back end blends a box that a negative size leaves too small.
    const bool has_blending = variety.is_translucent || variety.has_textures;
    scene.rect = random_box(random, has_blending ? 1 : -2);
    scene.points = random_points(random, scene.primitive == Primitive::line ? 2 : between(random, 2, 9));
    scene.is_closed = one_in(random, 2);
    scene.flags = random() % 4;
    scene.stroke = random_color(random, variety.is_translucent);
    scene.fill = random_color(random, variety.is_translucent);
    scene.texture = Texture::none;
    if (variety.has_textures)
        scene.texture = one_in(random, 3) ? Texture::rgb32 : Texture::argb;
    scene.pen = random_pen(random);
    if (variety.is_on_parts)
        scene.part = random_part(random);
    return scene;
}

bool is_one_pixel(const DTKHDDVDPenShape& pen)
{
    const auto [left, right] = std::minmax({pen.x0, pen.x1, pen.x2, pen.x3});
    const auto [top, bottom] = std::minmax({pen.y0, pen.y1, pen.y2, pen.y3});
    return right - left == 1 && bottom - top == 1;
}

bool needs_argb(const Scene& scene)
{
    return scene.primitive == Primitive::ellipse && scene.has_stroke() && (!scene.pen || is_one_pixel(*scene.pen));
}

namespace {

std::ostream& operator<<(std::ostream& stream, const DFBColor& color)
{
    return stream << '(' << int(color.r) << ' ' << int(color.g) << ' ' << int(color.b) << ' ' << int(color.a) << ')';
}

} // namespace

std::ostream& operator<<(std::ostream& stream, const Scene& scene)
{
    const char* const names[] = {"line", "rectangle", "polygon", "ellipse"};
    const DFBRectangle& rect = scene.rect;
    stream << names[static_cast<int>(scene.primitive)] << " flags " << scene.flags << " box " << rect.x << ' ' << rect.y
           << ' ' << rect.w << ' ' << rect.h << " points";
    for (const DFBPoint& point : scene.points)
        stream << " (" << point.x << ' ' << point.y << ')';
    stream << (scene.is_closed ? " closed" : " open") << " stroke " << scene.stroke << " fill " << scene.fill
           << (scene.target_format == DSPF_ARGB ? " on ARGB" : " on RGB32");
    if (scene.texture != Texture::none)
        stream << (scene.texture == Texture::argb ? " texture ARGB" : " texture RGB32");
    if (const auto& part = scene.part)
        stream << " part " << part->x << ' ' << part->y << ' ' << part->w << ' ' << part->h;
    if (const auto& pen = scene.pen)
        stream << " pen " << pen->x0 << ' ' << pen->y0 << ", " << pen->x1 << ' ' << pen->y1 << ", " << pen->x2 << ' '
               << pen->y2 << ", " << pen->x3 << ' ' << pen->y3;
    return stream;
}

} // namespace conformance
