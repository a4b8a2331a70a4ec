#include "test_dtkhd/frames.h"

namespace {

TEST_F(Frames, AreSetUpWithATextureAndAToolkit)
{
    run_frames(1);
    const std::string all = calls();
    EXPECT_EQ(all.substr(0, all.find("scratch.Clear")), R"(
screen.GetSize()
dfb.CreateSurface(flags 14, caps 0, 15 x 15, ARGB)
texture.Clear(160, 48, 16, 187)
texture.SetColor(255, 255, 255, 255)
texture.DrawLine(0, 0, 7, 7)
texture.DrawLine(0, 7, 7, 0)
screen.GetSubSurface(NULL)
screen.GetSize()
dfb.CreateSurface(flags 15, caps 4, 640 x 480, ARGB)
)");
}

TEST_F(Frames, GiveTheirObjectsBackInOrder)
{
    run_frames(1);
    const std::string all = calls();
    EXPECT_EQ(all.substr(all.find("screen.Flip")), R"(screen.Flip(NULL, 0)
pen.Release()
pen4.Release()
pen5.Release()
pen6.Release()
pen7.Release()
pen8.Release()
pen2.Release()
cairo_destroy(screen.cr)
target.Release()
cairo_destroy(scratch.cr)
scratch.Release()
dfb.Release()
texture.Release()
)") << "the toolkit keeps the pen of the line";
}

TEST_F(Frames, SkipTheRestOfAFailingPhaseAlone)
{
    transcript().fail_every("screen.Clear", refusal);
    EXPECT_EQ(run_frames(0).result, refusal);
    const std::string all = calls();
    EXPECT_EQ(all.find("dfb.WaitIdle"), std::string::npos);
    EXPECT_NE(all.find("screen.Flip(NULL, 0)"), std::string::npos) << "the frame is still finished";
}

TEST_F(Frames, DoNotBeginWhenTheSetUpFails)
{
    for (int n = 1;; n++) {
        fake::forget_surfaces_but(screen);
        dfb.references = 1;
        transcript().reset();
        transcript().fail_call(n, DFB_LOCKED);
        const Outcome outcome = run_frames(1);
        const std::string failed = transcript().failed_call();
        if (failed.find("screen.Clear") == 0)
            break;
        const bool is_unchecked = failed.find("Unlock") != std::string::npos || failed == "screen.GetSize() #2";
        EXPECT_EQ(outcome.result, is_unchecked ? refusal : DFB_LOCKED) << failed;
        EXPECT_EQ(outcome.error.find("--lets begin--") == std::string::npos, !is_unchecked) << failed;
        EXPECT_EQ(screen.references, 1) << failed;
    }
}

} // namespace
