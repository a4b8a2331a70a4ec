/// Calls that fail while a toolkit is attached to a surface, and partings from surfaces in every state.
#include "faults/faults.h"
#include "faults/mode.h"
#include "toolkit/records.h"

#include <gmock/gmock.h>

using namespace faults;

namespace {

DFBResult attach(const Session& session)
{
    return AttachDFBSurfaceToDrawingToolkit_HDDVD(session.toolkit(), session.target());
}

DFBResult detach(const Session& session)
{
    return DetachDFBSurfaceToDrawingToolkit_HDDVD(session.toolkit());
}

/// A parting leaves the sub-surface and the scratch pad's context behind, so the test gives them back to count what
/// else would stay.
void detach_and_give_back(const Session& session)
{
    DTKHDDVD_data& data = *session.toolkit()->priv;
    IDirectFBSurface* sub_surface = data.target;
    EXPECT_EQ(detach(session), DFB_OK);
    EXPECT_EQ(data.target, nullptr);
    if (sub_surface)
        sub_surface->Release(sub_surface);
    cairo_destroy(data.scratch_cr);
    data.scratch_cr = nullptr;
}

/// Without a whole attachment a drawing may fail, in one way only: answered, printed and without anything left over.
void expect_orderly_drawings(const Session& session)
{
    for (const Drawing& drawing : all_drawings()) {
        const int held_before = held_references();
        const Outcome outcome = run([&] { return drawing.draw(session.toolkit()); });
        EXPECT_EQ(outcome.error.empty(), outcome.result == DFB_OK) << drawing.name << ": " << outcome.error;
        EXPECT_EQ(held_references(), held_before) << drawing.name;
        EXPECT_EQ(batch_n_blits, 0) << drawing.name;
    }
}

class Attachment : public testing::TestWithParam<Mode> {
protected:
    Attachment()
    {
        for (const Drawing& drawing : all_drawings())
            expected_.push_back(Session(GetParam()).draw_twice(drawing));
    }

    /// The session draws what a toolkit draws that was never troubled.
    void expect_usual_pictures(const Session& session) const
    {
        for (std::size_t i = 0; i < expected_.size(); ++i)
            EXPECT_TRUE(session.draw_twice(all_drawings()[i]) == expected_[i]) << all_drawings()[i].name;
    }

private:
    std::vector<real::Pixels> expected_;
};

/// Lets the n-th call of an attach fail and answers its name, empty when there is none.
std::string fail_one_call(const Session& session, unsigned n)
{
    const int held_before = held_references();
    fail_call(n);
    const Outcome outcome = run([&] { return attach(session); });
    const std::string call = failed_call();
    fail_call(0);
    if (call.empty()) {
        EXPECT_EQ(outcome.result, DFB_OK);
        return call;
    }

    // A context is made anew when something is drawn, and has its reference then. A parting keeps that on DirectFB.
    if (may_be_for_cairo(call) && outcome.result == DFB_OK) {
        for (const Drawing& drawing : all_drawings())
            EXPECT_EQ(run([&] { return drawing.draw(session.toolkit()); }).result, DFB_OK) << drawing.name;
        detach_and_give_back(session);
        real::directfb()->Release(real::directfb());
        EXPECT_EQ(held_references(), held_before) << call;
        return call;
    }

    // A pad that could not tell its size is made of the size 0, which DirectFB refuses.
    EXPECT_TRUE(outcome.result == refusal || (call == "GetSize" && outcome.result)) << call;
    const bool has_message = call == "CreateSurface" || call == "GetSize";
    EXPECT_EQ(outcome.error, has_message ? "Error creating DrawingToolkit scratchpad!!\n" : "") << call;
    expect_orderly_drawings(session);
    detach_and_give_back(session);
    EXPECT_EQ(held_references(), held_before) << call;
    return call;
}

std::string name_of_case(const testing::TestParamInfo<Mode>& info)
{
    return words_of(info.param);
}

} // namespace

TEST_P(Attachment, AnswersEachFailingCallAndWorksAfterwards)
{
    const Session session(GetParam());
    detach_and_give_back(session);
    unsigned n = 1;
    while (!fail_one_call(session, n).empty())
        ++n;
    EXPECT_GT(n, 1u) << "an attach makes calls";
    expect_usual_pictures(session);
}

TEST_P(Attachment, EndsWithoutACallThatCouldFail)
{
    const Session session(GetParam());
    fail_call(1);
    detach_and_give_back(session);
    EXPECT_EQ(detach(session), DFB_OK) << "once more";
    EXPECT_EQ(failed_call(), "");
    fail_call(0);

    expect_orderly_drawings(session);
    EXPECT_EQ(attach(session), DFB_OK);
    expect_usual_pictures(session);
}

TEST_P(Attachment, EndsAfterEachFailingCallOfADrawing)
{
    const Session session(GetParam());
    for (const Drawing& drawing : all_drawings()) {
        for (unsigned n = 1;; ++n) {
            fail_call(n);
            run([&] { return drawing.draw(session.toolkit()); });
            const bool has_failed = !failed_call().empty();
            fail_call(0);
            const int held_before = held_references();
            detach_and_give_back(session);
            EXPECT_EQ(attach(session), DFB_OK);
            EXPECT_EQ(held_references(), held_before + 1) << drawing.name << n << " and DirectFB's one of the attach";
            if (!has_failed)
                break;
        }
    }
    expect_usual_pictures(session);
}

TEST_P(Attachment, BeginsAndEndsWhileTheApplicationHoldsALock)
{
    const Session session(GetParam());
    detach_and_give_back(session);
    void* pixels = nullptr;
    int pitch = 0;
    ASSERT_EQ(session.target()->Lock(session.target(), DSLF_WRITE, &pixels, &pitch), DFB_OK);
    EXPECT_EQ(attach(session), DFB_OK);
    expect_orderly_drawings(session);
    detach_and_give_back(session);
    EXPECT_EQ(attach(session), DFB_OK);
    EXPECT_EQ(session.target()->Unlock(session.target()), DFB_OK);
    expect_usual_pictures(session);
}

INSTANTIATE_TEST_SUITE_P(, Attachment, testing::ValuesIn(all_modes()), name_of_case);
