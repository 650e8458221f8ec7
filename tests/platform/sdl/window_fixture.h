#pragma once

#include "platform/window.h"

#include <gtest/gtest.h>
#include <string>

/// A window with a client area of 640 x 480, as the game shows it, on SDL's driver without a screen, which is
/// 1024 x 768. Events and messages are words, which window_events.txt explains.
struct WindowFixture : testing::Test {
    void SetUp() override;
    void TearDown() override;

    /// Puts an event into SDL's queue.
    static void Push(const std::string& word);
    /// Gives the window what is due in this frame.
    static void RunMessages();
    /// All that reached its procedure since the last call, in as many frames as that takes: "+A 'a | -A".
    static std::string RunFrames();

    HWND window = nullptr;
};
