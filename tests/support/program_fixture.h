#pragma once

#include "doubles/directx.h"
#include "platform/sdl/native_window.h"
#include "support/session.h"

#include <gtest/gtest.h>

#include <optional>

/// The program from its start, with DirectX and the clock as doubles.
struct ProgramFixture : testing::Test {
    void SetUp() override
    {
        directX = {};
        session.emplace(Recording::FROM_START, 1);
    }
    void TearDown() override
    {
        session.reset();
        EXPECT_EQ(directX.objects, 0) << "nothing outlives the program";
    }

    std::optional<Session> session;
};
