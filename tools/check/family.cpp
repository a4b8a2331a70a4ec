#include "family.h"

#include "examinations.h"

namespace conformance {
namespace {

constexpr const char* level_names[] = {"none", "required", "geometry", "pixels"};

} // namespace

const char* name_of(Level level)
{
    return level_names[static_cast<int>(level)];
}

Level level_named(const std::string& name)
{
    for (const Level level : {Level::required, Level::geometry, Level::pixels}) {
        if (name == name_of(level))
            return level;
    }
    return Level::none;
}

void Verdict::check(bool is_good, const std::string& text, const Picture& expected, const Picture& drawn)
{
    ++checks_;
    if (is_good)
        return;
    ++failures_;
    if (findings_.size() < kept_findings)
        findings_.push_back({text, expected, drawn});
}

void Verdict::leave_out(const std::string& reason)
{
    reason_ = reason;
}

const std::vector<Family>& families()
{
    static const std::vector<Family> all = {
        {"handles", Level::required, "Engine and surfaces have handles that stay, and differ.", examine_handles},
        {"results", Level::required, "Right calls return 0, wrong ones do not and draw nothing.", examine_results},
        {"lock", Level::required, "What was drawn is there when Lock returns.", examine_lock},
        {"sync", Level::required, "What was drawn is there when zuvo_dtk_sync returns.", examine_sync},
        {"idle", Level::required, "What was drawn is there when IDirectFB::WaitIdle returns.", examine_idle},
        {"flip", Level::required, "Flip shows what was drawn before it.", examine_flip},
        {"order", Level::required, "Calls of the toolkit and of DirectFB are drawn in their order.", examine_order},
        {"forgetting", Level::required, "What could not be set leaves nothing to draw with.", examine_forgetting},
        {"formats", Level::required, "ARGB and RGB32 are drawn on, others drawn on or refused.", examine_formats},
        {"stale handles", Level::required, "A released surface is refused.", examine_stale_handles},
        {"state", Level::required, "Records are copied; each call draws with what is set.", examine_state},
        {"flags", Level::required, "Without ZUVO_DTK_BLEND colours are stored, alpha included.", examine_flags},
        {"extremes", Level::required, "Any number is drawn where it belongs, in little time.", examine_extremes},
        {"threads", Level::required, "Threads take turns, while others use DirectFB.", examine_threads},
        {"shapes", Level::required, "Shapes are where software draws them, to two pixels.", examine_shapes},
        {"line", Level::geometry, "A line covers the pixels that software covers.", examine_line},
        {"rectangle", Level::geometry, "A rectangle covers those of software.", examine_rectangle},
        {"rectangle border", Level::geometry, "A border of one pixel covers those of software.", examine_rectangle_border},
        {"polygon", Level::geometry, "A polygon covers those of software.", examine_polygon},
        {"polygon outline", Level::geometry, "Its outline of one pixel covers those of software.", examine_polygon_outline},
        {"ellipse", Level::geometry, "An ellipse filled with a colour covers those of software.", examine_ellipse},
        {"ellipse border", Level::geometry, "Its outline of one pixel covers those of software.", examine_ellipse_border},
        {"pens", Level::geometry, "Wide pens of any shape cover those of software.", examine_pens},
        {"parts", Level::geometry, "Sub-surfaces are drawn on from their own corners.", examine_parts},
        {"colours", Level::pixels, "Opaque colours are stored exactly.", examine_colours},
        {"blending", Level::pixels, "Each primitive blends each pixel once.", examine_blending},
        {"patterns", Level::pixels, "Patterns begin at the shape's box and repeat.", examine_patterns},
        {"blended patterns", Level::pixels, "Patterns and translucent colours go together.", examine_blended_patterns},
        {"RGB32", Level::pixels, "What is drawn on RGB32 looks as software draws it.", examine_rgb32},
    };
    return all;
}

} // namespace conformance
