#include "compare.h"
#include "examinations.h"
#include "expected.h"

#include <algorithm>
#include <sstream>

#include <zuvo.h>

/// Families of random scenes, drawn by both back ends and compared.

namespace conformance {
namespace {

constexpr u32 grey = 0xff808080;

/// A family's scenes: how they are drawn from all that there are, and how they are compared.
struct Series {
    unsigned seed;
    Variety variety;
    int allowed;                                    ///< By how much a channel may differ.
    void (*choose)(Scene& scene, std::mt19937& random);
};

std::string text_of(const Scene& scene, const std::string& what)
{
    std::ostringstream text;
    text << what << ": " << scene;
    return text.str();
}

Scene next_scene(const Series& series, std::mt19937& random)
{
    Scene scene = random_scene(random, series.variety);
    series.choose(scene, random);
    if (needs_argb(scene))
        scene.target_format = DSPF_ARGB;
    return scene;
}

/// Calls `judge(scene, expected, drawn)` for every scene that software can draw.
template <typename Judge>
void for_scenes(const Examination& examination, const Series& series, bool has_noise, const Judge& judge)
{
    std::mt19937 random(series.seed);
    for (int i = 0; i < examination.scenes; ++i) {
        const Scene scene = next_scene(series, random);
        const Picture background = has_noise ? random_picture(random) : Picture(surface_width * surface_height, grey);
        const auto expected = expected_picture(examination.stage, scene, background);
        const auto drawn = examination.stage.draw(BackEnd::hardware, scene, background);
        if (!expected)
            continue;
        examination.verdict.check(drawn.has_value(), text_of(scene, "drawing fails"));
        if (drawn)
            judge(scene, *expected, *drawn);
    }
}

/// Both pictures with nothing but what is covered: white on black.
Picture silhouette(const std::vector<bool>& covered)
{
    Picture picture;
    for (const bool is_covered : covered)
        picture.push_back(is_covered ? 0xffffffff : 0xff000000);
    return picture;
}

void compare_geometry(const Examination& examination, const Series& series)
{
    for_scenes(examination, series, false, [&](const Scene& scene, const Picture& expected, const Picture& drawn) {
        const Picture wanted = silhouette(coverage(expected, grey)), found = silhouette(coverage(drawn, grey));
        const Difference difference = compare(wanted, found, 0);
        const std::string what = std::to_string(difference.count) + " pixels differ";
        examination.verdict.check(!difference, text_of(scene, what), wanted, found);
    });
}

void compare_pixels(const Examination& examination, const Series& series)
{
    for_scenes(examination, series, true, [&](const Scene& scene, const Picture& expected, const Picture& drawn) {
        const Difference difference = compare(expected, drawn, series.allowed);
        const std::string what = std::to_string(difference.count) + " pixels differ";
        examination.verdict.check(!difference, text_of(scene, what), expected, drawn);
    });
}

/// How far shapes may be from those of software.
constexpr int reach = 2;

/// Whether a pixel of a picture is covered near a place. What lies outside the surface may be.
bool is_near(const std::vector<bool>& covered, int x, int y)
{
    if (x < reach || y < reach || x >= surface_width - reach || y >= surface_height - reach)
        return true;
    for (int v = y - reach; v <= y + reach; ++v) {
        for (int u = x - reach; u <= x + reach; ++u) {
            if (covered[static_cast<std::size_t>(v * surface_width + u)])
                return true;
        }
    }
    return false;
}

/// How many pixels of one shape have none of another near them.
int count_strays(const std::vector<bool>& shape, const std::vector<bool>& other)
{
    int count = 0;
    for (int y = 0; y < surface_height; ++y) {
        for (int x = 0; x < surface_width; ++x)
            count += shape[static_cast<std::size_t>(y * surface_width + x)] && !is_near(other, x, y);
    }
    return count;
}

void choose_one(Scene& scene, Primitive primitive, u32 flags)
{
    scene.primitive = primitive;
    scene.flags = flags;
    scene.target_format = DSPF_ARGB;
    scene.pen = std::nullopt;
    if (primitive == Primitive::line)
        scene.points.resize(2);
}

template <Primitive primitive, u32 flags>
void choose_only(Scene& scene, std::mt19937&)
{
    choose_one(scene, primitive, flags);
}

void choose_outline_with_pen(Scene& scene, std::mt19937& random)
{
    choose_one(scene, scene.primitive, DTKHDDVD_STROKE);
    scene.pen = random_wide_pen(random);
}

void choose_anything(Scene& scene, std::mt19937&)
{
    scene.target_format = DSPF_ARGB;
}

/// Lines have no fill.
void choose_filled(Scene& scene, std::mt19937& random)
{
    if (scene.primitive == Primitive::line)
        scene.primitive = static_cast<Primitive>(1 + random() % 3);
    scene.flags |= DTKHDDVD_FILL;
    scene.target_format = DSPF_ARGB;
}

void choose_rgb32(Scene& scene, std::mt19937&)
{
    scene.target_format = DSPF_RGB32;
}

/// No shape is so small, and no pen so thin, that what software makes of its corners matters.
void choose_large(Scene& scene, std::mt19937& random)
{
    choose_one(scene, scene.primitive, random() % 2 ? DTKHDDVD_STROKE : DTKHDDVD_FILL);
    scene.rect.w += 20;
    scene.rect.h += 20;
    const int half = static_cast<int>(random() % 5);
    if (half > 0)
        scene.pen = DTKHDDVDPenShape{-half, -half, half, -half, half, half, -half, half};
}

constexpr Variety opaque = {false, false};

} // namespace

void examine_shapes(const Examination& examination)
{
    const Series series = {21, opaque, 0, choose_large};
    for_scenes(examination, series, false, [&](const Scene& scene, const Picture& expected, const Picture& drawn) {
        const auto wanted = coverage(expected, grey), found = coverage(drawn, grey);
        const int strays = count_strays(wanted, found) + count_strays(found, wanted);
        examination.verdict.check(!strays, text_of(scene, std::to_string(strays) + " pixels are far off"),
                                  silhouette(wanted), silhouette(found));
    });
}

void examine_line(const Examination& examination)
{
    compare_geometry(examination, {1, opaque, 0, choose_only<Primitive::line, DTKHDDVD_STROKE>});
}

void examine_rectangle(const Examination& examination)
{
    compare_geometry(examination, {2, opaque, 0, choose_only<Primitive::rectangle, DTKHDDVD_FILL>});
}

void examine_rectangle_border(const Examination& examination)
{
    compare_geometry(examination, {3, opaque, 0, choose_only<Primitive::rectangle, DTKHDDVD_STROKE>});
}

void examine_polygon(const Examination& examination)
{
    compare_geometry(examination, {4, opaque, 0, choose_only<Primitive::polygon, DTKHDDVD_FILL>});
}

void examine_polygon_outline(const Examination& examination)
{
    compare_geometry(examination, {5, opaque, 0, choose_only<Primitive::polygon, DTKHDDVD_STROKE>});
}

void examine_ellipse(const Examination& examination)
{
    compare_geometry(examination, {6, opaque, 0, choose_only<Primitive::ellipse, DTKHDDVD_FILL>});
}

void examine_ellipse_border(const Examination& examination)
{
    compare_geometry(examination, {7, opaque, 0, choose_only<Primitive::ellipse, DTKHDDVD_STROKE>});
}

void examine_pens(const Examination& examination)
{
    compare_geometry(examination, {8, opaque, 0, choose_outline_with_pen});
}

void examine_colours(const Examination& examination)
{
    compare_pixels(examination, {9, opaque, 0, choose_anything});
}

void examine_blending(const Examination& examination)
{
    compare_pixels(examination, {10, {true, false}, 1, choose_anything});
}

void examine_patterns(const Examination& examination)
{
    compare_pixels(examination, {11, {false, true}, 1, choose_filled});
}

void examine_blended_patterns(const Examination& examination)
{
    compare_pixels(examination, {12, {true, true}, 1, choose_filled});
}

void examine_rgb32(const Examination& examination)
{
    compare_pixels(examination, {13, {true, true}, 1, choose_rgb32});
}

void examine_parts(const Examination& examination)
{
    unsigned int handle = 0;
    const Surface whole = examination.stage.make_surface(8, 8, DSPF_ARGB);
    const Surface part = part_of(whole.get(), {1, 1, 4, 4});
    if (!zuvo_dtk_get_part_handle || zuvo_dtk_get_part_handle(part.get(), &handle) != DFB_OK)
        return examination.verdict.leave_out("The platform has no handles for parts of surfaces.");
    compare_geometry(examination, {14, {false, false, true}, 0, [](Scene& scene, std::mt19937&) {
                                       const auto place = scene.part;
                                       choose_one(scene, scene.primitive, DTKHDDVD_FILL);
                                       scene.part = place;
                                   }});
}

} // namespace conformance
