#include "actors/snake.h"

#include "app/log.h"
#include "game/pond.h"
#include "game/water.h"
#include "sound/sound.h"

#include <cstdlib>

namespace
{
constexpr std::span<const PictureRow> allPictures = snakePictures;
constexpr size_t BODIES = 2;
constexpr int START_LIVES = 2;
constexpr int BERRY_DISTANCE = 6; ///< cells that new berries keep from a head, in columns and in rows
}

bool CSnake::SnakeInit(int enterX, CPond* owner, int playerNumber, int up, int down, int left, int right)
{
    const int32_t previousPlayer = player;
    player = playerNumber; // decides which body is loaded
    if (!SnakeLoadImage()) {
        player = previousPlayer;
        return false;
    }
    pond = owner;
    startX = enterX;
    keyUp = up;
    keyDown = down;
    keyLeft = left;
    keyRight = right;
    length = START_LENGTH;
    for (int i = 0; i < length; ++i)
        segments[i] = { .x = startX, .y = POND_SIZE, .dir = keyUp };
    lives = START_LIVES;
    isPaused = false;
    isWaiting = false;
    startPressed = false;
    slowDownPending = false;
    isActive = true;
    isOut = false;
    frameCount = 0;
    isDying = false;
    deathFrames = 0;
    score = 0;
    lastColour = NO_COLOUR;
    streak = 0;
    pendingEffect = NO_EFFECT;
    rainTimer = 0;
    Calm();
    return true;
}

std::array<std::span<CImage>, SNAKE_IMAGE_SETS> CSnake::ImageSets()
{
    std::array<std::span<CImage>, SNAKE_IMAGE_SETS> sets;
    sets[SNAKE_BODY] = { &bodyImage, 1 };
    sets[SNAKE_EYES] = eyeImages;
    sets[SNAKE_BUMP_EYES] = bumpEyeImages;
    sets[SNAKE_ARROWS] = arrowImages;
    sets[SNAKE_SHADOW] = { &shadowImage, 1 };
    return sets;
}

bool CSnake::SnakeLoadImage()
{
    const size_t body = player == 1 ? 0 : 1;
    if (!LoadPictures(ImageSets(), allPictures.subspan(body, 1)) ||
        !LoadPictures(ImageSets(), allPictures.subspan(BODIES)))
        return false;
    WriteLog("CSnake::SnakeLoadImage");
    return true;
}

void CSnake::SnakeFreeImage()
{
    FreeImages(ImageSets());
    WriteLog("CSnake::SnakeFreeImage");
}

void CSnake::SnakeClear()
{
    for (Segment& segment : segments)
        segment = {};
}

bool CSnake::SnakeProcess(CImage& pondPicture, int key)
{
    const bool coils = !isActive && !isDying && IsHeadOnGrid();
    const bool runs = !isPaused && !coils && !isDying;
    if (runs)
        Run(key);
    else if (coils && !isPaused)
        Coil();
    else if (!isPaused)
        StepDeath();
    SplashVanishing();
    if (!isPaused)
        StepEntry();
    SnakeDraw(pondPicture);
    if (runs) {
        if (isActive && !isWaiting)
            CheckHead();
        RunEffects();
    }
    return true;
}

void CSnake::Run(int key)
{
    if (!isWaiting)
        ++movedFrames;
    ++frameCount;
    TakeKey(key);
    MakeWake();
    TurnHead();
    if (!isWaiting)
        Move();
}

void CSnake::SnakeCountCells(int* grid) const
{
    for (int i = 0; i < length; ++i) {
        const int cell = CellAt(segments[i].x, segments[i].y);
        if (IsCell(cell)) // a snake that enters starts below the pond's edge
            ++grid[cell];
    }
}

bool CSnake::SnakeGetHead(int& headX, int& headY) const
{
    if (isDying && length == 0)
        return false;
    headX = segments[0].x;
    headY = segments[0].y;
    return true;
}

bool CSnake::SnakeIsFarFrom(int cell) const
{
    const int head = CellAt(segments[0].x, segments[0].y);
    if (!IsCell(head))
        return true;
    return std::abs(cell % CELL_COLUMNS - head % CELL_COLUMNS) > BERRY_DISTANCE ||
           std::abs(cell / CELL_COLUMNS - head / CELL_COLUMNS) > BERRY_DISTANCE;
}

void CSnake::SnakeGather()
{
    if (IsGone())
        return;
    isActive = false;
    rainTimer = 0;
    streak = 0;
    lastColour = NO_COLOUR;
    pendingEffect = NO_EFFECT;
    Calm();
    SoundStop(BeatSound());
    SoundStop(RainSound());
}

/// Slow and straight on, safe at first.
void CSnake::Calm()
{
    movedFrames = 0;
    speed = NORMAL_SPEED;
    shrinkCount = 0;
    speedUpTimer = 0;
    turnCount = 0;
    eyeFrame = 0;
}

void CSnake::SnakeRestart()
{
    if (IsGone())
        return;
    // A snake shorter than at the start gets its missing segments where the others lie, on the head.
    for (int i = length; i < START_LENGTH; ++i)
        segments[i] = segments[0];
    length = START_LENGTH;
    isActive = true;
    isWaiting = true;
}

int CSnake::RainSound() const
{
    return player == 1 ? SOUND_RAIN_1 : SOUND_RAIN_2;
}

int CSnake::BeatSound() const
{
    return player == 1 ? SOUND_BEAT_1 : SOUND_BEAT_2;
}

void CSnake::Splash(const Segment& segment)
{
    SplashCell(segment.x, segment.y, LIGHT_SPLASH);
}
