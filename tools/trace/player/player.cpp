#include "player.h"

#include <algorithm>
#include <stdexcept>

namespace trace {

namespace {

/// What all surfaces of a trace may have, more than a program on a board could: 4 bytes each.
constexpr std::size_t most_pixels = std::size_t(1) << 28;

} // namespace

Player::Play Player::play_of(Number number)
{
    static constexpr Play plays[number_count] = {
        nullptr, &Player::do_nothing, &Player::declare_surface, nullptr, &Player::do_nothing, &Player::clear,
        &Player::do_nothing, nullptr, &Player::create, &Player::attach, &Player::detach, &Player::add_ref, &Player::release,
        &Player::set_stroke_color, &Player::set_fill_color, &Player::set_fill_pattern, &Player::create_pen, &Player::set_pen,
        &Player::line, &Player::rectangle, &Player::polygon, &Player::ellipse, &Player::pen_add_ref, &Player::pen_release,
        &Player::pen_get_size, &Player::pen_get_surface, &Player::pen_get_shape, &Player::compute_size, &Player::render_a8,
        &Player::render_lut8, &Player::stamp_along_line, &Player::stamp_along_rectangle, &Player::stamp_along_ellipse,
        &Player::fill_argb, &Player::fill_lut8, &Player::outline_argb,
    };
    return plays[static_cast<unsigned>(number)];
}

std::optional<DFBResult> Player::play(const Call& call)
{
    try {
        if (call.number() == Number::pixels)
            return set_pixels(call);
        Arguments arguments(call);
        return (this->*play_of(call.number()))(arguments);
    } catch (const Missing&) {
        return std::nullopt;
    }
}

Player::~Player()
{
    toolkits_.for_each([&](std::uint32_t, Toolkit& toolkit) {
        if (toolkit.toolkit)
            drop(toolkit);
    });
    pens_.for_each([](std::uint32_t, Pen& pen) {
        for (unsigned count = pen.references + pen.holders; count > 0; --count)
            pen.pen->Release(pen.pen);
    });
}

/// Gives back every reference, and what its life took from DirectFB: each attach takes one reference there, and the end
/// gives back one, whether or not one was taken.
void Player::drop(Toolkit& toolkit)
{
    if (toolkit.has_directfb && toolkit.attach_count == 0)
        dfb_->AddRef(dfb_);
    for (; toolkit.references > 0; --toolkit.references)
        toolkit.toolkit->Release(toolkit.toolkit);
    for (; toolkit.attach_count > 1; --toolkit.attach_count)
        dfb_->Release(dfb_);
    toolkit.toolkit = nullptr;
}

void Player::spend(int width, int height)
{
    pixels_ += static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (pixels_ > most_pixels)
        throw std::runtime_error("it makes more surfaces than there is memory for");
}

void Player::spend_pen(const DTKHDDVDPenShape& shape)
{
    const auto extent = [](std::initializer_list<int> numbers) {
        const auto [least, greatest] = std::minmax(numbers);
        return 1LL + greatest - least;
    };
    const long long width = extent({shape.x0, shape.x1, shape.x2, shape.x3});
    const long long height = extent({shape.y0, shape.y1, shape.y2, shape.y3});
    if (width > largest_side || height > largest_side)
        throw std::runtime_error("it has a pen of impossible size");
    spend(static_cast<int>(width), static_cast<int>(height));
}

/// Each attachment makes one.
void Player::spend_scratch_pad(const Toolkit& toolkit, std::uint32_t target)
{
    const Surface& surface = living_surface(target);
    if (toolkit.has_scratch_pad)
        spend(surface.width, surface.height);
}

Toolkit& Player::living_toolkit(std::uint32_t number)
{
    Toolkit& toolkit = toolkits_.at(number);
    if (number == 0 || toolkit.toolkit)
        return toolkit;
    if (toolkit.references == 0 && toolkit.has_ended)
        throw std::runtime_error("it uses a toolkit that it has given back");
    throw Missing();
}

Pen& Player::living_pen(std::uint32_t number)
{
    Pen& pen = pens_.at(number);
    if (number == 0 || pen.references + pen.holders > 0)
        return pen;
    if (pen.has_ended)
        throw std::runtime_error("it uses a pen that it has given back");
    throw Missing();
}

Surface& Player::living_surface(std::uint32_t number)
{
    Surface& surface = surfaces_.at(number);
    if (number != 0 && !surface.surface)
        throw Missing();
    return surface;
}

} // namespace trace
