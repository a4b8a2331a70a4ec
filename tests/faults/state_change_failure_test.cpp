/// Calls that fail while a toolkit is made, attached or set up.
#include "faults/faults.h"
#include "faults/mode.h"
#include "toolkit/records.h"

#include <gmock/gmock.h>

using namespace faults;

namespace {

/// An operation that sets something, and the name that it reports failures with.
struct Change {
    std::string name;
    std::function<DFBResult(const Session&)> make;
};

DFBResult make_and_drop_pen(const Session& session)
{
    static const DTKHDDVDPenShape shape = {-3, -3, 3, -3, 3, 3, -3, 3};
    DTKHDDVDPen* pen = nullptr;
    const DFBResult result = session.toolkit()->CreatePen(session.toolkit(), &shape, &pen);
    EXPECT_EQ(pen == nullptr, result != DFB_OK);
    if (pen)
        pen->Release(pen);
    return result;
}

/// Sets the current pen once more, which takes a reference of the caller's own where there is one.
DFBResult set_pen_again(const Session& session)
{
    DTKHDDVDPen* pen = session.toolkit()->priv->pen;
    if (!pen)
        return session.toolkit()->SetPen(session.toolkit(), nullptr);
    pen->AddRef(pen);
    const DFBResult result = session.toolkit()->SetPen(session.toolkit(), pen);
    pen->Release(pen);
    return result;
}

const std::vector<Change>& all_changes()
{
    static const std::vector<Change> changes = {
        {"DTKHDDVD_CreatePen", make_and_drop_pen},
        {"DTKHDDVD_SetPen", set_pen_again},
        {"DTKHDDVD_SetStrokeColor",
         [](const Session& session) { return session.toolkit()->SetStrokeColor(session.toolkit(), 1, 2, 3, 4); }},
        {"DTKHDDVD_SetFillColor",
         [](const Session& session) { return session.toolkit()->SetFillColor(session.toolkit(), 1, 2, 3, 4); }},
        {"DTKHDDVD_SetFillPattern",
         [](const Session& session) {
             return session.toolkit()->SetFillPattern(session.toolkit(), session.texture());
         }},
    };
    return changes;
}

/// Nobody looks whether cairo could draw a pen's shape, nor whether a pattern has a handle for the engine. A colour that
/// ends a pattern answers for that alone.
bool is_unchecked(const Mode& mode, const Change& change, const std::string& call, DFBResult result)
{
    const bool ends_pattern = change.name == "DTKHDDVD_SetFillColor" && mode.fill == Fill::pattern;
    return ends_pattern || (may_be_for_cairo(call) && result == DFB_OK) || call == "GetID";
}

/// Lets the n-th call fail and answers its name, empty when there is none.
std::string fail_one_call(const Mode& mode, const Change& change, unsigned n)
{
    const Session session(mode);
    const int held_before = held_references();
    fail_call(n);
    const Outcome outcome = run([&] { return change.make(session); });
    const std::string call = failed_call();
    fail_call(0);
    if (call.empty() || is_unchecked(mode, change, call, outcome.result)) {
        EXPECT_EQ(outcome.result, DFB_OK) << call;
        return call;
    }

    const bool is_cairos = may_be_for_cairo(call) && outcome.result == real::own_failure;
    EXPECT_EQ(outcome.result, is_cairos ? real::own_failure : refusal) << call;
    EXPECT_THAT(outcome.error, testing::HasSubstr("error in " + change.name + ": ")) << call;
    EXPECT_EQ(line_count(outcome.error), is_cairos ? 2 : 1) << outcome.error;

    // A pen's picture that exists already when a later step fails is not given back.
    EXPECT_LE(held_references() - held_before, change.name == "DTKHDDVD_CreatePen" ? 1 : 0) << call;
    EXPECT_EQ(change.make(session), DFB_OK) << "after a failure of " << call;
    return call;
}

DFBResult create_and_release(const Session& session)
{
    DTKHDDVD* toolkit = nullptr;
    const DFBResult result = CreateDrawingToolkit_HDDVD(real::directfb(), session.target(), 1, &toolkit);
    EXPECT_EQ(toolkit == nullptr, result != DFB_OK);
    if (toolkit)
        toolkit->Release(toolkit);
    return result;
}

class StateChange : public testing::TestWithParam<Mode> {};

std::string name_of_case(const testing::TestParamInfo<Mode>& info)
{
    return words_of(info.param);
}

} // namespace

TEST_P(StateChange, ReportsEachFailingCall)
{
    for (const Change& change : all_changes()) {
        unsigned n = 1;
        while (!fail_one_call(GetParam(), change, n).empty())
            ++n;
    }
}

TEST_P(StateChange, OfCreationAnswersEachFailingCall)
{
    const Session session(GetParam());
    for (unsigned n = 1;; ++n) {
        // A creation that fails gives back a reference on DirectFB which it never took.
        real::directfb()->AddRef(real::directfb());
        const int held_before = held_references();
        fail_call(n);
        const Outcome outcome = run([&] { return create_and_release(session); });
        const std::string call = failed_call();
        fail_call(0);
        if (outcome.result == DFB_OK)
            real::directfb()->Release(real::directfb());
        if (call.empty())
            break;
        EXPECT_TRUE(outcome.result == refusal || call == "GetSize" || may_be_for_cairo(call)) << call;
        EXPECT_EQ(held_references(), held_before - 1) << call;
    }
    EXPECT_EQ(create_and_release(session), DFB_OK);
}

INSTANTIATE_TEST_SUITE_P(, StateChange, testing::ValuesIn(all_modes()), name_of_case);
