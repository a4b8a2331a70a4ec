/// Random numbers for tests.
#ifndef TESTS_PLATFORM_ACCEL_DICE_H
#define TESTS_PLATFORM_ACCEL_DICE_H

#include <directfb.h>

#include <cstdint>
#include <random>

namespace accel {

/// Numbers that are the same on every machine.
class Dice {
public:
    explicit Dice(unsigned int seed) : engine_(seed) {}

    /// From @p first to @p last, both included.
    int number(int first, int last)
    {
        const auto choices = static_cast<uint32_t>(last) - static_cast<uint32_t>(first) + 1;
        return static_cast<int>(static_cast<uint32_t>(first) + static_cast<uint32_t>(engine_()) % choices);
    }
    bool one_in(int chances) { return number(1, chances) == 1; }
    DFBRectangle rectangle(int width, int height);
    DFBRectangle rectangle_inside(int width, int height);
    DFBColor colour();

private:
    std::mt19937 engine_;
};

} // namespace accel

#endif
