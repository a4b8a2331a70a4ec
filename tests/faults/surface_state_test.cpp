/// Targets and textures that are locked, released or of a format that not everything can draw on.
#include "faults/faults.h"
#include "faults/mode.h"

#include <gmock/gmock.h>

using namespace faults;

namespace {

/// The library's own failures and DirectFB's.
bool is_known(DFBResult result)
{
    const auto number = static_cast<unsigned>(result);
    const bool is_own = number == 0 || number == 1 || number == 5 || number == 8;
    return is_own || result == DFB_LOCKED || result == DFB_UNSUPPORTED;
}

/// Whatever comes of it: a failure is printed, nothing stays referenced or locked, and no stamp is left over.
void expect_orderly(const Session& session, const Drawing& drawing)
{
    const int held_before = held_references();
    const Outcome outcome = run([&] { return drawing.draw(session.toolkit()); });
    EXPECT_TRUE(is_known(outcome.result)) << drawing.name << " answered " << outcome.result;
    EXPECT_EQ(outcome.error.empty(), outcome.result == DFB_OK) << drawing.name << ": " << outcome.error;
    EXPECT_LE(held_references(), held_before) << drawing.name;
    EXPECT_EQ(batch_n_blits, 0) << drawing.name;
}

void lock(IDirectFBSurface* surface)
{
    void* pixels = nullptr;
    int pitch = 0;
    ASSERT_EQ(surface->Lock(surface, DSLF_WRITE, &pixels, &pitch), DFB_OK);
}

class SurfaceState : public testing::TestWithParam<Mode> {
protected:
    /// Draws while the application holds a lock, and compares what is drawn afterwards with an untroubled toolkit.
    void expect_recovery_from_lock(IDirectFBSurface* (Session::*surface)() const)
    {
        for (const Drawing& drawing : all_drawings()) {
            const real::Pixels expected = Session(GetParam()).draw_twice(drawing);
            const Session session(GetParam());
            IDirectFBSurface* locked = (session.*surface)();
            lock(locked);
            expect_orderly(session, drawing);
            EXPECT_EQ(locked->Unlock(locked), DFB_OK);
            EXPECT_TRUE(session.draw_twice(drawing) == expected) << drawing.name;
        }
    }
};

std::string name_of_case(const testing::TestParamInfo<Mode>& info)
{
    return words_of(info.param);
}

} // namespace

TEST_P(SurfaceState, OfALockedTargetHeals)
{
    expect_recovery_from_lock(&Session::target);
}

TEST_P(SurfaceState, OfALockedTextureHeals)
{
    expect_recovery_from_lock(&Session::texture);
}

TEST_P(SurfaceState, OfAReleasedTextureIsOrderly)
{
    for (const Drawing& drawing : all_drawings()) {
        Session session(GetParam());
        session.release_texture();
        expect_orderly(session, drawing);
        EXPECT_EQ(session.toolkit()->SetFillColor(session.toolkit(), 1, 2, 3, 255), DFB_OK);
        expect_orderly(session, drawing);
    }
}

TEST_P(SurfaceState, OfEveryFormatIsOrderly)
{
    const DFBSurfacePixelFormat formats[] = {DSPF_LUT8, DSPF_A8, DSPF_RGB16, DSPF_RGB32, DSPF_ARGB};
    for (const DFBSurfacePixelFormat target : formats) {
        for (const DFBSurfacePixelFormat texture : formats) {
            const Session session(GetParam(), target, texture);
            for (const Drawing& drawing : all_drawings())
                expect_orderly(session, drawing);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, SurfaceState, testing::ValuesIn(all_modes()), name_of_case);
