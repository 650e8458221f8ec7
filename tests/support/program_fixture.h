#pragma once

#include "support/test_pictures.h"

#include <cstdint>
#include <gtest/gtest.h>

/// The program's window on SDL's driver without a screen, with display, sound and global images as the program starts
/// them, in a folder with stand-in pictures and settings of its own; DirectX, clock and program path are doubles.
class ProgramFixture : public testing::Test
{
protected:
    void SetUp() override;
    /// Also checks that nothing of DirectX outlives the window.
    void TearDown() override;

    /// A pixel of the window as RGB565, with the five bits of each channel that every conversion keeps.
    static uint16_t WindowPixel(int x, int y);

    TestPictures pictures;
};
