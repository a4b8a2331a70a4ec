#pragma once

#include "stage.h"

namespace conformance {

/// How far two pictures of one size are from each other.
struct Difference {
    int count = 0;          ///< The pixels that differ by more than is allowed.
    std::size_t first = 0;  ///< The index of the first one.

    explicit operator bool() const { return count > 0; }
};

/// By how much the colours of two pixels differ, at the most of red, green and blue.
int distance(u32 one, u32 other);

/// Compares colours without alpha; a channel may differ by `allowed`.
Difference compare(const Picture& expected, const Picture& drawn, int allowed);

/// The pixels that have another value than the background.
std::vector<bool> coverage(const Picture& picture, u32 background);

} // namespace conformance
