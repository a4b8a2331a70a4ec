#pragma once

#include <random>

namespace real {

/// A source of numbers that is the same on every machine.
class Random {
public:
    explicit Random(unsigned int seed) : engine_(seed) {}

    /// A whole number from `low` to `high`, both included.
    int between(int low, int high)
    {
        return low + static_cast<int>(engine_() % static_cast<unsigned int>(high - low + 1));
    }

    bool coin() { return between(0, 1) == 1; }

private:
    std::mt19937 engine_;
};

} // namespace real
