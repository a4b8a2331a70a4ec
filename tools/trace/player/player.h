#ifndef TOOLS_TRACE_PLAYER_PLAYER_H
#define TOOLS_TRACE_PLAYER_PLAYER_H

#include <deque>

#include "arguments.h"
#include "objects.h"

namespace trace {

/// Makes the calls of a trace again, on surfaces of its own that nobody sees, with the back end that the platform has at the
/// moment of each call. A call that would use what the trace has given back is refused, so that no trace can do harm.
class Player {
public:
    explicit Player(IDirectFB* dfb) : dfb_(dfb) {}
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;
    ~Player();

    /// Makes one call.
    ///
    /// @return Its result, or nothing for a call with an object that this back end did not make.
    /// @throws std::runtime_error for a call that cannot be made.
    std::optional<DFBResult> play(const Call& call);

    Surface& surface(std::uint32_t number) { return surfaces_.at(number); }
    Toolkit& toolkit(std::uint32_t number) { return toolkits_.at(number); }
    Pen& pen(std::uint32_t number) { return pens_.at(number); }

private:
    using Play = DFBResult (Player::*)(Arguments&);

    static Play play_of(Number number);

    DFBResult declare_surface(Arguments& arguments);
    DFBResult clear(Arguments& arguments);
    DFBResult do_nothing(Arguments&) { return DFB_OK; }
    DFBResult create(Arguments& arguments);
    DFBResult attach(Arguments& arguments);
    DFBResult detach(Arguments& arguments);
    DFBResult add_ref(Arguments& arguments);
    DFBResult release(Arguments& arguments);
    DFBResult set_stroke_color(Arguments& arguments);
    DFBResult set_fill_color(Arguments& arguments);
    DFBResult set_fill_pattern(Arguments& arguments);
    DFBResult create_pen(Arguments& arguments);
    DFBResult set_pen(Arguments& arguments);
    DFBResult line(Arguments& arguments);
    DFBResult rectangle(Arguments& arguments);
    DFBResult polygon(Arguments& arguments);
    DFBResult ellipse(Arguments& arguments);
    DFBResult pen_add_ref(Arguments& arguments);
    DFBResult pen_release(Arguments& arguments);
    DFBResult pen_get_size(Arguments& arguments);
    DFBResult pen_get_surface(Arguments& arguments);
    DFBResult pen_get_shape(Arguments& arguments);
    DFBResult compute_size(Arguments& arguments);
    DFBResult render_a8(Arguments& arguments);
    DFBResult render_lut8(Arguments& arguments);
    DFBResult stamp_along_line(Arguments& arguments);
    DFBResult stamp_along_rectangle(Arguments& arguments);
    DFBResult stamp_along_ellipse(Arguments& arguments);
    DFBResult fill_argb(Arguments& arguments);
    DFBResult fill_lut8(Arguments& arguments);
    DFBResult outline_argb(Arguments& arguments);

    DFBResult set_pixels(const Call& call);
    Toolkit& living_toolkit(std::uint32_t number);
    Pen& living_pen(std::uint32_t number);
    Surface& living_surface(std::uint32_t number);
    void spend(int width, int height);
    void spend_pen(const DTKHDDVDPenShape& shape);
    void spend_scratch_pad(const Toolkit& toolkit, std::uint32_t target);
    void note_attachment(Toolkit& toolkit, std::uint32_t target);
    void reattach(std::uint32_t target);
    void drop(Toolkit& toolkit);
    DFBResult keep(IDirectFBSurface* made, DFBResult result, std::uint32_t number);
    DFBResult draw_box(Arguments& arguments, decltype(&DTKHDDVD_Rectangle) draw);
    DFBResult stamp_box(Arguments& arguments, decltype(&stamp_rectangle) stamp);
    DFBResult fill_alone(Arguments& arguments, decltype(&fill_ellipse_argb) fill);

    IDirectFB* dfb_;
    Numbered<Toolkit> toolkits_;
    Numbered<Pen> pens_;
    Numbered<Surface> surfaces_;
    std::deque<Surface> replaced_;  ///< Toolkits may still use them.
    std::size_t pixels_ = 0;        ///< How many have been made.
};

/// The surface that a call draws on, 0 for a call that draws nothing. Flip and Clear count as none.
std::uint32_t drawn_surface(const Call& call, Player& player);

} // namespace trace

#endif
