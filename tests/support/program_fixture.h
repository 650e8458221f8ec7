#pragma once

#include "doubles/directx.h"
#include "doubles/system.h"
#include "gfx/rgb565.h"
#include "platform/sdl/native_window.h"
#include "support/session.h"

#include <gtest/gtest.h>

#include <optional>

/// The program from its start, with DirectX and the clock as doubles.
class ProgramFixture : public testing::Test
{
protected:
    void SetUp() override
    {
        directX = {};
        systemDouble = {};
        session.emplace(Recording::FROM_START, 1);
    }
    void TearDown() override
    {
        session.reset();
        EXPECT_EQ(directX.objects, 0) << "nothing outlives the program";
    }
    /// A pixel of the window as RGB565, with the five bits of each channel that every conversion keeps.
    static uint16_t WindowPixel(int x, int y)
    {
        const SDL_Surface* const screen = SDL_GetWindowSurface(nativeWindow.handle);
        const uint8_t* const row = static_cast<const uint8_t*>(screen->pixels) + ptrdiff_t{ y } * screen->pitch;
        const uint32_t pixel = reinterpret_cast<const uint32_t*>(row)[x];
        return Rgb565(pixel >> 16 & 0xF8, pixel >> 8 & 0xF8, pixel & 0xF8);
    }

    std::optional<Session> session;
};
