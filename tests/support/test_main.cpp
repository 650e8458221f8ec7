#include "support/settings_store.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    UseNoSettings();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
