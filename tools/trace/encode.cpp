#include "call.h"

#include <algorithm>

#include "encoder.h"

namespace trace {

namespace {

/// Puts the arguments of a call one after another.
class Arguments {
public:
    Arguments(const Call& call, Encoder& encoder) : call_(call), next_(call.numbers.data()), encoder_(encoder) {}

    void put(char kind)
    {
        switch (kind) {
        case kind::byte:
        case kind::directfb:
            return encoder_.byte(*next_++);
        case kind::word:
        case kind::format:
        case kind::color:
            return encoder_.word(*next_++);
        case kind::point:
            return put_point();
        case kind::box:
            return put_box();
        case kind::shape:
            return put_optional(8);
        case kind::points:
            return put_points();
        case kind::picture:
            return put_size();
        default:
            return encoder_.natural(*next_++);
        }
    }

private:
    void put_point()
    {
        encoder_.point(next_[0], next_[1]);
        next_ += 2;
    }

    void put_box()
    {
        encoder_.byte(*next_);
        if (!*next_++)
            return;
        put_point();
        put_integers(2);
    }

    void put_integers(int count)
    {
        for (; count > 0; --count)
            encoder_.integer(*next_++);
    }

    void put_optional(int count)
    {
        encoder_.byte(*next_);
        if (*next_++)
            put_integers(count);
    }

    void put_points()
    {
        const std::uint32_t is_given = *next_++, count = *next_++;
        encoder_.byte(is_given);
        encoder_.natural(count);
        for (std::uint32_t i = 0; is_given && i < count; ++i)
            put_point();
    }

    /// The runs follow.
    void put_size()
    {
        encoder_.natural(call_.picture.width);
        encoder_.natural(call_.picture.height);
        encoder_.byte(call_.picture.pixel_size);
    }

    const Call& call_;
    const std::uint32_t* next_;
    Encoder& encoder_;
};

void append(std::vector<std::uint8_t>& bytes, const Call& call, Place& place)
{
    const std::size_t size = bytes.size();
    bytes.resize(size + most_call + call.numbers.size() * most_natural);
    Encoder encoder(bytes.data() + size, place);
    encoder.byte(call.code);
    Arguments arguments(call, encoder);
    for (const char* kind = call.function().signature; *kind; ++kind)
        arguments.put(*kind);
    bytes.resize(static_cast<std::size_t>(encoder.position() - bytes.data()));
    if (call.number() == Number::pixels)
        append_runs(bytes, call.picture);
}

} // namespace

std::vector<std::uint8_t> encode(const Trace& trace)
{
    std::vector<std::uint8_t> bytes(std::begin(magic), std::end(magic));
    bytes.push_back(version);
    Place place;
    for (const Call& call : trace.calls)
        append(bytes, call, place);
    if (trace.is_complete)
        bytes.push_back(code_of(Number::end, Form::plain));
    return bytes;
}

} // namespace trace
