#ifndef TOOLS_TRACE_DECODER_H
#define TOOLS_TRACE_DECODER_H

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace trace {

/// The file ends within a call: there the program was ended.
struct CutOff {};

/// Takes numbers from a file's bytes.
class Decoder {
public:
    Decoder(const std::vector<std::uint8_t>& bytes, std::size_t position) : bytes_(bytes), position_(position) {}

    std::size_t position() const { return position_; }
    bool is_at_end() const { return position_ >= bytes_.size(); }

    [[noreturn]] void fail(const std::string& what) const
    {
        throw std::runtime_error("the trace is damaged at byte " + std::to_string(position_) + ": " + what);
    }

    std::uint8_t byte()
    {
        if (is_at_end())
            throw CutOff();
        return bytes_[position_++];
    }

    std::uint32_t natural()
    {
        std::uint64_t value = 0;
        for (unsigned shift = 0; shift < 35; shift += 7) {
            const std::uint64_t part = byte();
            value |= (part & 0x7f) << shift;
            if (part > 0x7f)
                continue;
            if (value > 0xffffffff || (part == 0 && shift > 0))
                break;
            return static_cast<std::uint32_t>(value);
        }
        fail("no number");
    }

    std::uint32_t integer()
    {
        const std::uint32_t value = natural();
        return value >> 1 ^ (value & 1 ? ~0u : 0u);
    }

    std::uint32_t word()
    {
        std::uint32_t value = 0;
        for (unsigned shift = 0; shift < 32; shift += 8)
            value |= static_cast<std::uint32_t>(byte()) << shift;
        return value;
    }

    std::uint32_t flag()
    {
        const std::uint8_t value = byte();
        if (value > 1)
            fail("neither yes nor no");
        return value;
    }

    void append_bytes(std::vector<std::uint8_t>& result, std::size_t count)
    {
        if (count > bytes_.size() - position_)
            throw CutOff();
        const auto start = bytes_.begin() + static_cast<std::ptrdiff_t>(position_);
        result.insert(result.end(), start, start + static_cast<std::ptrdiff_t>(count));
        position_ += count;
    }

private:
    const std::vector<std::uint8_t>& bytes_;
    std::size_t position_;
};

} // namespace trace

#endif
