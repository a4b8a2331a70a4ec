/// The C++ interface on real DirectFB: what it owns, and how its failures come back.
#include "real/directfb.h"
#include "real/reference_ledger.h"
#include "support/capture.h"

#include <dtkhddvd.hpp>
#include <gtest/gtest.h>

namespace real {
namespace {

using dtkhddvd::Draw;
using dtkhddvd::Outline;
using dtkhddvd::ScratchPad;

constexpr DFBPoint triangle[] = {{0, 0}, {16, 0}, {0, 16}};
constexpr DFBColor orange = {0xff, 0xf0, 0x80, 0x20};
constexpr u32 orange_pixel = 0xfff08020;

class CxxInterface : public testing::Test {
protected:
    CxxInterface() : toolkit(std::move(*dtkhddvd::Toolkit::create(directfb(), surface.get(), ScratchPad::with))) {}

    ReferenceLedger ledger;
    Surface surface = make_surface(16, 16);
    dtkhddvd::Toolkit toolkit;
};

/// Nobody may draw on a surface that the application holds locked.
class Lock {
public:
    explicit Lock(const Surface& surface) : surface_(surface.get())
    {
        void* pixels = nullptr;
        int pitch = 0;
        surface_->Lock(surface_, DSLF_WRITE, &pixels, &pitch);
    }
    ~Lock() { surface_->Unlock(surface_); }

private:
    IDirectFBSurface* surface_;
};

} // namespace

TEST_F(CxxInterface, DrawsEachShape)
{
    EXPECT_TRUE(toolkit.set_fill_color(orange));
    EXPECT_TRUE(toolkit.set_stroke_color({0xff, 0x10, 0x20, 0x30}));
    EXPECT_TRUE(toolkit.polygon(triangle, Outline::closed, Draw::fill));
    EXPECT_TRUE(toolkit.rectangle({8, 8, 3, 3}, Draw::fill | Draw::stroke));
    EXPECT_TRUE(toolkit.ellipse({1, 9, 7, 7}, Draw::fill));
    EXPECT_TRUE(toolkit.line({12, 15}, {15, 15}));
    const Pixels pixels = read(surface.get());
    EXPECT_EQ(pixels.at(2, 2), orange_pixel);
    EXPECT_EQ(pixels.at(9, 9), orange_pixel);
    EXPECT_EQ(pixels.at(8, 8), 0xff102030u);
    EXPECT_EQ(pixels.at(4, 12), orange_pixel);
    EXPECT_EQ(pixels.at(13, 15), 0xff102030u);
    EXPECT_EQ(pixels.at(15, 5), background);
}

TEST_F(CxxInterface, ReturnsWhatFailed)
{
    const Lock lock(surface);
    const Capture errors(stderr);
    const dtkhddvd::Result drawn = toolkit.polygon(triangle, Outline::closed, Draw::fill);
    EXPECT_FALSE(drawn);
    EXPECT_EQ(drawn.error(), own_failure);
    EXPECT_STREQ(dtkhddvd::describe(drawn.error()), DirectFBErrorString(DFB_FAILURE));
}

TEST_F(CxxInterface, ThrowsWhatFailed)
{
    auto throwing = dtkhddvd::ThrowingToolkit::create(directfb(), surface.get(), ScratchPad::without);
    EXPECT_NO_THROW(throwing.set_fill_color(orange));
    const Lock lock(surface);
    const Capture errors(stderr);
    try {
        throwing.polygon(triangle, Outline::closed, Draw::fill);
        FAIL() << "nothing was thrown";
    } catch (const dtkhddvd::Error& error) {
        EXPECT_EQ(error.result(), own_failure);
        EXPECT_STREQ(error.what(), DirectFBErrorString(DFB_FAILURE));
    }
}

TEST_F(CxxInterface, CreatesNothingOnNothing)
{
    const auto none = dtkhddvd::Toolkit::create(nullptr, surface.get(), ScratchPad::with);
    EXPECT_FALSE(none);
    EXPECT_EQ(none.error(), own_invalid_argument);
    EXPECT_THROW(dtkhddvd::ThrowingToolkit::create(nullptr, surface.get(), ScratchPad::with), dtkhddvd::Error);
}

TEST_F(CxxInterface, GivesBackEverything)
{
    const int before = ledger.surfaces_alive(), references = ledger.on_directfb();
    {
        auto other = dtkhddvd::Toolkit::create(directfb(), surface.get(), ScratchPad::with);
        dtkhddvd::Pen pen = std::move(*other->create_pen(rectangular_pen(3, 3)));
        EXPECT_TRUE(other->set_pen(pen));
        pen = dtkhddvd::Pen();
        EXPECT_TRUE(other->line({3, 3}, {9, 3}));
        EXPECT_GT(ledger.surfaces_alive(), before);
    }
    EXPECT_EQ(ledger.surfaces_alive(), before);
    EXPECT_EQ(ledger.on_directfb(), references);
}

TEST_F(CxxInterface, MovesWithWhatItOwns)
{
    const int before = ledger.surfaces_alive();
    dtkhddvd::Toolkit moved(std::move(toolkit));
    EXPECT_FALSE(toolkit);
    EXPECT_TRUE(moved.line({0, 0}, {3, 3}));
    EXPECT_EQ(ledger.surfaces_alive(), before);

    moved = dtkhddvd::Toolkit();
    EXPECT_FALSE(moved);
    EXPECT_LT(ledger.surfaces_alive(), before);
}

TEST_F(CxxInterface, TakesAndHandsOutRecords)
{
    DTKHDDVD* record = toolkit.release();
    EXPECT_FALSE(toolkit);
    EXPECT_EQ(record->Line(record, 0, 0, 3, 3), DFB_OK);
    toolkit = dtkhddvd::Toolkit(record);
    EXPECT_EQ(toolkit.get(), record);
    EXPECT_TRUE(toolkit.detach());
    EXPECT_TRUE(toolkit.attach(surface.get()));
}

} // namespace real
