#pragma once

#include <gtest/gtest.h>

/// Makes the global images (screen, pond, water) as CGame::Create does, calm water, no input and a fixed random seed.
/// False when memory runs out.
bool PrepareGlobals();

/// A test that needs these. No window.
class GameFixture : public testing::Test
{
protected:
    void SetUp() override;
};
