#include "game/section_main.h"

#include "app/frame_images.h"
#include "app/input.h"
#include "app/log.h"
#include "app/scenes.h"
#include "game/water.h"
#include "platform/frame_hints.h"
#include "platform/kernel.h"
#include "platform/window.h"

namespace
{
constexpr int DAMPING_SHIFT = 5; ///< a wave keeps 31 of 32 parts of its height a frame
/// A slope of 8 shows what lies a pixel further down, or half a pixel further right.
constexpr int REFRACTION_SHIFT = 3;
constexpr int MOUSE_REST_FRAMES = 5 * FRAMES_PER_SECOND;

void TellPlayers(const CPond& pond)
{
    for (int i = 0; i <= pond.players && !pond.snake[0].isPaused; ++i) {
        const CSnake& snake = pond.snake[i];
        TellSteering({ snake.keyUp, snake.keyDown, snake.keyLeft, snake.keyRight }, snake.SnakeIsSwimming());
    }
}

/// Only a player alone enters the ranking.
void LeaveForMenu(const CPond& pond)
{
    if (pond.players == 0)
        EnterRanking(pond.snake[0].score);
    RequestMenu();
    input.DropPresses();
}
}

bool CSectionMain::SectionBegin()
{
    WaterInit(waterBufferA, waterBufferB, DAMPING_SHIFT, REFRACTION_SHIFT);
    const auto& [players, keys1, keys2] = ChosenGame();
    if (!pond.NewGame(players, keys1, keys2))
        return false;
    input.lastKeyDown = 0; // the key that started the game is not a turn
    WriteLog("CSectionMain::SectionBegin");
    return true;
}

bool CSectionMain::SectionEnd()
{
    pond.GameEnd();
    WriteLog("CSectionMain::SectionEnd");
    return true;
}

bool CSectionMain::SectionProcess()
{
    if (!input.hasFocus) {
        Sleep(100);
        return true;
    }
    pond.GameFrame(pondImage, input.lastKeyDown);
    input.lastKeyDown = 0;
    input.lastKeyUp = 0;
    TellPlayers(pond);
    if (pond.gameOver)
        LeaveForMenu(pond);
    ShowOrHideCursor();
    return true;
}

void CSectionMain::CountMouseRest()
{
    if (input.mouseX == lastMouseX && input.mouseY == lastMouseY) {
        ++mouseIdleFrames;
        return;
    }
    lastMouseX = input.mouseX;
    lastMouseY = input.mouseY;
    mouseIdleFrames = 0;
}

/// Hides the cursor of a resting mouse, except while there are buttons to click.
void CSectionMain::ShowOrHideCursor()
{
    CountMouseRest();
    if (mouseIdleFrames >= MOUSE_REST_FRAMES && !pond.statusBar.panelOpen)
        SetCursor(nullptr);
    else
        SetCursor(LoadCursorA(nullptr, IDC_ARROW));
}
