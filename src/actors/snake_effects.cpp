#include "actors/snake.h"
#include "app/random.h"
#include "game/pond.h"
#include "game/water.h"
#include "sound/sound.h"

namespace
{
enum Effect : int {
    EFFECT_SPEED_UP = 0,
    EFFECT_LASER = 1,
    EFFECT_RAIN = 2,
    EFFECT_FADE = 3,
    EFFECT_SHRINK = 4,
};

/// By berry colour.
constexpr Effect effectOfColour[ORDINARY_COLOURS] = {
    EFFECT_SPEED_UP, // red
    EFFECT_FADE,     // green
    EFFECT_RAIN,     // blue
    EFFECT_LASER,    // orange
    EFFECT_SHRINK,   // purple
};
constexpr int STREAK_FOR_EFFECT = 5;

constexpr int SPEED_UP_FRAMES = 40; ///< until the snake is fast, the last frame included
constexpr int FADED_STONES = 5;

// Moments of the rain, in frames left.
constexpr int SECOND_THUNDER = 250;
constexpr int FIRST_RAIN_BERRY = 325;
constexpr int LAST_RAIN_BERRY = 125;
constexpr int RAIN_BERRY_INTERVAL = 50;

constexpr int RAIN_DROPS = 5; ///< a frame
constexpr int DROP_RADIUS = 4;
constexpr int DROP_DEPTH = 170;

void LetDropFall()
{
    const int x = Random() % POND_SIZE;
    const int y = Random() % POND_SIZE;
    DisturbWater(x, y, DROP_RADIUS, DROP_DEPTH);
}

bool IsRainBerryDue(int framesLeft)
{
    return framesLeft >= LAST_RAIN_BERRY && framesLeft <= FIRST_RAIN_BERRY &&
           (FIRST_RAIN_BERRY - framesLeft) % RAIN_BERRY_INTERVAL == 0;
}
}

void CSnake::RunEffects()
{
    StepShrink();
    StepRain();
    if (speedUpTimer > 1)
        --speedUpTimer;
    if (!IsHeadOnGrid())
        return;
    StepSpeedUp();
    EndStreak();
    RunPendingEffect();
}

/// Pops one segment off the tail.
void CSnake::StepShrink()
{
    if (shrinkCount <= 0)
        return;
    --shrinkCount;
    // Not reached: a streak of five leaves more than the half that goes. Kept, for the head must never be popped.
    if (length <= 1)
        return;
    Splash(segments[length - 1]);
    --length;
    SoundPlay(SOUND_POP, false);
}

void CSnake::StepRain()
{
    if (rainTimer <= 0)
        return;
    if (rainTimer < RAIN_FALLS) {
        for (int i = 0; i < RAIN_DROPS; ++i)
            LetDropFall();
    }
    if (IsRainBerryDue(rainTimer))
        pond->PlaceBerry(RANDOM, RANDOM);
    if (rainTimer == RAIN_FRAMES)
        SoundPlay(SOUND_THUNDER_NEAR, false);
    if (rainTimer == RAIN_FALLS)
        SoundPlay(RainSound(), true);
    if (rainTimer == SECOND_THUNDER)
        SoundPlay(SOUND_THUNDER_FAR, false);
    if (rainTimer == 1)
        SoundStop(RainSound());
    --rainTimer;
}

/// On a grid point: the countdown over, the snake runs fast, until it eats a red berry.
void CSnake::StepSpeedUp()
{
    if (speedUpTimer <= 0)
        return;
    if (speedUpTimer == 1 && speed == NORMAL_SPEED)
        speed = FAST_SPEED;
    if (lastColour != RED)
        return;
    SoundStop(SOUND_SPEED_UP);
    SoundPlay(SOUND_SPEED_DOWN, false);
    slowDownPending = true;
    speedUpTimer = 0;
}

void CSnake::EndStreak()
{
    if (streak != STREAK_FOR_EFFECT)
        return;
    pendingEffect = effectOfColour[lastColour];
    lastColour = NO_COLOUR;
    streak = 0;
}

void CSnake::RunPendingEffect()
{
    switch (pendingEffect) {
    case EFFECT_SPEED_UP:
        SoundPlay(SOUND_SPEED_UP, false);
        speedUpTimer = SPEED_UP_FRAMES;
        break;
    case EFFECT_LASER:
        SoundPlay(SOUND_LASER, false);
        pond->FireLaser(segments[0].x, segments[0].y, Heading());
        break;
    case EFFECT_RAIN:
        rainTimer = RAIN_FRAMES;
        break;
    case EFFECT_FADE:
        SoundPlay(SOUND_FADE, false);
        pond->FadeStones(FADED_STONES);
        break;
    case EFFECT_SHRINK:
        if (length == MAX_SEGMENTS)
            SoundStop(BeatSound());
        shrinkCount = (length + 1) / 2;
        break;
    default:
        break;
    }
    pendingEffect = NO_EFFECT;
}

void CSnake::SnakeEndSlowDown()
{
    if (!slowDownPending || !pond->snake[0].IsHeadOnGrid() || !pond->snake[1].IsHeadOnGrid())
        return;
    slowDownPending = false;
    speed = NORMAL_SPEED;
}
