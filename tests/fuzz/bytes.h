#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace fuzz {

/// Reads the fuzzer's bytes as numbers. After the end there are only zeros.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    bool is_at_end() const { return position_ >= size_; }

    std::uint8_t byte() { return is_at_end() ? std::uint8_t(0) : data_[position_++]; }

    bool flag() { return byte() & 1; }

    /// A number from 0 up to, but without, `count`.
    unsigned below(unsigned count) { return byte() % count; }

    /// Any 32-bit number, the least byte first on every machine.
    int word()
    {
        std::uint32_t value = 0;
        for (unsigned shift = 0; shift < 32; shift += 8)
            value |= std::uint32_t(byte()) << shift;
        int number;
        std::memcpy(&number, &value, sizeof number);
        return number;
    }

    /// A coordinate: mostly one on or near a small surface, sometimes one where arithmetic ends, sometimes any.
    int coordinate()
    {
        static const int edges[] = {-2147483647 - 1, 2147483647, -2147483647, 2147483646, -1073741824, 1073741823,
                                    1073741824, -8388608, 8388607, 8388608, 67108864, -65536, 32768, 16384, -16385, 4096};
        const std::uint8_t choice = byte();
        if (choice < 224)
            return choice - 64;
        return choice < 240 ? edges[choice - 224] : word();
    }

private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t position_ = 0;
};

} // namespace fuzz
