#include "real/directfb.h"

#include "common/surface.h"
#include "toolkit/records.h"
#include "zuvo.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

namespace real {
namespace {

IDirectFB* started = nullptr;

IDirectFB* start_alone(int* argc, char*** argv)
{
    IDirectFB* dfb = nullptr;
    const bool is_started = !DirectFBInit(argc, argv) && !DirectFBCreate(&dfb);
    return is_started ? dfb : nullptr;
}

/// DirectFB lives as long as the tests run, and not while they are merely listed.
class DirectFBRun : public testing::Environment {
    void SetUp() override
    {
        char program[] = "test";
        char words[] = "--dfb:system=dummy,quiet,no-cursor,mode=320x240,no-sighandler";
        char* arguments[] = {program, words, nullptr};
        char** argv = arguments;
        int argc = 2;
        started = uses_hosted_driver() ? zuvo_dfb_ext_open_with_params(0, &argc, &argv) : start_alone(&argc, &argv);
        ASSERT_TRUE(started);
    }

    void TearDown() override
    {
        if (started)
            started->Release(started);
        if (uses_hosted_driver())
            zuvo_dfb_ext_close();
    }
};

const auto* const run = testing::AddGlobalTestEnvironment(new DirectFBRun);

u32 load(const u8* bytes, int size)
{
    u32 value = 0;
    std::memcpy(&value, bytes, static_cast<std::size_t>(size));
    return value;
}

} // namespace

bool uses_hosted_driver()
{
    const char* name = std::getenv("DTKHDDVD_TEST_DRIVER");
    return name && std::strcmp(name, "hosted") == 0;
}

IDirectFB* directfb()
{
    return started;
}

Surface make_surface(int width, int height, DFBSurfacePixelFormat format)
{
    const DFBSurfaceDescription description = common::describe(width, height, format);
    IDirectFBSurface* surface = nullptr;
    EXPECT_EQ(directfb()->CreateSurface(directfb(), &description, &surface), DFB_OK);
    Surface owner(surface);
    clear(owner, format == DSPF_ARGB || format == DSPF_RGB32 ? background : 0);
    return owner;
}

void clear(const Surface& surface, u32 color)
{
    const auto byte = [=](int shift) { return static_cast<u8>(color >> shift); };
    EXPECT_EQ(surface->Clear(surface.get(), byte(16), byte(8), byte(0), byte(24)), DFB_OK);
}

Toolkit make_toolkit(IDirectFBSurface* surface, bool use_scratch_pad)
{
    DTKHDDVD* toolkit = nullptr;
    EXPECT_EQ(CreateDrawingToolkit_HDDVD(directfb(), surface, use_scratch_pad, &toolkit), DFB_OK);
    EXPECT_EQ(toolkit->priv->dtk, 0u) << "these tests are about the software back end";
    return Toolkit(toolkit);
}

Pen make_pen(const Toolkit& toolkit, const DTKHDDVDPenShape& shape)
{
    DTKHDDVDPen* pen = nullptr;
    EXPECT_EQ(toolkit->CreatePen(toolkit.get(), &shape, &pen), DFB_OK);
    return Pen(pen);
}

void set_pen(const Toolkit& toolkit, const DTKHDDVDPenShape& shape)
{
    EXPECT_EQ(toolkit->SetPen(toolkit.get(), make_pen(toolkit, shape).get()), DFB_OK);
}

void drop_pen(const Toolkit& toolkit)
{
    EXPECT_EQ(toolkit->SetPen(toolkit.get(), nullptr), DFB_OK);
}

DTKHDDVDPenShape rectangular_pen(int width, int height)
{
    const int left = -(width / 2), top = -(height / 2);
    return {left, top, left + width, top, left + width, top + height, left, top + height};
}

Pixels read(IDirectFBSurface* surface)
{
    DFBSurfacePixelFormat format = DSPF_UNKNOWN;
    EXPECT_EQ(surface->GetPixelFormat(surface, &format), DFB_OK);
    Pixels pixels = {};
    EXPECT_EQ(surface->GetSize(surface, &pixels.width, &pixels.height), DFB_OK);

    void* memory = nullptr;
    int pitch = 0;
    const auto access = static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE);
    EXPECT_EQ(surface->Lock(surface, access, &memory, &pitch), DFB_OK);
    const int size = DFB_BYTES_PER_PIXEL(format);
    for (int y = 0; memory && y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x)
            pixels.values.push_back(load(static_cast<u8*>(memory) + y * pitch + x * size, size));
    }
    EXPECT_EQ(surface->Unlock(surface), DFB_OK);
    return pixels;
}

void write_pixel(const Surface& surface, int x, int y, u32 value)
{
    void* memory = nullptr;
    int pitch = 0;
    ASSERT_EQ(surface->Lock(surface.get(), DSLF_WRITE, &memory, &pitch), DFB_OK);
    std::memcpy(static_cast<u8*>(memory) + y * pitch + x * 4, &value, sizeof(value));
    EXPECT_EQ(surface->Unlock(surface.get()), DFB_OK);
}

bool holds_only(IDirectFBSurface* surface, u32 value)
{
    const Pixels pixels = read(surface);
    return std::all_of(pixels.values.begin(), pixels.values.end(), [=](u32 pixel) { return pixel == value; });
}

} // namespace real
