#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "../formats.h"
#include "player.h"

/// Surfaces, toolkits and pens: how they are made, counted and given back.
namespace trace {

namespace {

DFBSurfacePixelFormat known_format(std::uint32_t number)
{
    std::uint32_t format;
    if (!read_format(name_of_format(number), format))
        throw std::runtime_error("it has a surface of an unknown pixel format");
    return static_cast<DFBSurfacePixelFormat>(format);
}

} // namespace

DFBResult Player::declare_surface(Arguments& arguments)
{
    const std::uint32_t number = arguments.number();
    Surface& surface = surfaces_.add(number);
    const std::uint32_t width = arguments.number(), height = arguments.number();
    if (number == 0 || width == 0 || height == 0 || width > largest_side || height > largest_side)
        throw std::runtime_error("it has a surface of impossible size");
    const DFBSurfacePixelFormat format = known_format(arguments.number());
    const int w = static_cast<int>(width), h = static_cast<int>(height);
    spend(w, h);
    if (surface.surface)
        replaced_.push_back(std::move(surface));
    surface = {tools::create_surface(dfb_, w, h, format), w, h, format};
    surface.surface->Clear(surface.surface.get(), 0, 0, 0, 0);
    reattach(number);
    return DFB_OK;
}

/// A window that changes its size is a new surface here, and the toolkits on it go along.
void Player::reattach(std::uint32_t target)
{
    toolkits_.for_each([&](std::uint32_t, Toolkit& toolkit) {
        if (!toolkit.toolkit || toolkit.target != target)
            return;
        spend_scratch_pad(toolkit, target);
        DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.toolkit);
        if (!AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.toolkit, surfaces_.at(target).surface.get()))
            note_attachment(toolkit, target);
    });
}

DFBResult Player::set_pixels(const Call& call)
{
    Surface& surface = living_surface(call.numbers[0]);
    const Picture& picture = call.picture;
    if (!surface.surface)
        throw Missing();
    if (picture.width != static_cast<std::uint32_t>(surface.width) || picture.height != static_cast<std::uint32_t>(surface.height) ||
        picture.pixel_size != DFB_BYTES_PER_PIXEL(surface.format))
        throw std::runtime_error("it has a picture of another size than its surface");
    void* pixels = nullptr;
    int pitch = 0;
    tools::check(surface.surface->Lock(surface.surface.get(), DSLF_WRITE, &pixels, &pitch), "cannot write a texture");
    const std::size_t row = std::size_t(picture.width) * picture.pixel_size;
    for (std::size_t y = 0; y < picture.height; ++y)
        std::memcpy(static_cast<char*>(pixels) + static_cast<std::ptrdiff_t>(y) * pitch, picture.bytes.data() + y * row, row);
    return surface.surface->Unlock(surface.surface.get());
}

DFBResult Player::clear(Arguments& arguments)
{
    IDirectFBSurface* surface = living_surface(arguments.number()).surface.get();
    const DFBColor color = arguments.color();
    return surface ? surface->Clear(surface, color.r, color.g, color.b, color.a) : DFB_THIZNULL;
}

DFBResult Player::create(Arguments& arguments)
{
    IDirectFB* dfb = arguments.number() ? dfb_ : nullptr;
    const std::uint32_t target = arguments.number();
    const u8 use_scratch_pad = arguments.byte();
    const std::uint32_t number = arguments.number();
    Toolkit& toolkit = toolkits_.add(number);
    if (toolkit.toolkit || toolkit.has_ended)
        throw std::runtime_error("it makes a toolkit twice");
    toolkit.has_directfb = dfb != nullptr;
    toolkit.has_scratch_pad = use_scratch_pad;
    spend_scratch_pad(toolkit, target);

    // Most failures give back a reference that they have not taken.
    dfb_->AddRef(dfb_);
    const DFBResult result = CreateDrawingToolkit_HDDVD(dfb, living_surface(target).surface.get(), use_scratch_pad,
                                                        number ? &toolkit.toolkit : nullptr);
    if (!result || !dfb || result == DTKHDDVD_INVARG || result == DTKHDDVD_INIT)
        dfb_->Release(dfb_);
    if (result)
        return result;
    toolkit.references = 1;
    if (target)
        note_attachment(toolkit, target);
    return result;
}

void Player::note_attachment(Toolkit& toolkit, std::uint32_t target)
{
    ++toolkit.attach_count;
    toolkit.target = target;
}

DFBResult Player::attach(Arguments& arguments)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    const std::uint32_t target = arguments.number();
    spend_scratch_pad(toolkit, target);
    const DFBResult result = AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.toolkit, living_surface(target).surface.get());
    if (!result)
        note_attachment(toolkit, target);
    return result;
}

DFBResult Player::detach(Arguments& arguments)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    toolkit.target = 0;
    return DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.toolkit);
}

DFBResult Player::add_ref(Arguments& arguments)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    toolkit.references += toolkit.toolkit != nullptr;
    return DTKHDDVD_AddRef(toolkit.toolkit);
}

DFBResult Player::release(Arguments& arguments)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    if (!toolkit.toolkit || toolkit.references > 1) {
        toolkit.references -= toolkit.toolkit != nullptr;
        return DTKHDDVD_Release(toolkit.toolkit);
    }
    drop(toolkit);
    toolkit.has_ended = true;
    return DFB_OK;
}

DFBResult Player::create_pen(Arguments& arguments)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    const auto shape = arguments.shape();
    const std::uint32_t number = arguments.number();
    Pen& pen = pens_.add(number);
    if (pen.pen || pen.has_ended)
        throw std::runtime_error("it makes a pen twice");
    if (shape)
        spend_pen(*shape);
    const DFBResult result = DTKHDDVD_CreatePen(toolkit.toolkit, pointer(shape), number ? &pen.pen : nullptr);
    if (result)
        return result;
    pen.shape = *shape;
    pen.references = 1;
    return result;
}

/// The toolkit gives back the pen before it takes a reference on the new one, which may be the same.
DFBResult Player::set_pen(Arguments& arguments)
{
    Toolkit& toolkit = living_toolkit(arguments.number());
    const std::uint32_t number = arguments.number();
    Pen& pen = living_pen(number);
    if (!toolkit.toolkit)
        return DTKHDDVD_SetPen(nullptr, pen.pen);
    if (number && number == toolkit.pen && pen.references + pen.holders == 1)
        throw std::runtime_error("it sets a pen again whose only reference is the toolkit's");
    if (toolkit.pen) {
        Pen& before = pens_.at(toolkit.pen);
        --before.holders;
        before.has_ended = before.references + before.holders == 0;
    }
    toolkit.pen = number;
    pen.holders += number != 0;
    return DTKHDDVD_SetPen(toolkit.toolkit, pen.pen);
}

DFBResult Player::pen_add_ref(Arguments& arguments)
{
    Pen& pen = living_pen(arguments.number());
    pen.references += pen.pen != nullptr;
    return DTKHDDVDPen_AddRef(pen.pen);
}

DFBResult Player::pen_release(Arguments& arguments)
{
    Pen& pen = living_pen(arguments.number());
    if (!pen.pen)
        return DTKHDDVDPen_Release(nullptr);
    if (pen.references == 0)
        throw std::runtime_error("it gives back a pen that it has given back");
    --pen.references;
    pen.has_ended = pen.references + pen.holders == 0;
    return DTKHDDVDPen_Release(pen.pen);
}

} // namespace trace
