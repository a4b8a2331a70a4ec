#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace targets {

/// A number made of everything that is put in, in order: FNV-1a of 64 bits.
class Hash {
public:
    template <typename Value>
    void put(const Value& value)
    {
        unsigned char bytes[sizeof value];
        std::memcpy(bytes, &value, sizeof value);
        for (const unsigned char byte : bytes)
            sum_ = (sum_ ^ byte) * 0x100000001b3u;
    }

    std::uint64_t sum() const { return sum_; }

private:
    std::uint64_t sum_ = 0xcbf29ce484222325u;
};

} // namespace targets
