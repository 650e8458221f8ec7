#include "actors/snake.h"
#include "game/pond.h"
#include "sound/sound.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr int SAFE_FRAMES = 50; ///< moved frames after a start in which nothing kills

// What a berry is worth. The popup shows what comes on top of the ordinary points.
constexpr int BERRY_POINTS = 5;
constexpr int GOLDEN_BONUS = 30;
constexpr int RAIN_BONUS = 10;
constexpr int FAST_BONUS = 5;
constexpr int popupPoints[] = { 5, 10, 15, 30, 35, 40, 45 }; ///< by PopupKind
}

void CSnake::CheckHead()
{
    if (!IsHeadOnGrid())
        return;
    CheckFreeze();
    CheckCollision();
    CheckBerry(); // also in the frame of a collision
}

/// At full length all but the first segments turn to stone; one berry before, the heart beats.
void CSnake::CheckFreeze()
{
    if (length == MAX_SEGMENTS) {
        SoundStop(BeatSound());
        SoundPlay(SOUND_FREEZE, false);
        for (int i = START_LENGTH; i < MAX_SEGMENTS; ++i)
            pond->TurnToStone(segments[i].x, segments[i].y);
        length = START_LENGTH;
        return;
    }
    if (length == MAX_SEGMENTS - 1 && shrinkCount == 0)
        SoundPlay(BeatSound(), true);
}

void CSnake::CheckCollision()
{
    if (movedFrames <= SAFE_FRAMES || !pond->IsOccupied(segments[0].x, segments[0].y))
        return;
    SoundStop(BeatSound());
    SoundPlay(SOUND_DIE, false);
    isDying = true;
    deathFrames = 0;
}

void CSnake::CheckBerry()
{
    int colour = 0;
    if (!pond->EatAt(segments[0].x, segments[0].y, colour, Heading(), eyeFrame))
        return;
    ScoreBerry(colour);
    CountStreak(colour);
    Grow();
}

void CSnake::ScoreBerry(int colour)
{
    int bonus = colour == GOLDEN ? GOLDEN_BONUS : 0;
    if (rainTimer >= 1 && rainTimer < RAIN_FALLS)
        bonus += RAIN_BONUS;
    if (speed == FAST_SPEED && !slowDownPending)
        bonus += FAST_BONUS;
    score += BERRY_POINTS + bonus;
    const int* popup = std::find(std::begin(popupPoints), std::end(popupPoints), bonus);
    if (popup != std::end(popupPoints))
        pond->ShowPopup(segments[0].x, segments[0].y, static_cast<int>(popup - popupPoints));
}

void CSnake::CountStreak(int colour)
{
    if (colour == GOLDEN) {
        streak = 0;
        return;
    }
    streak = colour == lastColour ? streak + 1 : 1;
    lastColour = colour;
}

/// The new segment waits on the tail's spot and unrolls behind it.
void CSnake::Grow()
{
    // Not reached: a snake freezes at full length before it eats, and one that is gone does not. Kept for the array.
    if (length == 0 || length == MAX_SEGMENTS)
        return;
    segments[length] = segments[length - 1];
    ++length;
}
