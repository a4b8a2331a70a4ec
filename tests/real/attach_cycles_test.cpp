#include "real/directfb.h"

#include <fstream>
#include <gtest/gtest.h>
#include <malloc.h>
#include <unistd.h>

/// An application that moves its toolkit from surface to surface for as long as it runs.

namespace {

using namespace real;

// A sanitizer keeps what was freed for a while.
#if defined(__SANITIZE_ADDRESS__)
constexpr long kept = 320L << 20;
#else
constexpr long kept = 0;
#endif

/// Without what the heap keeps for later: the room of all pads that waited for their end at one time.
long resident_bytes()
{
    malloc_trim(0);
    std::ifstream statistics("/proc/self/statm");
    long size = 0, resident = 0;
    statistics >> size >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

void attach_and_detach(const Toolkit& toolkit, const Surface& surface, int times)
{
    const DFBPoint points[] = {{1, 1}, {390, 20}, {200, 290}};
    for (int i = 0; i < times; ++i) {
        ASSERT_EQ(AttachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get(), surface.get()), DFB_OK);
        ASSERT_EQ(toolkit->Polygon(toolkit.get(), points, 3, 1, DTKHDDVD_FILL), DFB_OK);
        ASSERT_EQ(DetachDFBSurfaceToDrawingToolkit_HDDVD(toolkit.get()), DFB_OK);
    }
}

TEST(AttachCycles, CostLessThanFourKilobytesEach)
{
    const int cycles = 5000;
    const Surface surface = make_surface(400, 300);
    const Toolkit toolkit = make_toolkit(nullptr, true);
    attach_and_detach(toolkit, surface, 100);
    const long before = resident_bytes();
    attach_and_detach(toolkit, surface, cycles);

    // DirectFB frees surfaces in a thread of its own.
    for (int i = 0; i < 100 && resident_bytes() - before >= cycles * 4096L + kept; ++i)
        usleep(20000);
    EXPECT_LT(resident_bytes() - before, cycles * 4096L + kept);
}

} // namespace
