#ifndef BOARD_COVERAGE_H
#define BOARD_COVERAGE_H

#include <algorithm>
#include <cstdint>
#include <vector>

namespace board {

/// The pixels of a target that a primitive covers, each of them once however often it is covered.
class Coverage {
public:
    Coverage(int columns, int rows) : width(columns), height(rows), bits_(index_of(0, rows)) {}

    /// Covers the pixels of a row from `left` up to `right`, without it. Both, and the row, may lie anywhere.
    void cover(int64_t row, int64_t left, int64_t right)
    {
        left = std::max<int64_t>(left, 0);
        right = std::min<int64_t>(right, width);
        if (row < 0 || row >= height || left >= right)
            return;
        std::fill(&bits_[index_of(left, row)], &bits_[index_of(right - 1, row)] + 1, uint8_t{1});
    }

    bool has(int x, int y) const { return bits_[index_of(x, y)]; }

    const int width, height;

private:
    std::size_t index_of(int64_t x, int64_t y) const { return static_cast<std::size_t>(y * width + x); }

    std::vector<uint8_t> bits_;
};

} // namespace board

#endif
