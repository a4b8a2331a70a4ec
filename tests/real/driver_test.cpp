#include "real/directfb.h"

#include <gtest/gtest.h>
#include <string>

TEST(Driver, IsTheOneThatTheTestsWereRegisteredFor)
{
    DFBGraphicsDeviceDescription device = {};
    ASSERT_EQ(real::directfb()->GetDeviceDescription(real::directfb(), &device), DFB_OK);
    EXPECT_EQ(std::string(device.vendor) == "zuvo", real::uses_hosted_driver()) << device.vendor;
}
