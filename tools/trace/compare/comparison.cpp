#include "comparison.h"

#include <algorithm>

#include "../../engine_switch.h"

namespace trace {

namespace {

/// Whether a call changes what is on a surface in another way than by drawing.
bool sets_surface(const Call& call)
{
    return call.number() == Number::surface || call.number() == Number::pixels || call.number() == Number::clear;
}

bool is_of_toolkit(const Call& call)
{
    return call.number() <= Number::ellipse;
}

/// Cairo finds no pixel of a pattern that begins so far away, and no corner beyond its numbers.
bool is_far(int number)
{
    constexpr int reach = 16000;
    return number < -reach || number > reach;
}

bool is_far(const Drawing& drawing)
{
    const auto is_far_point = [](const DFBPoint& point) { return is_far(point.x) || is_far(point.y); };
    if (drawing.primitive == Number::polygon)
        return std::any_of(drawing.points.begin(), drawing.points.end(), is_far_point);
    return drawing.texture && drawing.box && is_far_point({drawing.box->x, drawing.box->y});
}

bool is_negative(const Drawing& drawing)
{
    return drawing.box && (drawing.box->w <= 0 || drawing.box->h <= 0);
}

/// What is documented of a drawing that the engine draws as it is expected to.
std::vector<std::string> reasons_of(const Drawing& drawing, const Toolkit& toolkit, DFBSurfacePixelFormat format)
{
    std::vector<std::string> reasons;
    const auto add = [&](bool applies, const char* reason) {
        if (applies)
            reasons.push_back(reason);
    };
    const bool has_translucent_stroke = drawing.has_stroke() && drawing.pen && drawing.stroke.a != 255;
    add(drawing.is_premultiplied(), "the colour of a translucent polygon");
    add(has_translucent_stroke && drawing.has_fill(), "a translucent outline upon its fill");
    add(has_translucent_stroke && drawing.primitive == Number::polygon, "the corners of a polygon's translucent outline");
    add(drawing.has_stroke() && !drawing.pen, "an outline without a pen, which the engine leaves out");
    add(drawing.blends() && format == DSPF_RGB32, "blending onto RGB32");
    add(drawing.blends() && !toolkit.has_scratch_pad, "translucency without a scratch pad");
    return reasons;
}

} // namespace

void Comparison::play(const Call& call, std::size_t index)
{
    const std::uint32_t number = drawn_surface(call, software_);
    Target* target = number ? &prepare(number) : nullptr;
    tools::show_engine(true);
    engine_.play(call);
    tools::show_engine(false);
    const DFBResult result = software_.play(call).value_or(DFB_OK);
    if (sets_surface(call))
        targets_[call.numbers[0]].is_known = false;
    if (!target || !target->is_known)
        return;
    dfb_->WaitIdle(dfb_);
    ++drawing_count_;
    IDirectFBSurface* drawn = engine_.surface(number).surface.get();
    Pixels software = read_pixels(software_.surface(number).surface.get(), target->width, target->height);
    const Pixels engine = read_pixels(drawn, target->width, target->height);
    if (software != engine) {
        write_pixels(drawn, software, target->width, target->height);
        judge(call, index, *target, software, engine, result);
    }
    target->pixels = std::move(software);
}

/// What the engine does not draw on is not compared.
Comparison::Target& Comparison::prepare(std::uint32_t number)
{
    Target& target = targets_[number];
    const Surface& surface = software_.surface(number);
    const bool can_be_compared = surface.format == DSPF_ARGB || surface.format == DSPF_RGB32;
    if (target.is_known || !surface.surface || !engine_.surface(number).surface || !can_be_compared)
        return target;
    target = {surface.width, surface.height, true, read_pixels(surface.surface.get(), surface.width, surface.height)};
    return target;
}

void Comparison::judge(const Call& call, std::size_t index, Target& target, Pixels software, const Pixels& engine,
                       DFBResult result)
{
    const Difference difference = compare(software, engine, target.width);
    if (difference.count == 0)
        return;
    const std::vector<std::string> kinds = kinds_of(call, target, engine, result);
    for (const std::string& kind : kinds)
        ++documented_[kind];
    undocumented_count_ += kinds.empty();
    std::optional<Finding>& finding = kinds.empty() ? undocumented_ : first_;
    if (!finding)
        finding = Finding{index, difference, target.width, std::move(software), engine};
}

std::vector<std::string> Comparison::kinds_of(const Call& call, const Target& target, const Pixels& engine, DFBResult result)
{
    if (!is_of_toolkit(call))
        return {"a pen's picture, which the engine's pens have not"};
    const Drawing drawing = drawing_of(call, software_);
    const Toolkit& toolkit = software_.toolkit(call.numbers[0]);
    const DFBSurfacePixelFormat format = software_.surface(toolkit.target).format;
    if (result && format != DSPF_ARGB)
        return {"a pixel format that software does not draw on"};
    if (is_far(drawing))
        return {"a place that is too far away for cairo"};
    if (is_negative(drawing))
        return {"a box without width or height"};
    return is_expected(drawing, target, engine, format) ? reasons_of(drawing, toolkit, format) : std::vector<std::string>();
}

bool Comparison::is_expected(const Drawing& drawing, const Target& target, const Pixels& engine, DFBSurfacePixelFormat format)
{
    Reference reference(dfb_, target.width, target.height);
    const auto expected = expected_of_engine(reference, drawing, target.pixels, format);
    return expected && compare(*expected, engine, target.width).count == 0;
}

} // namespace trace
