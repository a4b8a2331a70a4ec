#include "direct.h"
#include "examinations.h"

/// Handles, results and errors of the engine, called without the toolkit.

namespace conformance {
namespace {

void check_success(Verdict& verdict, const std::string& call, int error)
{
    verdict.check(error == 0, call + " returns " + hexadecimal(static_cast<u32>(error)));
}

void check_refusal(Verdict& verdict, const std::string& call, int error)
{
    verdict.check(error != 0, call + " returns 0");
}

void check_other_engine(const Direct& direct, Verdict& verdict, unsigned int dtk)
{
    const std::string of = " of engine " + hexadecimal(dtk);
    const zuvo_dtk_pen pen = {};
    for (const auto& [name, call] : direct.calls())
        check_refusal(verdict, name + of, call(dtk));
    check_refusal(verdict, "zuvo_dtk_sync" + of, zuvo_dtk_sync(dtk));
    check_refusal(verdict, "zuvo_dtk_set_output_surface" + of, zuvo_dtk_set_output_surface(dtk, direct.target()));
    check_refusal(verdict, "zuvo_dtk_set_fill_color" + of, zuvo_dtk_set_fill_color(dtk, 1, 2, 3, 255));
    check_refusal(verdict, "zuvo_dtk_set_pen" + of, zuvo_dtk_set_pen(dtk, &pen));
}

void check_null(const Direct& direct, Verdict& verdict)
{
    const unsigned int dtk = direct.engine(), flags = ZUVO_DTK_DRAW;
    direct.set(red);
    check_refusal(verdict, "zuvo_dtk_draw_rectangle of NULL", zuvo_dtk_draw_rectangle(dtk, nullptr, flags));
    check_refusal(verdict, "zuvo_dtk_draw_rectangle_border of NULL",
                  zuvo_dtk_draw_rectangle_border(dtk, nullptr, flags));
    check_refusal(verdict, "zuvo_dtk_draw_ellipse of NULL", zuvo_dtk_draw_ellipse(dtk, nullptr, flags));
    check_refusal(verdict, "zuvo_dtk_draw_ellipse_border of NULL", zuvo_dtk_draw_ellipse_border(dtk, nullptr, flags));
    check_refusal(verdict, "zuvo_dtk_draw_polygon of NULL", zuvo_dtk_draw_polygon(dtk, nullptr, 3, 0));
    check_refusal(verdict, "zuvo_dtk_set_pen of NULL", zuvo_dtk_set_pen(dtk, nullptr));
}

/// Draws with a surface of a format in every way.
void check_format(const Examination& examination, DFBSurfacePixelFormat format, const char* name, bool is_required)
{
    const Surface surface = examination.stage.make_surface(Direct::size, Direct::size, format);
    const Direct direct(examination);
    direct.set(red);
    const int error = zuvo_dtk_set_output_surface(direct.engine(), handle_of(surface.get()));
    if (is_required)
        check_success(examination.verdict, std::string("zuvo_dtk_set_output_surface of ") + name, error);
    for (const auto& [call, draw] : direct.calls()) {
        const int drawn = draw(direct.engine());
        const char* const what = error ? " draws on a refused " : " fails on ";
        examination.verdict.check((drawn == 0) == (error == 0), call + what + name);
    }
    if (is_required)
        check_success(examination.verdict, std::string("zuvo_dtk_set_fill_pattern of ") + name,
                      zuvo_dtk_set_fill_pattern(direct.engine(), handle_of(surface.get())));
    examination.verdict.check(direct.is_untouched(), "another surface was drawn on");
}

} // namespace

void examine_handles(const Examination& examination)
{
    const Direct direct(examination);
    Verdict& verdict = examination.verdict;
    verdict.check(direct.engine() != 0, "zuvo_dtk_get_handle returns 0");
    for (int i = 0; i < 10; ++i)
        verdict.check(zuvo_dtk_get_handle() == direct.engine(), "zuvo_dtk_get_handle returns another handle");
    const Surface other = examination.stage.make_surface(9, 9, DSPF_ARGB);
    verdict.check(direct.target() != 0, "a surface has no handle");
    verdict.check(handle_of(direct.surface()) == direct.target(), "a surface has another handle when asked again");
    verdict.check(handle_of(other.get()) != direct.target(), "two surfaces have one handle");
    const Surface all = part_of(direct.surface(), {0, 0, Direct::size, Direct::size});
    verdict.check(handle_of(all.get()) != 0, "a sub-surface has no handle");
}

void examine_results(const Examination& examination)
{
    const Direct direct(examination);
    Verdict& verdict = examination.verdict;
    for (const unsigned int dtk : {0u, direct.engine() + 1, 0xffffffffu}) {
        direct.set(red);
        check_other_engine(direct, verdict, dtk);
    }
    check_null(direct, verdict);
    verdict.check(direct.is_untouched(), "something was drawn by a call that failed");

    direct.set(red);
    for (const auto& [name, call] : direct.calls())
        check_success(verdict, name, call(direct.engine()));
    check_success(verdict, "zuvo_dtk_sync", zuvo_dtk_sync(direct.engine()));
    verdict.check(!direct.is_untouched(), "nothing was drawn by calls that return 0");
}

void examine_forgetting(const Examination& examination)
{
    const Direct direct(examination);
    Verdict& verdict = examination.verdict;
    const unsigned int nowhere = 0x0badbad0;
    direct.set(red);
    check_refusal(verdict, "zuvo_dtk_set_output_surface of no surface",
                  zuvo_dtk_set_output_surface(direct.engine(), 0));
    for (const auto& [name, call] : direct.calls())
        check_refusal(verdict, name + " without an output", call(direct.engine()));
    direct.set(red);
    check_refusal(verdict, "zuvo_dtk_set_output_surface of an unknown handle",
                  zuvo_dtk_set_output_surface(direct.engine(), nowhere));
    for (const auto& [name, call] : direct.calls())
        check_refusal(verdict, name + " without an output", call(direct.engine()));

    direct.set(red);
    check_refusal(verdict, "zuvo_dtk_set_fill_pattern of an unknown handle",
                  zuvo_dtk_set_fill_pattern(direct.engine(), nowhere));
    check_refusal(verdict, "zuvo_dtk_draw_rectangle without a fill", direct.fill_box({10, 10, 20, 20}));
    verdict.check(direct.is_untouched(), "something was drawn with what was set before");
}

void examine_stale_handles(const Examination& examination)
{
    const Direct direct(examination);
    Verdict& verdict = examination.verdict;
    Surface gone = examination.stage.make_surface(16, 16, DSPF_ARGB);
    const unsigned int handle = handle_of(gone.get());
    direct.set(red);
    check_success(verdict, "zuvo_dtk_set_output_surface", zuvo_dtk_set_output_surface(direct.engine(), handle));
    zuvo_dtk_sync(direct.engine());
    gone.reset();
    for (const auto& [name, call] : direct.calls())
        check_refusal(verdict, name + " on a surface that was released", call(direct.engine()));
    check_refusal(verdict, "zuvo_dtk_set_output_surface of a released surface",
                  zuvo_dtk_set_output_surface(direct.engine(), handle));
    direct.set(red);
    check_refusal(verdict, "zuvo_dtk_set_fill_pattern of a released surface",
                  zuvo_dtk_set_fill_pattern(direct.engine(), handle));
    verdict.check(direct.is_untouched(), "something was drawn");
}

void examine_formats(const Examination& examination)
{
    check_format(examination, DSPF_ARGB, "ARGB", true);
    check_format(examination, DSPF_RGB32, "RGB32", true);
    check_format(examination, DSPF_RGB16, "RGB16", false);
    check_format(examination, DSPF_A8, "A8", false);
    check_format(examination, DSPF_LUT8, "LUT8", false);
}

} // namespace conformance
