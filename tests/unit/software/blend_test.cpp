#include "software/blend.h"
#include "support/fixture.h"

namespace {

const DFBRectangle part = {3, 4, 10, 20};

class Blend : public Fakes {
protected:
    DFBResult with_sync(fake::Surface& pad) { return dtk::BlendScratchPad(&dfb, 7, &screen, &pad, part); }
    DFBResult without_sync(fake::Surface& pad) { return dtk::BlendScratchPadNoSync(&screen, &pad, part); }

    fake::Surface& deep = fake::new_surface("deep", 64, 48, DSPF_ARGB);
    fake::Surface& indexed = fake::new_surface("indexed", 64, 48, DSPF_LUT8);
};

TEST_F(Blend, OfThirtyTwoBitsBlendsAndClearsToTransparent)
{
    EXPECT_EQ(without_sync(deep), 0);
    EXPECT_EQ(calls(), R"(
deep.GetPixelFormat()
screen.SetBlittingFlags(1)
screen.Blit(deep, [3 4 10 20], 3, 4)
deep.SetColor(0, 0, 0, 0)
deep.FillRectangle(3, 4, 10, 20)
)");
}

TEST_F(Blend, OfAnIndexedPadKeysOutAndClearsToTheKey)
{
    EXPECT_EQ(without_sync(indexed), 0);
    EXPECT_EQ(calls(), R"(
indexed.GetPixelFormat()
screen.SetBlittingFlags(9)
screen.Blit(indexed, [3 4 10 20], 3, 4)
indexed.SetColorIndex(2)
indexed.FillRectangle(3, 4, 10, 20)
)");
}

TEST_F(Blend, WithAnEngineWaitsBeforeAndAfter)
{
    EXPECT_EQ(with_sync(indexed), 0);
    EXPECT_EQ(calls(), R"(
zuvo_dtk_sync(7)
indexed.GetPixelFormat()
screen.SetBlittingFlags(9)
screen.Blit(indexed, [3 4 10 20], 3, 4)
indexed.SetColorIndex(2)
indexed.FillRectangle(3, 4, 10, 20)
dfb.WaitIdle()
)");
}

TEST_F(Blend, WithAnEngineThatFailsTouchesNeitherSurface)
{
    transcript().fail_every("zuvo_dtk_sync", DFBResult(0x1f));
    const Outcome outcome = run([&] { return with_sync(deep); });
    EXPECT_EQ(outcome.result, own_failure);
    EXPECT_EQ(outcome.error, "BlendScratchPad: zuvo_dtk_sync failed with err 0x1f\n");
    EXPECT_EQ(calls(), "\nzuvo_dtk_sync(7) = 31\ndfb.WaitIdle()\n");
}

TEST_F(Blend, OutsideTheTargetIsSuccessWithAnEngine)
{
    for (DFBResult nothing_left : {DFBResult(22), DFB_INVAREA}) {
        transcript().reset();
        transcript().fail_every("screen.Blit", nothing_left);
        const Outcome outcome = run([&] { return with_sync(deep); });
        EXPECT_EQ(outcome.result, 0);
        EXPECT_EQ(outcome.error + outcome.output, "");
        EXPECT_NE(calls_with("deep.FillRectangle"), "\n");
    }
}

TEST_F(Blend, OutsideTheTargetIsAFailureWithoutAnEngine)
{
    for (DFBResult nothing_left : {DFBResult(22), DFB_INVAREA}) {
        transcript().reset();
        transcript().fail_every("screen.Blit", nothing_left);
        EXPECT_EQ(without_sync(deep), nothing_left);
        EXPECT_EQ(calls_with("deep.FillRectangle"), "\n") << "the pad keeps its drawing";
    }
}

TEST_F(Blend, NamesTheFailingCall)
{
    struct Case {
        bool is_indexed;
        const char* call;
        const char* error;
        const char* output;
    };
    const Case cases[] = {
        {false, "screen.SetBlittingFlags", "BlendScratchPad: SetBlittingFlags returned with err=0xab\n", ""},
        {false, "screen.Blit", "BlendScratchPad: Blit returned with err=0xab\n", "rectangle 3 4 10 20 at 3 4\n"},
        {true, "indexed.SetColorIndex", "BlendScratchPad: SetColorIndex returned with err=0xab\n", ""},
        {false, "deep.SetColor", "BlendScratchPad: SetColor returned with err=0xab\n", ""},
        {false, "deep.FillRectangle", "BlendScratchPad: FillRectangle returned with err=0xab\n", ""},
        {false, "deep.GetPixelFormat", "", ""},
    };
    for (const Case& each : cases) {
        transcript().reset();
        transcript().fail_every(each.call, DFBResult(0xab));
        const Outcome outcome = run([&] { return with_sync(each.is_indexed ? indexed : deep); });
        EXPECT_EQ(outcome.result, DFBResult(0xab)) << each.call;
        EXPECT_EQ(outcome.error, each.error) << each.call;
        EXPECT_EQ(outcome.output, each.output) << each.call;
        EXPECT_EQ(transcript().lines().back(), "dfb.WaitIdle()") << "at every exit";
    }
}

TEST_F(Blend, StopsAtTheFirstFailureWithoutAWord)
{
    for (int n = 1; n <= 5; n++) {
        transcript().reset();
        transcript().fail_call(n, refusal);
        const Outcome outcome = run([&] { return without_sync(deep); });
        EXPECT_EQ(outcome.result, refusal) << n;
        EXPECT_EQ(outcome.error + outcome.output, "") << n;
        EXPECT_EQ(int(transcript().lines().size()), n);
    }
}

TEST_F(Blend, IgnoresAFailingWait)
{
    transcript().fail_every("dfb.WaitIdle", refusal);
    EXPECT_EQ(with_sync(deep), 0);
}

} // namespace
