#include "toolkit/records.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t word_size = sizeof(void*);

/// Behind three words and twelve bytes of palette, at the next whole word: byte 32 or 48.
constexpr std::size_t pattern_place = word_size == 4 ? 32 : 48;

} // namespace

TEST(ToolkitRecord, BeginsWithWhatBothBackEndsUse)
{
    EXPECT_EQ(offsetof(DTKHDDVD_data, ref_count), 0u);
    EXPECT_EQ(offsetof(DTKHDDVD_data, use_scratch_pad), 4u);
    EXPECT_EQ(offsetof(DTKHDDVD_data, dfb), 8u);
    EXPECT_EQ(offsetof(DTKHDDVD_data, target), 8 + word_size);
    EXPECT_EQ(offsetof(DTKHDDVD_data, target_cr), 8 + 2 * word_size);
    EXPECT_EQ(offsetof(DTKHDDVD_data, palette), 8 + 3 * word_size);
    EXPECT_EQ(sizeof(DTKHDDVD_data::palette), 12u);
}

TEST(ToolkitRecord, GoesOnWithPatternPenAndScratchPad)
{
    EXPECT_EQ(offsetof(DTKHDDVD_data, fill_pattern), pattern_place);
    EXPECT_EQ(offsetof(DTKHDDVD_data, pen), pattern_place + word_size);
    EXPECT_EQ(offsetof(DTKHDDVD_data, scratch), pattern_place + 2 * word_size);
    EXPECT_EQ(offsetof(DTKHDDVD_data, scratch_cr), pattern_place + 3 * word_size);
    EXPECT_EQ(offsetof(DTKHDDVD_data, target_cairo_surface), pattern_place + 4 * word_size);
    EXPECT_EQ(offsetof(DTKHDDVD_data, scratch_cairo_surface), pattern_place + 5 * word_size);
}

TEST(ToolkitRecord, EndsWithTheEngine)
{
    constexpr std::size_t engine_place = pattern_place + 6 * word_size;
    EXPECT_EQ(offsetof(DTKHDDVD_data, dtk), engine_place);
    EXPECT_EQ(offsetof(DTKHDDVD_data, has_fill_pattern), engine_place + 4);
    EXPECT_EQ(sizeof(DTKHDDVD_data::has_fill_pattern), 1u);
    EXPECT_EQ(offsetof(DTKHDDVD_data, fill_pattern_handle), engine_place + 8);
}

TEST(PenRecord, HoldsItsFieldsInOrder)
{
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, ref_count), 0u);
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, surface), word_size);
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, shape), 2 * word_size);
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, width), 2 * word_size + 32);
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, height), 2 * word_size + 36);
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, color), 2 * word_size + 40);
}
