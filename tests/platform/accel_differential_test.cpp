// The same random program with and without the driver: the same results and the same memory after every call.
#include <gtest/gtest.h>

#include <cstdlib>

#include "accel_program.h"

namespace {

using accel::Driver;
using accel::Lines;

constexpr int steps = 1500;

/// More seeds than the test's own: set ACCEL_SEEDS to their number.
unsigned int seeds()
{
    const char* asked = std::getenv("ACCEL_SEEDS");
    return asked ? static_cast<unsigned int>(std::atoi(asked)) : 6;
}

Lines run(Driver driver, unsigned int seed, const std::string& words)
{
    return accel::run_with_directfb(
        driver,
        [&](IDirectFB& directfb, Lines& said) {
            accel::Program program(directfb, seed);
            for (int i = 0; i < steps; ++i)
                program.step(said);
        },
        words);
}

void expect_equal(const Lines& with, const Lines& without, unsigned int seed)
{
    ASSERT_EQ(with.size(), without.size()) << "seed " << seed;
    for (size_t i = 0; i < with.size(); ++i)
        ASSERT_EQ(with[i], without[i]) << "seed " << seed << ", call " << i;
    ASSERT_EQ(with.back(), "finished");
}

} // namespace

class AccelDifferential : public testing::TestWithParam<unsigned int> {};

TEST_P(AccelDifferential, RandomProgramsLeaveTheSamePixels)
{
    const unsigned int seed = GetParam();
    expect_equal(run(Driver::on, seed, ""), run(Driver::off, seed, ""), seed);
}

INSTANTIATE_TEST_SUITE_P(Seed, AccelDifferential, testing::Range(1u, seeds() + 1));
