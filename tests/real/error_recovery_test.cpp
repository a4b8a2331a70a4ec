#include "real/directfb.h"
#include "support/capture.h"

#include <gtest/gtest.h>

/// What puts cairo in error fails one operation, never the next.
namespace real {
namespace {

const std::string failure_text = DirectFBErrorString(DFB_FAILURE);
const std::string polygon_failed = "error in DTKHDDVD_Polygon: " + failure_text + "\n";
const std::string texture_refused = "cant create cairo surface for texture\n"
                                    "error in DTKHDDVD_SetFillPattern: " + failure_text + "\n";

DFBResult fill_polygon(const Toolkit& toolkit)
{
    const DFBPoint points[] = {{2, 2}, {14, 2}, {14, 14}, {2, 14}};
    return toolkit->Polygon(toolkit.get(), points, 4, 1, DTKHDDVD_FILL);
}

DFBResult fill_ellipse(const Toolkit& toolkit, int width, int height)
{
    const DFBRectangle box = {8, 8, width, height};
    return toolkit->Ellipse(toolkit.get(), &box, DTKHDDVD_FILL);
}

/// Locks a surface in the application's name for the scope.
class ApplicationLock {
public:
    explicit ApplicationLock(const Surface& surface) : surface_(surface)
    {
        void* pixels = nullptr;
        int pitch = 0;
        const auto access = static_cast<DFBSurfaceLockFlags>(DSLF_READ | DSLF_WRITE);
        EXPECT_EQ(surface_->Lock(surface_.get(), access, &pixels, &pitch), DFB_OK);
    }
    ~ApplicationLock() { EXPECT_EQ(surface_->Unlock(surface_.get()), DFB_OK); }
    ApplicationLock(const ApplicationLock&) = delete;
    ApplicationLock& operator=(const ApplicationLock&) = delete;

private:
    const Surface& surface_;
};

class ErrorRecovery : public testing::Test {
protected:
    void SetUp() override { toolkit->SetFillColor(toolkit.get(), 0, 0, 0xff, 0xff); }

    void set_texture(const Surface& with)
    {
        clear(with, 0xff00ff00);
        EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), with.get()), DFB_OK);
    }

    /// A polygon fills the surface with this colour.
    void expect_good_polygon(u32 color)
    {
        clear(surface, background);
        EXPECT_EQ(fill_polygon(toolkit), DFB_OK);
        const Pixels pixels = read(surface.get());
        EXPECT_EQ(pixels.at(2, 2), color);
        EXPECT_EQ(pixels.at(13, 13), color);
        EXPECT_EQ(pixels.at(1, 1), background);
        EXPECT_EQ(pixels.at(14, 14), background);
    }

    Surface surface = make_surface(16, 16);
    Surface texture = make_surface(4, 4);
    Toolkit toolkit = make_toolkit(surface.get(), false);
};

} // namespace

TEST_F(ErrorRecovery, FollowsALockThatTheApplicationHeldOnTheTarget)
{
    Capture errors(stderr);
    {
        const ApplicationLock lock(surface);
        EXPECT_EQ(fill_polygon(toolkit), own_failure);
    }
    EXPECT_EQ(errors.text(), polygon_failed);
    EXPECT_TRUE(holds_only(surface.get(), background));
    expect_good_polygon(0xff0000ff);
}

TEST_F(ErrorRecovery, FollowsALockThatTheApplicationHeldOnTheTexture)
{
    set_texture(texture);
    Capture errors(stderr);
    {
        const ApplicationLock lock(texture);
        EXPECT_EQ(fill_polygon(toolkit), own_failure);
    }
    EXPECT_EQ(errors.text(), polygon_failed);
    expect_good_polygon(0xff00ff00);
    toolkit->SetFillColor(toolkit.get(), 0, 0, 0xff, 0xff);
    expect_good_polygon(0xff0000ff);
}

TEST_F(ErrorRecovery, FollowsALockOnTheTextureDuringEveryThirdFill)
{
    set_texture(texture);
    Capture errors(stderr);
    for (int i = 0; i < 3; ++i) {
        {
            const ApplicationLock lock(texture);
            EXPECT_EQ(fill_ellipse(toolkit, 6, 6), own_failure);
        }
        expect_good_polygon(0xff00ff00);
        expect_good_polygon(0xff00ff00);
    }
}

TEST_F(ErrorRecovery, FollowsATextureThatIsTheTarget)
{
    set_texture(surface);
    Capture errors(stderr);
    EXPECT_EQ(fill_polygon(toolkit), own_failure);
    EXPECT_EQ(errors.text(), polygon_failed);

    toolkit->SetFillColor(toolkit.get(), 0, 0, 0xff, 0xff);
    expect_good_polygon(0xff0000ff);
    set_texture(texture);
    expect_good_polygon(0xff00ff00);
}

TEST_F(ErrorRecovery, FollowsATextureInAnIndexedFormat)
{
    const Surface indexed = make_surface(4, 4, DSPF_LUT8);
    set_texture(texture);
    Capture errors(stderr);
    EXPECT_EQ(toolkit->SetFillPattern(toolkit.get(), indexed.get()), own_failure);
    EXPECT_EQ(errors.text(), texture_refused);
    expect_good_polygon(0xff0000ff);
}

TEST_F(ErrorRecovery, IsNotPossibleOnATargetInAnIndexedFormat)
{
    const Surface indexed = make_surface(16, 16, DSPF_LUT8);
    const Toolkit on_indexed = make_toolkit(indexed.get(), false);
    Capture errors(stderr);
    EXPECT_EQ(fill_polygon(on_indexed), own_failure);
    EXPECT_EQ(fill_polygon(on_indexed), own_failure);
    EXPECT_EQ(errors.text(), polygon_failed + polygon_failed);

    const DFBRectangle rect = {2, 2, 3, 3};
    EXPECT_EQ(on_indexed->Rectangle(on_indexed.get(), &rect, DTKHDDVD_FILL), DFB_OK);
    EXPECT_EQ(read(indexed.get()).at(3, 3), 1u);
}

TEST_F(ErrorRecovery, IsNotNeededAfterTexturedEllipsesWithoutAnInside)
{
    set_texture(texture);
    for (int width = -1; width <= 1; ++width) {
        for (const int height : {-1, 0, 1, 8}) {
            EXPECT_EQ(fill_ellipse(toolkit, width, height), DFB_OK);
            EXPECT_EQ(fill_ellipse(toolkit, height, width), DFB_OK);
        }
    }
    EXPECT_TRUE(holds_only(surface.get(), background));
    expect_good_polygon(0xff00ff00);
}

TEST_F(ErrorRecovery, IsNotNeededAfterTexturedEllipsesOfNegativeSize)
{
    set_texture(texture);
    EXPECT_EQ(fill_ellipse(toolkit, -6, -4), DFB_OK);
    EXPECT_EQ(fill_ellipse(toolkit, -6, 4), DFB_OK);
    expect_good_polygon(0xff00ff00);
}

/// The pad is cairo's own, so a lock on the target only meets the blend, which goes through another interface.
TEST_F(ErrorRecovery, IsNotNeededWhenTheScratchPadStandsBetween)
{
    const Toolkit with_pad = make_toolkit(surface.get(), true);
    with_pad->SetFillColor(with_pad.get(), 0, 0, 0xff, 0x40);
    {
        const ApplicationLock lock(surface);
        EXPECT_EQ(fill_polygon(with_pad), DFB_OK);
    }
    EXPECT_EQ(read(surface.get()).at(8, 8), 0xcf606070u);
}

TEST_F(ErrorRecovery, WorksOnTheScratchPadToo)
{
    const Toolkit with_pad = make_toolkit(surface.get(), true);
    clear(texture, 0xff00ff00);
    ASSERT_EQ(with_pad->SetFillPattern(with_pad.get(), texture.get()), DFB_OK);
    Capture errors(stderr);
    {
        const ApplicationLock lock(texture);
        EXPECT_EQ(fill_polygon(with_pad), own_failure);
    }
    EXPECT_TRUE(holds_only(surface.get(), background));
    EXPECT_EQ(fill_polygon(with_pad), DFB_OK);
    EXPECT_EQ(read(surface.get()).at(8, 8), 0xff00ff00u);
}

} // namespace real
