#pragma once

#include <gtest/gtest.h>

/// A test that needs the global images (screen, pond, water) as CGame::Create makes them, calm water, no input and a
/// fixed random seed. No window.
class GameFixture : public testing::Test
{
protected:
    void SetUp() override;
};
