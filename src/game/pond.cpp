#include "game/pond.h"

#include "app/frame_images.h"
#include "app/random.h"
#include "game/water.h"
#include "gfx/image.h"
#include "sound/sound.h"

#include <algorithm>
#include <functional>

namespace
{
/// Where the snakes enter the pond.
constexpr int ENTER_ALONE = 240;
constexpr int ENTER_PLAYER_1 = 160;
constexpr int ENTER_PLAYER_2 = 320;

constexpr int PAUSED_OPACITY = 128;

bool InitSnake(CSnake& snake, int enterX, CPond* pond, int player, const uint32_t* keys)
{
    const auto key = [keys](int i) { return static_cast<int>(keys[i]); };
    return snake.SnakeInit(enterX, pond, player, key(0), key(1), key(2), key(3));
}

/// Now and then one of the sounds around the pond: every 200 frames on average.
void PlayAmbience()
{
    const int sound = Random() % 1000;
    if (sound >= SOUND_ENV_FIRST && sound <= SOUND_ENV_LAST)
        SoundPlay(sound, false);
}
}

bool CPond::NewGame(int playerMode, const uint32_t* keys1, const uint32_t* keys2)
{
    snake[0].score = 0;
    snake[1].score = 0;
    players = playerMode;
    if (!InitSnakes(keys1, keys2))
        return false;
    statusBar.StatusBarReset(this);
    ClearCells();
    std::fill(std::begin(lasers), std::end(lasers), Laser{});
    std::fill(std::begin(popups), std::end(popups), Popup{});
    gameOver = false;
    fadeOut = 0;
    isDay = true;
    transition = 0;
    dayTimer = 0;
    highlightNext = 0;
    std::fill(std::begin(highlight), std::end(highlight), -1);
    introFrames = 0;
    shockwave = Shockwave{};
    return true;
}

bool CPond::InitSnakes(const uint32_t* keys1, const uint32_t* keys2)
{
    if (players == 1)
        return InitSnake(snake[0], ENTER_PLAYER_1, this, 1, keys1) &&
               InitSnake(snake[1], ENTER_PLAYER_2, this, 2, keys2);
    if (!InitSnake(snake[0], ENTER_ALONE, this, 1, keys1))
        return false;
    snake[1].SnakeClear();
    return true;
}

void CPond::ClearCells()
{
    for (int i = 0; i < CELL_COUNT; ++i)
        cells[i] = Cell{ .x = CELL_SIZE * (i % CELL_COLUMNS), .y = CELL_SIZE * (i / CELL_COLUMNS) };
}

bool CPond::GameFrame(CImage& pondPicture, int key)
{
    if (snake[0].isPaused) {
        DrawPausedFrame();
        return true;
    }
    StepShockwave();
    CheckLevel();
    CountDay();
    DrawBackground(pondPicture);
    StepTransition();
    DrawEndFade(pondPicture);
    StepEndFade();
    if (DrawIntro(pondPicture))
        return true;
    DrawSnakeShadows(pondPicture);
    DrawPondObjects(pondPicture);
    SplashLandedBerries();
    StepLasers();
    ProcessSnakes(pondPicture, key);
    FadeMoon();
    DrawMoon(pondPicture);
    RaiseMoon();
    WaterFrame(pondPicture.pixels, 0, 0, POND_SIZE, POND_SIZE, backBuffer.pixels, POND_LEFT, 0, backBuffer.pitch);
    DrawPopups(backBuffer);
    RaisePopups();
    DrawGrowingBerries(backBuffer);
    GrowBerries();
    DrawArrows(backBuffer);
    statusBar.StatusBarProcess(backBuffer);
    PlayAmbience();
    return true;
}

void CPond::GameEnd()
{
    for (CSnake& each : SnakesInPlay())
        each.SnakeFreeImage();
    for (int id = SOUND_POND_FIRST; id <= SOUND_POND_LAST; ++id)
        SoundStop(id);
}

/// The frozen frame, dimmed to half; the water does not run.
void CPond::DrawPausedFrame()
{
    screenCopy.blit = BlitFadeToBlack;
    screenCopy.opacity = PAUSED_OPACITY;
    screenCopy.Draw(backBuffer);
    statusBar.StatusBarProcess(backBuffer);
}

int CPond::Score()
{
    int score = 0;
    for (const CSnake& each : SnakesInPlay())
        score += each.score;
    return score;
}

void CPond::CheckLevel()
{
    if (Score() >= statusBar.target)
        statusBar.StatusBarLevelCleared();
}

void CPond::DrawSnakeShadows(CImage& pondPicture)
{
    for (CSnake& each : SnakesInPlay())
        each.SnakeDrawShadow(pondPicture);
}

void CPond::ProcessSnakes(CImage& pondPicture, int key)
{
    for (CSnake& each : SnakesInPlay())
        each.SnakeProcess(pondPicture, key);
    for (CSnake& each : SnakesInPlay())
        each.SnakeReleaseStart();
    for (CSnake& each : SnakesInPlay())
        each.SnakeEndSlowDown();
    const std::span<CSnake> snakes = SnakesInPlay();
    if (fadeOut == 0 && std::all_of(snakes.begin(), snakes.end(), std::mem_fn(&CSnake::isOut)))
        statusBar.StatusBarGameOver();
}

void CPond::DrawArrows(CImage& screen)
{
    for (CSnake& each : SnakesInPlay())
        each.SnakeDrawArrows(screen);
}
