#include "surfaces.h"

#include <cstring>
#include <unordered_map>
#include <vector>

#include "../runs.h"

namespace recorder {

namespace {

struct Description {
    int width = 0, height = 0;
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    DFBSurfaceCapabilities capabilities = DSCAPS_NONE;

    bool operator==(const Description& other) const
    {
        return width == other.width && height == other.height && format == other.format && capabilities == other.capabilities;
    }
};

/// What the trace says of each surface. In a turn alone.
struct Known {
    Description description;
    trace::Picture picture;
};

std::unordered_map<std::uint32_t, Known>& known_surfaces()
{
    static auto* all = new std::unordered_map<std::uint32_t, Known>;
    return *all;
}

Description description_of(IDirectFBSurface* surface)
{
    Description result;
    surface->GetSize(surface, &result.width, &result.height);
    surface->GetPixelFormat(surface, &result.format);
    surface->GetCapabilities(surface, &result.capabilities);
    return result;
}

void append(std::uint32_t number, const Description& description)
{
    State& all = state();
    all.file.append(trace::most_call, trace::code_of(Number::surface, Form::plain), [&](Encoder& encoder) {
        encoder.natural(number);
        encoder.natural(bits(description.width));
        encoder.natural(bits(description.height));
        encoder.word(static_cast<std::uint32_t>(description.format));
        encoder.word(static_cast<std::uint32_t>(description.capabilities));
    });
    ++all.call_count;
}

void append(std::uint32_t number, const trace::Picture& picture)
{
    std::vector<std::uint8_t> runs;
    append_runs(runs, picture);
    State& all = state();
    all.file.append(trace::most_call + runs.size(), trace::code_of(Number::pixels, Form::plain), [&](Encoder& encoder) {
        encoder.natural(number);
        encoder.natural(picture.width);
        encoder.natural(picture.height);
        encoder.byte(picture.pixel_size);
        for (const std::uint8_t byte : runs)
            encoder.byte(byte);
    });
    ++all.call_count;
}

bool has_whole_bytes(DFBSurfacePixelFormat format)
{
    return !DFB_PLANAR_PIXELFORMAT(format) && DFB_BITS_PER_PIXEL(format) % 8 == 0 && DFB_BYTES_PER_PIXEL(format) > 0;
}

/// The pixels, or none where the surface has none of whole bytes or is locked.
trace::Picture picture_of(IDirectFBSurface* surface, const Description& description)
{
    trace::Picture picture;
    void* pixels = nullptr;
    int pitch = 0;
    if (!has_whole_bytes(description.format) || surface->Lock(surface, DSLF_READ, &pixels, &pitch))
        return picture;
    picture.width = bits(description.width);
    picture.height = bits(description.height);
    picture.pixel_size = static_cast<std::uint8_t>(DFB_BYTES_PER_PIXEL(description.format));
    const std::size_t row = std::size_t(picture.width) * picture.pixel_size;
    picture.bytes.resize(row * picture.height);
    for (std::size_t y = 0; y < picture.height; ++y)
        std::memcpy(picture.bytes.data() + y * row, static_cast<char*>(pixels) + static_cast<std::ptrdiff_t>(y) * pitch, row);
    surface->Unlock(surface);
    return picture;
}

/// Whether all pixels of a surface of four bytes a pixel are equal, which are then written to @p ret_pixel.
bool is_of_one_color(IDirectFBSurface* surface, const Description& description, std::uint32_t& ret_pixel)
{
    void* pixels = nullptr;
    int pitch = 0;
    if (DFB_BYTES_PER_PIXEL(description.format) != 4 ||
        surface->Lock(surface, static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE), &pixels, &pitch))
        return false;
    const auto* first = static_cast<const char*>(pixels);
    const std::size_t row = std::size_t(4) * bits(description.width);
    bool result = std::memcmp(first, first + 4, row - 4) == 0;
    for (int y = 1; result && y < description.height; ++y)
        result = std::memcmp(first, first + static_cast<std::ptrdiff_t>(y) * pitch, row) == 0;
    std::memcpy(&ret_pixel, first, 4);
    surface->Unlock(surface);
    return result;
}

std::uint32_t name(IDirectFBSurface* surface)
{
    Names& names = state().surfaces;
    if (const std::uint32_t number = names.of(surface))
        return number;
    const std::uint32_t number = names.next();
    names.name(surface, number);
    return number;
}

void update(std::uint32_t number, const Description& description)
{
    Known& known = known_surfaces()[number];
    if (known.description == description)
        return;
    known = {description, {}};
    append(number, description);
}

} // namespace

/// The player makes it in the same way, so its description and its pixels stay out of the trace.
void name_picture(IDirectFBSurface* surface, std::uint32_t number)
{
    if (!surface)
        return;
    const Description description = description_of(surface);
    trace::Picture picture = picture_of(surface, description);
    const Turn turn;
    state().surfaces.name(surface, number);
    known_surfaces()[number] = {description, std::move(picture)};
}

void describe(IDirectFBSurface* surface)
{
    if (!surface)
        return;
    const Description description = description_of(surface);
    const Turn turn;
    update(name(surface), description);
}

void describe_target(IDirectFBSurface* surface)
{
    describe(surface);
    std::uint32_t pixel;
    if (!surface || !is_of_one_color(surface, description_of(surface), pixel))
        return;
    record(Number::clear, Form::plain, trace::most_call, [&](Encoder& encoder) {
        encoder.natural(state().surfaces.of(surface));
        encoder.word(pixel << 8 | pixel >> 24);
    });
}

void take_picture(IDirectFBSurface* surface)
{
    if (!surface)
        return;
    const Description description = description_of(surface);
    trace::Picture picture = picture_of(surface, description);
    const Turn turn;
    const std::uint32_t number = name(surface);
    update(number, description);
    Known& known = known_surfaces()[number];
    if (picture.pixel_size == 0 || known.picture == picture)
        return;
    append(number, picture);
    known.picture = std::move(picture);
}

} // namespace recorder
