#include "expected.h"

namespace conformance {
namespace {

bool is_translucent(const DFBColor& color)
{
    return color.a != 255;
}

Scene only(const Scene& scene, u32 flags)
{
    Scene part = scene;
    part.flags = flags;
    return part;
}

Scene edge(const Scene& polygon, std::size_t from, std::size_t to)
{
    Scene line = polygon;
    line.primitive = Primitive::line;
    line.points = {polygon.points[from], polygon.points[to]};
    return line;
}

void append_edges(std::vector<Scene>& pieces, const Scene& polygon)
{
    for (std::size_t i = 1; i < polygon.points.size(); ++i)
        pieces.push_back(edge(polygon, i - 1, i));
    if (polygon.is_closed)
        pieces.push_back(edge(polygon, polygon.points.size() - 1, 0));
}

bool is_premultiplied_by_cairo(const Scene& scene)
{
    return scene.primitive == Primitive::polygon && scene.has_fill() && scene.texture == Texture::none
        && is_translucent(scene.fill);
}

/// The calls that blend by themselves on the engine.
std::vector<Scene> pieces_of(const Scene& scene)
{
    if (!scene.has_stroke() || scene.primitive == Primitive::line)
        return {scene};
    if (!is_translucent(scene.stroke) && !is_premultiplied_by_cairo(scene))
        return {scene};

    std::vector<Scene> pieces;
    if (scene.has_fill())
        pieces.push_back(only(scene, DTKHDDVD_FILL));
    if (scene.primitive == Primitive::polygon)
        append_edges(pieces, scene);
    else
        pieces.push_back(only(scene, DTKHDDVD_STROKE));
    return pieces;
}

Scene marked(const Scene& scene, const DFBColor& color, Texture texture)
{
    Scene marks = scene;
    marks.target_format = DSPF_ARGB;
    marks.stroke = marks.fill = color;
    if (scene.texture != Texture::none)
        marks.texture = texture;
    return marks;
}

/// The pixels that a scene draws on: those that come out different when its colours are.
std::optional<std::vector<bool>> shape_of(Stage& stage, const Scene& scene, const Picture& background)
{
    const auto one = stage.draw(BackEnd::software, marked(scene, {255, 1, 2, 3}, Texture::first_mark), background);
    const auto other = stage.draw(BackEnd::software, marked(scene, {255, 4, 5, 6}, Texture::second_mark), background);
    if (!one || !other)
        return std::nullopt;

    std::vector<bool> shape;
    for (std::size_t i = 0; i < one->size(); ++i)
        shape.push_back((*one)[i] != (*other)[i]);
    return shape;
}

/// The fill of a polygon as a rectangle over everything has it.
Scene true_colour(const Scene& polygon)
{
    Scene everything = polygon;
    everything.primitive = Primitive::rectangle;
    everything.rect = {0, 0, surface_width, surface_height};
    return everything;
}

std::optional<Picture> expected_piece(Stage& stage, const Scene& piece, const Picture& background)
{
    const bool has_true_colour = is_premultiplied_by_cairo(piece);
    auto picture = stage.draw(BackEnd::software, has_true_colour ? true_colour(piece) : piece, background);
    if (!picture || (!has_true_colour && piece.target_format == DSPF_ARGB))
        return picture;

    const auto shape = shape_of(stage, piece, background);
    if (!shape)
        return std::nullopt;
    for (std::size_t i = 0; i < picture->size(); ++i) {
        if (!(*shape)[i])
            (*picture)[i] = background[i];
    }
    return picture;
}

} // namespace

std::optional<Picture> expected_picture(Stage& stage, const Scene& scene, const Picture& background)
{
    std::optional<Picture> picture = background;
    for (const Scene& piece : pieces_of(scene)) {
        picture = expected_piece(stage, piece, *picture);
        if (!picture)
            return std::nullopt;
    }
    return picture;
}

} // namespace conformance
