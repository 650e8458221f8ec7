#include "support/program_fixture.h"

#include "app/frame_images.h"
#include "app/game.h"
#include "app/game_window.h"
#include "app/input.h"
#include "app/scenes.h"
#include "doubles/directx.h"
#include "doubles/system.h"
#include "gfx/error.h"
#include "gfx/rgb565.h"
#include "platform/kernel.h"
#include "platform/sdl/native_window.h"
#include "sound/sound.h"
#include "support/settings_store.h"

#include <cstdlib>

void ProgramFixture::SetUp()
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    setenv("SDL_RENDER_DRIVER", "software", 1);
    setenv("XDG_RUNTIME_DIR", pictures.folder.Path().c_str(), 1);
    UseFreshSettings(pictures.folder);
    directX = {};
    systemDouble = {};
    systemDouble.programPath = pictures.folder.Path() + "/tervalis";
    lastError = ENGINE_NO_ERROR;
    requestedSection = currentSection = nullptr;
    nextFrameTime = 0;
    captureScreen = false;
    ASSERT_TRUE(CreateGameWindow(nullptr));
    input = InputState{};
}

void ProgramFixture::TearDown()
{
    requestedSection = nullptr;
    DestroyWindow(gameWindow);
    EXPECT_TRUE(HasQuit());
    if (instanceMutex)
        CloseHandle(instanceMutex);
    instanceMutex = nullptr;
    SoundSetMute(0);
    UseNoSettings();
    EXPECT_EQ(directX.objects, 0);
}

LRESULT ProgramFixture::Send(UINT message, WPARAM wParam, LPARAM lParam)
{
    return game.WndProc(gameWindow, message, wParam, lParam);
}

bool ProgramFixture::HasQuit()
{
    MSG message = {};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE)) {
        if (!GetMessageA(&message, nullptr, 0, 0))
            return true;
        DispatchMessageA(&message);
    }
    return false;
}

uint16_t ProgramFixture::WindowPixel(int x, int y)
{
    const SDL_Rect place = { x, y, 1, 1 };
    uint32_t pixel = 0;
    SDL_RenderReadPixels(SDL_GetRenderer(nativeWindow.handle), &place, SDL_PIXELFORMAT_ARGB8888, &pixel, 4);
    return Rgb565(pixel >> 16 & 0xF8, pixel >> 8 & 0xF8, pixel & 0xF8);
}
