/// Allocations of the library that fail, on real DirectFB.
#include "faults/faults.h"
#include "faults/mode.h"
#include "support/allocation.h"

#include <gtest/gtest.h>
#include <vector>

using namespace faults;

namespace {

constexpr unsigned no_memory = 2;

/// A creation that fails gives back a reference on DirectFB which it never took, so that one is taken for each try.
Outcome run_with_spare_reference(const std::function<DFBResult()>& operation)
{
    real::directfb()->AddRef(real::directfb());
    const Outcome outcome = run(operation);
    real::directfb()->Release(real::directfb());
    return outcome;
}

void expect_each_failure_answered(const std::function<DFBResult()>& operation)
{
    for (int n = 1;; ++n) {
        const int held_before = held_references();
        fake::fail_allocation(n);
        const Outcome outcome = run_with_spare_reference(operation);
        const bool has_failed = fake::allocation_failed();
        fake::fail_allocation(0);

        EXPECT_EQ(held_references(), held_before);
        EXPECT_EQ(static_cast<unsigned>(outcome.result), has_failed ? no_memory : 0u);
        if (!has_failed) {
            EXPECT_GT(n, 1) << "nothing was allocated";
            return;
        }
    }
}

class AllocationFailure : public testing::TestWithParam<bool> {
protected:
    const Session session{Mode{GetParam(), true, false, Fill::opaque}};
};

std::string name_of_case(const testing::TestParamInfo<bool>& info)
{
    return info.param ? "Hardware" : "Software";
}

} // namespace

TEST_P(AllocationFailure, OfACreationIsAnswered)
{
    expect_each_failure_answered([&] {
        DTKHDDVD* toolkit = nullptr;
        const DFBResult result = CreateDrawingToolkit_HDDVD(real::directfb(), session.target(), 1, &toolkit);
        EXPECT_EQ(toolkit == nullptr, result != DFB_OK);
        if (toolkit)
            toolkit->Release(toolkit);
        return result;
    });
}

TEST_P(AllocationFailure, OfAPenIsAnswered)
{
    expect_each_failure_answered([&] {
        static const DTKHDDVDPenShape shape = {-3, -3, 3, -3, 3, 3, -3, 3};
        DTKHDDVDPen* pen = nullptr;
        const DFBResult result = session.toolkit()->CreatePen(session.toolkit(), &shape, &pen);
        EXPECT_EQ(pen == nullptr, result != DFB_OK);
        if (pen)
            pen->Release(pen);
        return result;
    });
}

TEST(AllocationFailureOnTheEngine, OfALongPolygonIsAnswered)
{
    const Session session(Mode{true, false, false, Fill::opaque});
    const std::vector<DFBPoint> points(300, DFBPoint{5, 5});
    expect_each_failure_answered([&] {
        return session.toolkit()->Polygon(session.toolkit(), points.data(), 300, 1, DTKHDDVD_FILL);
    });
}

INSTANTIATE_TEST_SUITE_P(, AllocationFailure, testing::Bool(), name_of_case);
