#include "toolkit/records.h"

#include <gtest/gtest.h>

namespace {

constexpr std::size_t pointer = sizeof(void*);

TEST(Records, KeepTheOrderOfTheToolkitsSlots)
{
    EXPECT_EQ(offsetof(DTKHDDVD, priv), 0u);
    EXPECT_EQ(offsetof(DTKHDDVD, magic), pointer);
    const std::size_t slots[] = {
        offsetof(DTKHDDVD, AddRef), offsetof(DTKHDDVD, Release), offsetof(DTKHDDVD, SetStrokeColor),
        offsetof(DTKHDDVD, SetFillColor), offsetof(DTKHDDVD, SetFillPattern), offsetof(DTKHDDVD, CreatePen),
        offsetof(DTKHDDVD, SetPen), offsetof(DTKHDDVD, Line), offsetof(DTKHDDVD, Rectangle),
        offsetof(DTKHDDVD, Polygon), offsetof(DTKHDDVD, Ellipse)};
    std::size_t expected = 2 * pointer;
    for (std::size_t slot : slots) {
        EXPECT_EQ(slot, expected);
        expected += pointer;
    }
    EXPECT_EQ(sizeof(DTKHDDVD), 13 * pointer);
    EXPECT_EQ(sizeof(DTKHDDVD::magic), 4u);
}

TEST(Records, KeepTheOrderOfThePensSlots)
{
    EXPECT_EQ(offsetof(DTKHDDVDPen, magic), pointer);
    EXPECT_EQ(offsetof(DTKHDDVDPen, AddRef), 2 * pointer);
    EXPECT_EQ(offsetof(DTKHDDVDPen, Release), 3 * pointer);
    EXPECT_EQ(offsetof(DTKHDDVDPen, GetSize), 4 * pointer);
    EXPECT_EQ(offsetof(DTKHDDVDPen, GetSurface), 5 * pointer);
    EXPECT_EQ(offsetof(DTKHDDVDPen, GetShape), 6 * pointer);
    EXPECT_EQ(sizeof(DTKHDDVDPen), 7 * pointer);
}

/// Where the next field of a size lies that is aligned to `alignment`.
class Offsets {
public:
    std::size_t next(std::size_t size, std::size_t alignment)
    {
        const std::size_t offset = (end_ + alignment - 1) / alignment * alignment;
        end_ = offset + size;
        return offset;
    }

private:
    std::size_t end_ = 0;
};

TEST(Records, KeepTheOrderOfTheToolkitsState)
{
    Offsets offsets;
    EXPECT_EQ(offsetof(DTKHDDVD_data, ref_count), offsets.next(4, 4));
    EXPECT_EQ(offsetof(DTKHDDVD_data, use_scratch_pad), offsets.next(1, 1));
    EXPECT_EQ(offsetof(DTKHDDVD_data, dfb), offsets.next(pointer, pointer));
    EXPECT_EQ(offsetof(DTKHDDVD_data, target), offsets.next(pointer, pointer));
    EXPECT_EQ(offsetof(DTKHDDVD_data, target_cr), offsets.next(pointer, pointer));
    EXPECT_EQ(offsetof(DTKHDDVD_data, palette), offsets.next(12, 1));
    EXPECT_EQ(offsetof(DTKHDDVD_data, fill_pattern), offsets.next(pointer, pointer));
    EXPECT_EQ(offsetof(DTKHDDVD_data, pen), offsets.next(pointer, pointer));
    EXPECT_EQ(offsetof(DTKHDDVD_data, scratch), offsets.next(pointer, pointer));
    EXPECT_EQ(offsetof(DTKHDDVD_data, scratch_cr), offsets.next(pointer, pointer));
    EXPECT_EQ(offsetof(DTKHDDVD_data, target_cairo_surface), offsets.next(pointer, pointer));
    EXPECT_EQ(offsetof(DTKHDDVD_data, scratch_cairo_surface), offsets.next(pointer, pointer));
    EXPECT_EQ(offsetof(DTKHDDVD_data, dtk), offsets.next(4, 4));
    EXPECT_EQ(offsetof(DTKHDDVD_data, has_fill_pattern), offsets.next(1, 1));
    EXPECT_EQ(offsetof(DTKHDDVD_data, fill_pattern_handle), offsets.next(4, 4));
}

TEST(Records, KeepTheOrderOfThePensState)
{
    Offsets offsets;
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, ref_count), offsets.next(4, 4));
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, surface), offsets.next(pointer, pointer));
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, shape), offsets.next(32, 4));
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, width), offsets.next(4, 4));
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, height), offsets.next(4, 4));
    EXPECT_EQ(offsetof(DTKHDDVDPen_data, color), offsets.next(4, 4));
    EXPECT_EQ(offsetof(DTKHDDVDPenShape, y3), 28u);
}

TEST(Records, HoldSixtyFourStamps)
{
    EXPECT_EQ(sizeof batch_rectangles, 64 * sizeof(DFBRectangle));
    EXPECT_EQ(sizeof batch_points, 64 * sizeof(DFBPoint));
    EXPECT_EQ(sizeof batch_n_blits, 4u);
}

TEST(Records, UseTheStatedFlagsAndFormats)
{
    EXPECT_EQ(DTKHDDVD_STROKE, 1u);
    EXPECT_EQ(DTKHDDVD_FILL, 2u);
    EXPECT_EQ(DSPF_ARGB, 0x00418C04);
    EXPECT_EQ(DSPF_RGB32, 0x00400C03);
    EXPECT_EQ(DSPF_A8, 0x00118005);
    EXPECT_EQ(DSPF_LUT8, 0x4011040B);
}

} // namespace
