#include <gtest/gtest.h>

#include <cstdlib>

/// Tests must not touch the settings of whoever runs them: the store has no folder unless a test gives it one.
int main(int argc, char** argv)
{
    setenv("XDG_CONFIG_HOME", "/dev/null", 1);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
