#include "call.h"

#include <algorithm>
#include <stdexcept>

#include "decoder.h"
#include "encoder.h"

namespace trace {

namespace {

/// Reads the arguments of one call.
class Arguments {
public:
    Arguments(Decoder& decoder, Place& place, std::size_t& room, Call& call)
        : decoder_(decoder), place_(place), room_(room), call_(call)
    {
    }

    void take(char kind)
    {
        switch (kind) {
        case kind::byte:
            return add(decoder_.byte());
        case kind::directfb:
            return add(decoder_.flag());
        case kind::word:
        case kind::format:
        case kind::color:
            return add(decoder_.word());
        case kind::point:
            return take_point();
        case kind::box:
            return take_box();
        case kind::shape:
            return take_shape();
        case kind::points:
            return take_points();
        case kind::picture:
            return take_picture();
        default:
            return add(decoder_.natural());
        }
    }

private:
    void add(std::uint32_t number) { call_.numbers.push_back(number); }

    bool is_given()
    {
        add(decoder_.flag());
        return call_.numbers.back();
    }

    void take_point()
    {
        place_.x += decoder_.integer();
        place_.y += decoder_.integer();
        add(place_.x);
        add(place_.y);
    }

    void take_box()
    {
        if (!is_given())
            return;
        take_point();
        add(decoder_.integer());
        add(decoder_.integer());
    }

    void take_shape()
    {
        if (!is_given())
            return;
        for (int i = 0; i < 8; ++i)
            add(decoder_.integer());
    }

    void take_points()
    {
        const bool has_points = is_given();
        const std::uint32_t count = decoder_.natural();
        add(count);
        for (std::uint32_t i = 0; has_points && i < count; ++i)
            take_point();
    }

    void take_picture()
    {
        Picture& picture = call_.picture;
        picture.width = decoder_.natural();
        picture.height = decoder_.natural();
        picture.pixel_size = decoder_.byte();
        if (picture.width > largest_side || picture.height > largest_side || !picture.pixel_size || picture.pixel_size > 4)
            decoder_.fail("no size of a picture");
        const std::size_t size = std::size_t(picture.width) * picture.height * picture.pixel_size;
        if (size > room_)
            decoder_.fail("more pictures than memory");
        take_runs(size);
        room_ -= size;
    }

    void take_runs(std::size_t size)
    {
        Picture& picture = call_.picture;
        while (picture.bytes.size() < size) {
            const std::uint32_t head = decoder_.natural();
            const std::size_t count = head / 2;
            if (count == 0 || count > (size - picture.bytes.size()) / picture.pixel_size)
                decoder_.fail("no run of pixels");
            if (head % 2)
                decoder_.append_bytes(picture.bytes, count * picture.pixel_size);
            else
                repeat(count);
        }
    }

    void repeat(std::size_t count)
    {
        std::vector<std::uint8_t> pixel;
        decoder_.append_bytes(pixel, call_.picture.pixel_size);
        for (; count > 0; --count)
            call_.picture.bytes.insert(call_.picture.bytes.end(), pixel.begin(), pixel.end());
    }

    Decoder& decoder_;
    Place& place_;
    std::size_t& room_;
    Call& call_;
};

/// Reads up to the end, or throws CutOff.
void take_calls(Decoder& decoder, Trace& trace)
{
    Place place;
    std::size_t room = most_picture_bytes;
    while (const std::uint8_t code = decoder.byte()) {
        if (!is_code(code))
            decoder.fail("no call has the number " + std::to_string(code));
        if (number_of(code) == Number::end) {
            trace.is_complete = true;
            return;
        }
        Call call = {code, {}, {}, decoder.position() - 1};
        Arguments arguments(decoder, place, room, call);
        for (const char* kind = call.function().signature; *kind; ++kind)
            arguments.take(*kind);
        trace.calls.push_back(std::move(call));
    }
}

void require_header(const std::vector<std::uint8_t>& bytes)
{
    if (bytes.empty())
        throw std::runtime_error("the trace is empty: the program made no call of the toolkit");
    if (bytes.size() < header_size || !std::equal(std::begin(magic), std::end(magic), bytes.begin()))
        throw std::runtime_error("this is no trace");
    if (bytes[sizeof magic] != version)
        throw std::runtime_error("the trace has version " + std::to_string(bytes[sizeof magic]) + ", and only version " +
                                 std::to_string(version) + " can be read");
}

/// A program that was killed leaves the zeros that its file was prepared with.
void require_nothing_behind(const Decoder& decoder, const std::vector<std::uint8_t>& bytes, bool is_complete)
{
    const auto rest = bytes.begin() + static_cast<std::ptrdiff_t>(decoder.position());
    const bool is_fine = is_complete ? rest == bytes.end() : std::all_of(rest, bytes.end(), [](auto byte) { return byte == 0; });
    if (!is_fine)
        decoder.fail("something stands behind its end");
}

} // namespace

Trace decode(const std::vector<std::uint8_t>& bytes)
{
    require_header(bytes);
    Trace trace;
    Decoder decoder(bytes, header_size);
    try {
        take_calls(decoder, trace);
        require_nothing_behind(decoder, bytes, trace.is_complete);
    } catch (const CutOff&) {
    }
    return trace;
}

} // namespace trace
