#include "support/program_fixture.h"

#include "app/frame_images.h"
#include "app/game.h"
#include "app/game_window.h"
#include "app/scenes.h"
#include "doubles/directx.h"
#include "doubles/system.h"
#include "gfx/error.h"
#include "gfx/rgb565.h"
#include "platform/kernel.h"
#include "platform/sdl/native_window.h"
#include "support/test_system.h"

void ProgramFixture::SetUp()
{
    UseTestSystem(pictures.folder);
    directX = {};
    systemDouble = {};
    systemDouble.programPath = pictures.folder.Path() + "/tervalis";
    lastError = ENGINE_NO_ERROR;
    requestedSection = currentSection = nullptr;
    nextFrameTime = 0;
    ASSERT_TRUE(CreateGameWindow(nullptr));
}

void ProgramFixture::TearDown()
{
    requestedSection = nullptr;
    DestroyWindow(gameWindow);
    EXPECT_EQ(RunMessageLoop(), 0);
    CloseHandle(instanceMutex);
    instanceMutex = nullptr;
    LeaveTestSystem();
    EXPECT_EQ(directX.objects, 0);
}

uint16_t ProgramFixture::WindowPixel(int x, int y)
{
    const SDL_Surface* const screen = SDL_GetWindowSurface(nativeWindow.handle);
    const uint8_t* const row = static_cast<const uint8_t*>(screen->pixels) + ptrdiff_t{ y } * screen->pitch;
    const uint32_t pixel = reinterpret_cast<const uint32_t*>(row)[x];
    return Rgb565(pixel >> 16 & 0xF8, pixel >> 8 & 0xF8, pixel & 0xF8);
}
