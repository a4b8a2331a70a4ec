#include "tiles.h"

#include <algorithm>
#include <cstring>

namespace zuvo {
namespace {

/// A small pattern is repeated until its rows are long enough to be worth a call each.
const int wide_width = 128;
const int wide_words = 64 * wide_width;

/// The copy of a small pattern and what it was made from.
struct WidePattern {
    Extent size;
    bool is_prepared;
    bool is_opaque;
    uint32_t originals[wide_words / 2];
    uint32_t pixels[wide_words];
    uint32_t rests[wide_words];
};

WidePattern wide;

/// Where a row begins in words that hold rows of @p width.
size_t row_index(int row, int width)
{
    return static_cast<size_t>(row) * static_cast<size_t>(width);
}

uint32_t* original_row(int row)
{
    return wide.originals + row_index(row, wide.size.width);
}

size_t row_bytes()
{
    return static_cast<size_t>(wide.size.width) * sizeof(uint32_t);
}

bool is_copy_of(const Pixels& pattern, bool is_prepared)
{
    const Extent& size = pattern.extent;
    if (wide.size.width != size.width || wide.size.height != size.height || wide.is_prepared != is_prepared)
        return false;
    for (int row = 0; row < size.height; ++row) {
        if (std::memcmp(original_row(row), pattern.row(row), row_bytes()))
            return false;
    }
    return true;
}

void take_originals(const Pixels& pattern)
{
    wide.size = pattern.extent;
    uint32_t common = 0xffffffff;
    for (int row = 0; row < wide.size.height; ++row) {
        std::memcpy(original_row(row), pattern.row(row), row_bytes());
        for (int x = 0; x < wide.size.width; ++x)
            common &= pattern.row(row)[x];
    }
    wide.is_opaque = common >> 24 == 0xff;
}

/// Repeats the first @p period pixels of a row.
void repeat(uint32_t* row, int period, int width)
{
    for (int filled = period; filled < width;) {
        const int copied = std::min(filled, width - filled);
        std::memcpy(row + filled, row, static_cast<size_t>(copied) * sizeof(*row));
        filled += copied;
    }
}

void widen(bool is_prepared, int width)
{
    wide.is_prepared = is_prepared;
    for (int row = 0; row < wide.size.height; ++row) {
        uint32_t* const pixels = wide.pixels + row_index(row, width);
        uint32_t* const rests = wide.rests + row_index(row, width);
        if (is_prepared) {
            choose_rows()->prepare_blend(pixels, rests, original_row(row), static_cast<size_t>(wide.size.width));
            repeat(rests, wide.size.width, width);
        } else {
            std::memcpy(pixels, original_row(row), row_bytes());
        }
        repeat(pixels, wide.size.width, width);
    }
}

/// The column or row of a picture that begins at @p start and is repeated all over where the target begins.
int at_origin(int start, int period)
{
    const int64_t rest = -int64_t(start) % period;
    return static_cast<int>(rest < 0 ? rest + period : rest);
}

Tiles place(const Pixels& picture, int x, int y)
{
    const Extent& size = picture.extent;
    return {picture, nullptr, at_origin(x, size.width), at_origin(y, size.height), false};
}

} // namespace

Tiles make_tiles(const Pixels& pattern, int x, int y, bool is_prepared)
{
    const Extent size = pattern.extent;
    const int copies = std::min(wide_width, wide_words / size.height) / size.width;
    if (copies < 2)
        return place(pattern, x, y);

    const int width = copies * size.width;
    if (!is_copy_of(pattern, is_prepared)) {
        take_originals(pattern);
        widen(is_prepared, width);
    }
    Tiles tiles = place({wide.pixels, static_cast<size_t>(width), {width, size.height}, pattern.has_alpha}, x, y);
    tiles.rests = is_prepared ? wide.rests : nullptr;
    tiles.is_opaque = wide.is_opaque && pattern.has_alpha;
    return tiles;
}

} // namespace zuvo
