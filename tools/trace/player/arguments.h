#ifndef TOOLS_TRACE_PLAYER_ARGUMENTS_H
#define TOOLS_TRACE_PLAYER_ARGUMENTS_H

#include <optional>

#include <dtkhddvd.h>

#include "../call.h"

namespace trace {

using Box = std::optional<DFBRectangle>;

/// The arguments of a call, one after another.
class Arguments {
public:
    explicit Arguments(const Call& call) : next_(call.numbers.data()) {}

    std::uint32_t number() { return *next_++; }
    int integer() { return static_cast<int>(*next_++); }
    u8 byte() { return static_cast<u8>(*next_++); }

    DFBPoint point()
    {
        const int x = integer();
        return {x, integer()};
    }

    DFBColor color()
    {
        const std::uint32_t value = number();
        return {static_cast<u8>(value), static_cast<u8>(value >> 24), static_cast<u8>(value >> 16), static_cast<u8>(value >> 8)};
    }

    Box box()
    {
        if (!number())
            return std::nullopt;
        const DFBPoint origin = point(), size = point();
        return DFBRectangle{origin.x, origin.y, size.x, size.y};
    }

    std::optional<DTKHDDVDPenShape> shape()
    {
        if (!number())
            return std::nullopt;
        const DFBPoint a = point(), b = point(), c = point(), d = point();
        return DTKHDDVDPenShape{a.x, a.y, b.x, b.y, c.x, c.y, d.x, d.y};
    }

    /// NULL's points are none, whatever their number.
    struct Points {
        bool are_given;
        std::uint32_t count;
        std::vector<DFBPoint> points;

        const DFBPoint* get() const { return are_given ? points.data() : nullptr; }
    };

    Points points()
    {
        const bool are_given = number();
        Points result = {are_given, number(), {}};
        for (std::uint32_t i = 0; are_given && i < result.count; ++i)
            result.points.push_back(point());
        return result;
    }

private:
    const std::uint32_t* next_;
};

/// A pointer to what is there, or NULL.
template <typename Value>
const Value* pointer(const std::optional<Value>& value)
{
    return value ? &*value : nullptr;
}

} // namespace trace

#endif
