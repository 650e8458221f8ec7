#include "actors/snake.h"
#include "sound/sound.h"

namespace
{
constexpr int FRAMES_PER_SEGMENT = 2;     ///< of vanishing, from the head on
constexpr int STEPS_AFTER_VANISHING = 10; ///< of FRAMES_PER_SEGMENT, until the respawn
}

/// How much of the dead snake has vanished, counted on beyond its length; 0 while the face shows.
int CSnake::VanishedSegments() const
{
    return deathFrames >= FACE_FRAMES ? (deathFrames - FACE_FRAMES) / FRAMES_PER_SEGMENT : 0;
}

/// The dead snake bursts, segment after segment.
void CSnake::SplashVanishing()
{
    if (!isDying || deathFrames < FACE_FRAMES)
        return;
    const int first = VanishedSegments();
    if (first >= length)
        return;
    SoundPlay(SOUND_POP, false);
    Splash(segments[first]);
}

void CSnake::StepDeath()
{
    ++deathFrames;
    if (VanishedSegments() >= length + STEPS_AFTER_VANISHING) {
        if (lives > 0)
            Respawn();
        else
            GoOut();
    }
    // Asked anew: a snake that has just got its last life stays.
    if (lives == 0 && VanishedSegments() >= length)
        length = 0;
}

/// Collapsed one cell behind where it died, facing the way it went.
void CSnake::Respawn()
{
    --lives;
    isDying = false;
    deathFrames = 0;
    length = START_LENGTH;
    isWaiting = true;
    Calm();
    const Segment place{ .x = segments[1].x, .y = segments[1].y, .dir = segments[0].dir };
    for (const int i : { 0, 2, 3, 4 })
        segments[i] = place;
}

void CSnake::GoOut()
{
    isOut = true;
    streak = 0;
    isWaiting = false;
    isActive = true;
    SoundStop(RainSound());
}
