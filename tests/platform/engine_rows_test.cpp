// The row functions and the painters of patterns, held against the plain arithmetic of one pixel.
#include "pixels/rows.h"
#include "engine/paint/painter.h"

#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

using Words = std::vector<uint32_t>;

const uint32_t guard = 0xdeadbeef;

uint32_t over(uint32_t source, uint32_t target)
{
    const uint32_t alpha = source >> 24;
    uint32_t pixel = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const uint32_t from = source >> shift & 0xff, onto = target >> shift & 0xff;
        const uint32_t channel = ((alpha + 1) * from >> 8) + ((256 - alpha) * onto >> 8);
        pixel |= (channel & 0xff) << shift;
    }
    return pixel;
}

uint32_t over_rgb32(uint32_t source, uint32_t target)
{
    const int steps = static_cast<int>(source >> 24 >> 1) + 1;
    uint32_t pixel = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const int from = static_cast<int>(source >> shift & 0xff), onto = static_cast<int>(target >> shift & 0xff);
        pixel |= static_cast<uint32_t>((onto + ((from - onto) * steps >> 7)) & 0xff) << shift;
    }
    return pixel;
}

/// Colours of which many are transparent and many opaque.
uint32_t random_pixel(std::mt19937& random)
{
    const uint32_t pixel = static_cast<uint32_t>(random());
    return random() % 3 == 0 ? pixel | 0xff000000u : random() % 3 == 0 ? pixel & 0x00ffffffu : pixel;
}

Words random_words(std::mt19937& random, std::size_t count)
{
    Words words(count);
    for (uint32_t& word : words)
        word = random_pixel(random);
    return words;
}

std::vector<const Rows*> all_rows()
{
    std::vector<const Rows*> rows = {&baseline_rows};
    if (choose_rows() != &baseline_rows)
        rows.push_back(choose_rows());
    return rows;
}

/// A row function as one that writes a target from a source of equal length.
using WriteRow = std::function<void(const Rows& rows, uint32_t* target, const uint32_t* source, std::size_t count)>;
using Pixel = uint32_t (*)(uint32_t source, uint32_t target);

void expect_plain_row(const WriteRow& write, Pixel plain, bool has_one_colour)
{
    std::mt19937 random(11);
    for (int i = 0; i < 4000; ++i) {
        const std::size_t count = random() % (i % 2 ? 40 : 200), start = 1 + random() % 9;
        Words source = random_words(random, count + 1);
        if (has_one_colour)
            source.assign(count + 1, source[0]);
        const Words before = random_words(random, count);
        Words expected(count + start + 9, guard);
        for (std::size_t x = 0; x < count; ++x)
            expected[start + x] = plain(source[x], before[x]);
        for (const Rows* rows : all_rows()) {
            Words target(count + start + 9, guard);
            std::copy(before.begin(), before.end(), target.begin() + static_cast<std::ptrdiff_t>(start));
            write(*rows, target.data() + start, source.data(), count);
            ASSERT_EQ(target, expected) << count;
        }
    }
}

TEST(EngineRows, FillStoresOneColour)
{
    expect_plain_row([](const Rows& rows, uint32_t* target, const uint32_t* source,
                        std::size_t count) { rows.fill(target, source[0], count); },
                     [](uint32_t source, uint32_t) { return source; }, true);
}

TEST(EngineRows, BlendsAreThoseOfSinglePixels)
{
    expect_plain_row([](const Rows& rows, uint32_t* target, const uint32_t* source,
                        std::size_t count) { rows.blend(target, source, count); },
                     over, false);
    expect_plain_row([](const Rows& rows, uint32_t* target, const uint32_t* source,
                        std::size_t count) { rows.blend_rgb32(target, source, count); },
                     over_rgb32, false);
    expect_plain_row([](const Rows& rows, uint32_t* target, const uint32_t* source,
                        std::size_t count) { rows.blend_colour(target, source[0], count); },
                     over, true);
}

TEST(EngineRows, PreparedBlendIsTheSameBlend)
{
    expect_plain_row(
        [](const Rows& rows, uint32_t* target, const uint32_t* source, std::size_t count) {
            Words scaled(count), rests(count);
            rows.prepare_blend(scaled.data(), rests.data(), source, count);
            rows.blend_prepared(target, scaled.data(), rests.data(), count);
        },
        over, false);
}

TEST(EngineRows, SpansAreWrittenRowByRow)
{
    std::mt19937 random(12);
    const std::size_t width = 90, count = 7;
    for (int i = 0; i < 4000; ++i) {
        const std::size_t step = random() % 3, parts = 1 + random() % 2;
        std::vector<RowSpan> spans;
        for (std::size_t j = 0; j < parts + step * (count - 1); ++j)
            spans.push_back({static_cast<int>(random() % width), static_cast<int>(random() % (width + 1))});
        const uint32_t colour = random_pixel(random);
        const Words before = random_words(random, width * count);
        for (const Rows* rows : all_rows()) {
            Words stored = before, blended = before, plain_stored = before, plain_blended = before;
            const RowSpans on_stored = {stored.data(), width * 4, spans.data(), step, count, parts};
            const RowSpans on_blended = {blended.data(), width * 4, spans.data(), step, count, parts};
            rows->fill_spans(&on_stored, colour);
            rows->blend_colour_spans(&on_blended, colour);
            for (std::size_t j = 0; j < count * parts; ++j) {
                const RowSpan& span = spans[step * (j / parts) + j % parts];
                for (int x = span.left; x < span.right; ++x) {
                    const std::size_t at = j / parts * width + static_cast<std::size_t>(x);
                    plain_stored[at] = colour;
                    plain_blended[at] = over(colour, plain_blended[at]);
                }
            }
            ASSERT_EQ(stored, plain_stored);
            ASSERT_EQ(blended, plain_blended);
        }
    }
}

zuvo::Pixels pixels_of(Words& words, int width, int height, bool has_alpha)
{
    return {words.data(), static_cast<std::size_t>(width), {width, height}, has_alpha};
}

/// A kept copy of a pattern must not outlive a change of the pattern, of its size or of what it is prepared for.
TEST(EngineRows, PatternsAreThePlainRepetitionOfTheirPixels)
{
    std::mt19937 random(13);
    const int width = 150, height = 20;
    int pattern_width = 1, pattern_height = 1;
    Words pattern(1);
    for (int i = 0; i < 6000; ++i) {
        if (i % 3 == 0) {
            pattern_width = 1 + static_cast<int>(random() % (i % 2 ? 16 : 90));
            pattern_height = 1 + static_cast<int>(random() % 30);
            pattern = random_words(random, static_cast<std::size_t>(pattern_width * pattern_height));
            if (random() % 3 == 0) {
                for (uint32_t& pixel : pattern)
                    pixel |= 0xff000000u;
            }
        } else if (i % 3 == 1) {
            pattern[random() % pattern.size()] = random_pixel(random);
        }
        const bool blend = random() % 4, target_alpha = random() % 4, pattern_alpha = random() % 4;
        const int x = static_cast<int>(random() % 99) - 49, y = static_cast<int>(random() % 99) - 49;
        Words target = random_words(random, static_cast<std::size_t>(width * height)), expected = target;

        zuvo::Painter painter = zuvo::paint_pattern(pixels_of(target, width, height, target_alpha),
                                                    pixels_of(pattern, pattern_width, pattern_height, pattern_alpha), x,
                                                    y, blend);
        const zuvo::Span span = {3, 147};
        painter.take_rows(painter, {0, height, &span, 0});

        for (int row = 0; row < height; ++row) {
            for (int column = span.left; column < span.right; ++column) {
                const int from_x = ((column - x) % pattern_width + pattern_width) % pattern_width;
                const int from_y = ((row - y) % pattern_height + pattern_height) % pattern_height;
                const uint32_t source = pattern[static_cast<std::size_t>(from_y * pattern_width + from_x)];
                uint32_t& pixel = expected[static_cast<std::size_t>(row * width + column)];
                pixel = !pattern_alpha ? source | 0xff000000u
                    : !blend           ? source
                    : target_alpha     ? over(source, pixel)
                                       : over_rgb32(source, pixel);
            }
        }
        ASSERT_EQ(target, expected) << i;
    }
}

} // namespace
