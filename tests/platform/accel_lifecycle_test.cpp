// When the driver is on, and that nothing but speed tells that it is.
#include <gtest/gtest.h>
#include <unistd.h>

#include "driver/accel.h"
#include "accel_session.h"
#include "common/surface.h"

namespace {

using accel::Driver;
using accel::Lines;
using accel::must;

Lines is_on_with(const std::string& words)
{
    return accel::run_apart([&](Lines& said) {
        accel::start_directfb(Driver::on, words);
        said.push_back(std::to_string(accel_is_on()));
    });
}

/// What an application can ask about the primary layer, and the surface that it draws on.
void describe_layer(IDirectFB& directfb, Lines& said)
{
    IDirectFBDisplayLayer* layer = nullptr;
    must(directfb.GetDisplayLayer(&directfb, DLID_PRIMARY, &layer));
    must(layer->SetCooperativeLevel(layer, DLSCL_ADMINISTRATIVE));
    DFBDisplayLayerConfig config{};
    must(layer->GetConfiguration(layer, &config));
    for (int value : {config.flags + 0, config.width, config.height, config.pixelformat + 0, config.buffermode + 0,
                      config.options + 0, config.surface_caps + 0})
        said.push_back(std::to_string(value));

    IDirectFBSurface* surface = nullptr;
    must(layer->GetSurface(layer, &surface));
    DFBSurfaceCapabilities caps{};
    must(surface->GetCapabilities(surface, &caps));
    said.push_back(std::to_string(caps));
    surface->Release(surface);
    layer->Release(layer);
}

void describe_device(IDirectFB& directfb, Lines& said)
{
    DFBGraphicsDeviceDescription device{};
    must(directfb.GetDeviceDescription(&directfb, &device));
    for (unsigned int value :
         {device.acceleration_mask + 0u, device.blitting_flags + 0u, device.drawing_flags + 0u, device.video_memory})
        said.push_back(std::to_string(value));
}

u32 first_pixel(IDirectFBSurface* surface)
{
    void* memory = nullptr;
    int pitch = 0;
    must(surface->Lock(surface, static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE), &memory, &pitch));
    const u32 pixel = *static_cast<const u32*>(memory);
    must(surface->Unlock(surface));
    return pixel;
}

/// Draws a frame, flips, draws the next onto the back buffer: says what the back buffer holds after each step.
void flip_frames(IDirectFB& directfb, Lines& said)
{
    IDirectFBDisplayLayer* layer = nullptr;
    IDirectFBSurface* surface = nullptr;
    must(directfb.GetDisplayLayer(&directfb, DLID_PRIMARY, &layer));
    must(layer->SetCooperativeLevel(layer, DLSCL_ADMINISTRATIVE));
    must(layer->GetSurface(layer, &surface));
    must(surface->Clear(surface, 0, 0, 0, 255));
    for (u8 frame = 1; frame < 5; ++frame) {
        must(surface->SetColor(surface, frame, frame, frame, 255));
        must(surface->FillRectangle(surface, 0, 0, 10, 10));
        said.push_back(std::to_string(first_pixel(surface)));
        must(surface->Flip(surface, nullptr, DSFLIP_NONE));
        said.push_back(std::to_string(first_pixel(surface)));
    }
    surface->Release(surface);
    layer->Release(layer);
}

void expect_same(void (*program)(IDirectFB&, Lines&))
{
    const Lines with = accel::run_with_directfb(Driver::on, program);
    EXPECT_GT(with.size(), 3u);
    EXPECT_EQ(with, accel::run_with_directfb(Driver::off, program));
}

/// The colour that a fill and a blend of 0x40ffffff over 0xff808080 leave.
u32 blended_pixel(IDirectFB& directfb)
{
    const DFBSurfaceDescription description = common::describe(9, 9);
    IDirectFBSurface *target = nullptr, *source = nullptr;
    must(directfb.CreateSurface(&directfb, &description, &target));
    must(directfb.CreateSurface(&directfb, &description, &source));
    must(target->Clear(target, 0x80, 0x80, 0x80, 0xff));
    must(source->Clear(source, 0xff, 0xff, 0xff, 0x40));
    must(target->SetBlittingFlags(target, DSBLIT_BLEND_ALPHACHANNEL));
    must(target->Blit(target, source, nullptr, 0, 0));
    const u32 pixel = first_pixel(target);
    source->Release(source);
    target->Release(target);
    return pixel;
}

/// A release that DirectFB does not come back from ends by the alarm.
void create_and_release(Lines& said)
{
    alarm(25);
    for (int cycle = 0; cycle < 4; ++cycle) {
        IDirectFB* directfb = accel::start_directfb(cycle % 2 ? Driver::off : Driver::on);
        said.push_back(std::to_string(accel_is_on()) + ' ' + std::to_string(blended_pixel(*directfb)));
        directfb->Release(directfb);
        said.push_back(std::to_string(accel_is_on()));
    }
}

} // namespace

TEST(AccelLifecycle, IsOnOnceDirectFbRuns)
{
    EXPECT_EQ(accel_is_on(), 0);
    EXPECT_EQ(is_on_with(""), (Lines{"1", "finished"}));
}

TEST(AccelLifecycle, DirectFbsOwnOptionSwitchesItOff)
{
    EXPECT_EQ(is_on_with(",no-hardware"), (Lines{"0", "finished"}));
}

TEST(AccelLifecycle, IsOffWithoutRegistration)
{
    const Lines lines = accel::run_apart([](Lines& said) {
        accel::start_directfb(Driver::off);
        said.push_back(std::to_string(accel_is_on()));
    });
    EXPECT_EQ(lines, (Lines{"0", "finished"}));
}

/// DirectFB itself may die of a release on a busy machine, see accel_session.cpp; but not three times running.
TEST(AccelLifecycle, OutlastsReleaseAndRepeatedRegistration)
{
    const std::string drawn = "1 " + std::to_string(0xcfa0a0a0u);
    const Lines expected = {drawn, "0", drawn, "0", drawn, "0", drawn, "0", "finished"};
    Lines lines;
    for (int attempt = 0; attempt < 3 && lines.size() != expected.size(); ++attempt)
        lines = accel::run_apart(create_and_release);
    EXPECT_EQ(lines, expected);
}

TEST(AccelLifecycle, LeavesTheLayerAsItIs) { expect_same(describe_layer); }

TEST(AccelLifecycle, LeavesTheDeviceDescriptionAsItIs) { expect_same(describe_device); }

TEST(AccelLifecycle, LeavesFlipAsItIs) { expect_same(flip_frames); }
