#include <cstdlib>

#include <gtest/gtest.h>

/// Nothing that a developer has configured for DirectFB or the platform reaches a test; what a test wants of the platform
/// is in DTKHDDVD_TEST_ZUVOARGS.
static void clear_environment()
{
    setenv("HOME", "/nonexistent", 1);
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "DFBARGS", "ZUVOARGS"})
        unsetenv(name);
    if (const char* words = std::getenv("DTKHDDVD_TEST_ZUVOARGS"))
        setenv("ZUVOARGS", words, 1);
}

int main(int argc, char** argv)
{
    clear_environment();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
