#ifndef TOOLS_TRACE_ENCODER_H
#define TOOLS_TRACE_ENCODER_H

#include <cstdint>

namespace trace {

/// The file begins with these bytes and the version.
constexpr char magic[8] = {'d', 't', 'k', 't', 'r', 'a', 'c', 'e'};
constexpr std::uint8_t version = 1;
constexpr std::size_t header_size = sizeof magic + 1;

/// The point that was encoded last; the next one is told as its distance. Numbers wrap around, so any distance fits.
struct Place {
    std::uint32_t x = 0, y = 0;
};

/// Puts the arguments of a call into memory that has room for them.
class Encoder {
public:
    Encoder(std::uint8_t* position, Place& place) : position_(position), place_(place) {}

    std::uint8_t* position() const { return position_; }

    void byte(unsigned value) { *position_++ = static_cast<std::uint8_t>(value); }

    /// Seven bits a byte, the lowest first; all but the last have the eighth bit set.
    void natural(std::uint32_t value)
    {
        for (; value > 0x7f; value >>= 7)
            byte(value | 0x80);
        byte(value);
    }

    /// Small numbers of either sign are short: 0, -1, 1, -2, ...
    void integer(std::uint32_t value) { natural(value << 1 ^ (value >> 31 ? ~0u : 0u)); }

    /// Four bytes, the lowest first.
    void word(std::uint32_t value)
    {
        for (unsigned shift = 0; shift < 32; shift += 8)
            byte(value >> shift);
    }

    void point(std::uint32_t x, std::uint32_t y)
    {
        integer(x - place_.x);
        integer(y - place_.y);
        place_ = {x, y};
    }

private:
    std::uint8_t* position_;
    Place& place_;
};

/// The most bytes that a number, a point, and any call without points and pictures take.
constexpr std::size_t most_natural = 5, most_point = 2 * most_natural, most_call = 128;

} // namespace trace

#endif
