#pragma once

#include <dtkhddvd.h>
#include <iosfwd>
#include <optional>
#include <random>
#include <vector>

namespace conformance {

/// What fills are made of: noise, or opaque colours that mark where a shape is.
enum class Texture { none, argb, rgb32, first_mark, second_mark };

enum class Primitive { line, rectangle, polygon, ellipse };

/// One call of a toolkit and all that it draws with.
struct Scene {
    Primitive primitive;
    DFBSurfacePixelFormat target_format;
    DFBRectangle rect;
    std::vector<DFBPoint> points;       ///< A line has two.
    bool is_closed;
    u32 flags;
    DFBColor stroke, fill;
    Texture texture;
    std::optional<DTKHDDVDPenShape> pen;
    std::optional<DFBRectangle> part = std::nullopt;    ///< The target is this part of a surface.

    bool has_stroke() const { return primitive == Primitive::line || (flags & DTKHDDVD_STROKE); }
    bool has_fill() const { return primitive != Primitive::line && (flags & DTKHDDVD_FILL); }
};

/// What parts of scenes to choose from.
struct Variety {
    bool is_translucent;
    bool has_textures;
    bool is_on_parts = false;
};

constexpr int surface_width = 200;
constexpr int surface_height = 150;

Scene random_scene(std::mt19937& random, Variety variety);

/// Whether a pen draws like no pen in software, where it is this many pixels smaller than on the engine.
bool is_one_pixel(const DTKHDDVDPenShape& pen);

/// Whether the software back end cannot draw a scene on RGB32: an ellipse's outline one pixel wide.
bool needs_argb(const Scene& scene);

/// A pen of any shape that has a width and a height, for both back ends.
DTKHDDVDPenShape random_wide_pen(std::mt19937& random);

std::ostream& operator<<(std::ostream& stream, const Scene& scene);

} // namespace conformance
