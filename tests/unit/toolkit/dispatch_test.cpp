#include "toolkit/recorded_forms.h"
#include "toolkit/records.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace {

template <class Record>
Record* at(std::intptr_t address)
{
    return reinterpret_cast<Record*>(address);
}

/// Calls every operation once, with arguments that are told apart, and answers the sum of the results.
int call_all(DTKHDDVD* toolkit)
{
    reached.clear();
    int sum = 0;
    sum += int(DTKHDDVD_AddRef(toolkit));
    sum += int(DTKHDDVD_Release(toolkit));
    sum += int(DTKHDDVD_SetStrokeColor(toolkit, 1, 2, 3, 254));
    sum += int(DTKHDDVD_SetFillColor(toolkit, 5, 6, 7, 253));
    sum += int(DTKHDDVD_SetFillPattern(toolkit, at<IDirectFBSurface>(9)));
    sum += int(DTKHDDVD_CreatePen(toolkit, at<DTKHDDVDPenShape>(10), at<DTKHDDVDPen*>(11)));
    sum += int(DTKHDDVD_SetPen(toolkit, at<DTKHDDVDPen>(12)));
    sum += int(DTKHDDVD_Line(toolkit, -13, 14, -15, 16));
    sum += int(DTKHDDVD_Rectangle(toolkit, at<DFBRectangle>(17), 18));
    sum += int(DTKHDDVD_Polygon(toolkit, at<DFBPoint>(19), 20, 255, 22));
    sum += int(DTKHDDVD_Ellipse(toolkit, at<DFBRectangle>(23), 24));
    sum += int(AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit, at<IDirectFBSurface>(25)));
    sum += int(DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit));
    return sum;
}

std::string all_forms(const std::string& suffix)
{
    std::string all;
    for (const char* form : {"AddRef", "Release", "SetStrokeColor 1 2 3 254", "SetFillColor 5 6 7 253",
                             "SetFillPattern 9", "CreatePen 10 11", "SetPen 12", "Line -13 14 -15 16",
                             "Rectangle 17 18", "Polygon 19 20 255 22", "Ellipse 23 24", "Attach 25", "Detach"})
        all += form + suffix + "\n";
    return all;
}

TEST(Dispatch, FollowsTheToolkitWhateverThePlatformSays)
{
    for (unsigned int handle : {0u, 7u}) {
        platform_handle = handle;
        handle_queries = 0;
        DTKHDDVD_data data = {};
        DTKHDDVD toolkit = {};
        toolkit.priv = &data;
        EXPECT_EQ(call_all(&toolkit), 13 * software_reached);
        EXPECT_EQ(reached, all_forms("_SW"));
        data.dtk = 0x80000000;
        EXPECT_EQ(call_all(&toolkit), 13 * hardware_reached);
        EXPECT_EQ(reached, all_forms("_HW"));
        EXPECT_EQ(handle_queries, 0);
    }
}

TEST(Dispatch, SendsAMissingToolkitToSoftware)
{
    EXPECT_EQ(call_all(nullptr), 13 * software_reached);
    EXPECT_EQ(reached, all_forms("_SW"));
}

TEST(Dispatch, OfACreationAsksThePlatformOnce)
{
    for (unsigned int handle : {0u, 7u}) {
        platform_handle = handle;
        handle_queries = 0;
        reached.clear();
        const DFBResult result =
            CreateDrawingToolkit_HDDVD(at<IDirectFB>(1), at<IDirectFBSurface>(2), 3, at<DTKHDDVD*>(4));
        EXPECT_EQ(int(result), handle ? hardware_reached : software_reached);
        EXPECT_EQ(reached, handle ? "Create 1 2 3 4_HW\n" : "Create 1 2 3 4_SW\n");
        EXPECT_EQ(handle_queries, 1);
    }
}

} // namespace
