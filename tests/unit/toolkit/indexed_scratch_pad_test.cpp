#include "support/fixture.h"
#include "toolkit/scratch_pad.h"

/// A scratch pad of palette indexes, which the library can be built with; indexed_scratch_pad.cpp is built so.

namespace {

class IndexedScratchPad : public Fakes {
protected:
    IndexedScratchPad()
    {
        data.dfb = &dfb;
        data.palette[dtk::stroke_index] = {1, 2, 3, 4};
    }

    DTKHDDVD_data data = {};
};

TEST_F(IndexedScratchPad, HasThePaletteAndHoldsTheKey)
{
    EXPECT_EQ(dtk::create_scratch_pad(data, &screen), 0);
    EXPECT_EQ(calls(), R"(
screen.GetSize()
dfb.CreateSurface(flags 15, caps 4, 64 x 48, LUT8)
pen.GetPalette()
pen.palette.SetEntries(01020304 00000000 00000000 from 0)
pen.palette.Release()
pen.SetSrcColorKeyIndex(2)
pen.SetColorIndex(2)
pen.FillRectangle(0, 0, 64, 48)
)");
}

TEST_F(IndexedScratchPad, AnswersEachFailure)
{
    for (const char* failing : {"dfb.CreateSurface", "pen.GetPalette", "pen.SetSrc", "pen.SetColorIndex", "pen.Fill"}) {
        fake::forget_surfaces_but(screen);
        transcript().reset();
        transcript().fail_every(failing, refusal);
        const Outcome outcome = run([&] { return dtk::create_scratch_pad(data, &screen); });
        EXPECT_EQ(outcome.result, refusal) << failing;
        const bool has_message = std::string(failing) == "dfb.CreateSurface";
        EXPECT_EQ(outcome.error, has_message ? "Error creating DrawingToolkit scratchpad!!\n" : "") << failing;
    }
}

} // namespace
