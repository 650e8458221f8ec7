#include "actors/snake.h"
#include "actors/snake_rules.h"
#include "game/geometry.h"
#include "game/pond.h"
#include "sound/sound.h"

namespace
{
constexpr int SAFE_FRAMES = 50; ///< moved frames after a start in which nothing kills
constexpr int NO_POPUP = -1;

/// What a berry is worth. The popup shows what comes on top of the ordinary 5 points.
struct BerryScore {
    bool golden;
    bool rain;
    bool fast;
    int points;
    int popup;
};
constexpr BerryScore berryScores[] = {
    { false, false, false, 5, NO_POPUP }, { false, false, true, 10, POPUP_5 },  { false, true, false, 15, POPUP_10 },
    { false, true, true, 20, POPUP_15 },  { true, false, false, 35, POPUP_30 }, { true, false, true, 40, POPUP_35 },
    { true, true, false, 45, POPUP_40 },  { true, true, true, 50, POPUP_45 },
};
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
    const bool golden = colour == GOLDEN;
    const bool rain = rainTimer >= 1 && rainTimer < RAIN_FALLS;
    const bool fast = speed == FAST_SPEED && !slowDownPending;
    for (const BerryScore& row : berryScores) {
        if (row.golden != golden || row.rain != rain || row.fast != fast)
            continue;
        score += row.points;
        if (row.popup != NO_POPUP)
            pond->ShowPopup(segments[0].x, segments[0].y, row.popup);
    }
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
