/// Each call that an operation makes fails once, in every mode.
#include "faults/faults.h"
#include "faults/mode.h"

#include <gmock/gmock.h>

using namespace faults;

namespace {

/// Calls at whose results nobody looks: a stamper answers for its last call only, and the filled ellipse for none.
bool is_unchecked(const Mode& mode, const Drawing& drawing, const std::string& call)
{
    const bool is_stamping = mode.has_pen && (call == "GetSize" || call == "BatchBlit");
    const bool is_filling = call == "Lock" || call == "SetColor" || call == "FillRectangle" || call == "GetSize";
    const bool is_found_by_itself = call == "GetPixelFormat" && may_be_for_cairo(call);
    return call == "WaitIdle" || is_found_by_itself || is_stamping || (drawing.name == "DTKHDDVD_Ellipse" && is_filling);
}

class CallFailure : public testing::TestWithParam<Mode> {};

void expect_reported(const Mode& mode, const Drawing& drawing, const Outcome& outcome, const std::string& call)
{
    // The engine's failures and those of cairo become the library's own.
    const bool is_own = call.rfind("zuvo_", 0) == 0 || call == "GetID" ||
                        (may_be_for_cairo(call) && outcome.result == real::own_failure);
    if (outcome.result == DFB_OK) {
        EXPECT_TRUE(is_unchecked(mode, drawing, call)) << call;
        EXPECT_EQ(outcome.error, "") << call;
        return;
    }
    EXPECT_EQ(outcome.result, is_own ? real::own_failure : refusal) << call;
    EXPECT_THAT(outcome.error, testing::HasSubstr("error in " + drawing.name + ": ")) << call;
    EXPECT_THAT(outcome.error, testing::EndsWith("\n"));
    EXPECT_TRUE(is_own || line_count(outcome.error) == 1) << outcome.error;
}

/// Lets the n-th call fail and answers its name, empty when there is none.
std::string fail_one_call(const Mode& mode, const Drawing& drawing, unsigned n, const real::Pixels& expected)
{
    const Session session(mode);
    const int held_before = held_references();
    fail_call(n);
    const Outcome outcome = run([&] { return drawing.draw(session.toolkit()); });
    const std::string call = failed_call();
    fail_call(0);
    if (call.empty())
        return call;

    expect_reported(mode, drawing, outcome, call);
    EXPECT_EQ(held_references(), held_before) << call;
    EXPECT_EQ(batch_n_blits, 0) << call;
    EXPECT_TRUE(session.draw_twice(drawing) == expected) << "the picture after a failure of " << call;
    return call;
}

unsigned fail_every_call(const Mode& mode, const Drawing& drawing)
{
    const real::Pixels expected = Session(mode).draw_twice(drawing);
    unsigned n = 1;
    while (!fail_one_call(mode, drawing, n, expected).empty())
        ++n;
    return n - 1;
}

std::string name_of_case(const testing::TestParamInfo<Mode>& info)
{
    return words_of(info.param);
}

} // namespace

TEST_P(CallFailure, IsReportedOnceAndLeavesNothingBehind)
{
    for (const Drawing& drawing : all_drawings())
        EXPECT_GT(fail_every_call(GetParam(), drawing), 0u) << drawing.name;
}

INSTANTIATE_TEST_SUITE_P(, CallFailure, testing::ValuesIn(all_modes()), name_of_case);
