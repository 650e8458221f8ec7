#pragma once

#include "actors/snake_pictures.h"
#include "game/geometry.h"
#include "gfx/image.h"

#include <array>
#include <cstdint>
#include <span>

class CPond;

/// One 16 x 16 link of a snake.
struct Segment {
    int32_t x = 0; ///< top-left corner, pond pixels
    int32_t y = 0;
    int32_t dir = 0; ///< its direction, as one of the player's four key codes
};

constexpr int MAX_SEGMENTS = 25;
constexpr int TURN_QUEUE = 10;
constexpr int START_LENGTH = 5; ///< segments at a game's, a life's and a level's start, and after a freeze
constexpr int NORMAL_SPEED = 2; ///< pixels a frame
constexpr int FAST_SPEED = 4;
constexpr int NO_COLOUR = -1; ///< no streak
constexpr int NO_EFFECT = -1;

// The rain, in frames left.
constexpr int RAIN_FRAMES = 375; ///< thunder first
constexpr int RAIN_FALLS = 350;  ///< below it, it rains

constexpr int FACE_FRAMES = 20; ///< a dead snake's bumped head shows before its body vanishes

/// One player's water snake: steering, movement, eating, effects, death and drawing. The pond holds two by value.
class CSnake
{
public:
    virtual ~CSnake() = default;

    /// A new game: five segments below the pond's bottom edge at `enterX`, heading up. False when an image cannot be
    /// loaded; nothing else has changed then.
    bool SnakeInit(int enterX, CPond* owner, int playerNumber, int up, int down, int left, int right);
    /// Not in play: all segments at (0, 0).
    void SnakeClear();
    bool SnakeLoadImage();
    void SnakeFreeImage();

    void SnakeDrawShadow(CImage& pondPicture);
    /// One frame: steer, move, draw, eat, run the effects. `key` is this frame's virtual-key code, 0 for none.
    bool SnakeProcess(CImage& pondPicture, int key);
    /// Sets off a waiting snake whose start key has been pressed, once every head is on the grid.
    void SnakeReleaseStart();
    /// Ends a cancelled speed-up, once every head is on the grid.
    void SnakeEndSlowDown();
    void SnakeDrawArrows(CImage& target);

    /// Adds 1 to the grid entry of each segment's cell (900 entries).
    void SnakeCountCells(int* grid) const;
    /// False when the snake is gone; else the head's position.
    bool SnakeGetHead(int& headX, int& headY) const;
    /// The head is more than 6 columns or rows away from the cell, or off the pond.
    bool SnakeIsFarFrom(int cell) const;

    /// It moves on by itself, into whatever lies ahead.
    bool SnakeIsSwimming() const { return isActive && !isWaiting && !isDying && !isOut; }

    /// A level's end: the snake coils up into its head.
    void SnakeGather();
    /// The next level: five segments wait for the start key.
    void SnakeRestart();

    bool isOut = true; ///< the last life is lost and the death animation over
    bool isPaused = false;
    bool isWaiting = false;       ///< stands still, arrows blinking, for its start key
    bool startPressed = false;    ///< start key pressed
    bool slowDownPending = false; ///< speed falls back as soon as every head is on the grid
    bool isActive = true;         ///< false while coiling up at a level's end
    int32_t length = 0;           ///< segments in use
    int32_t arrowBlink = 0;
    CImage bodyImage;
    CImage eyeImages[EYE_IMAGES];          ///< six expressions for each direction
    CImage bumpEyeImages[BUMP_EYE_IMAGES]; ///< up, down, left, right
    CImage shadowImage;
    CImage arrowImages[ARROW_IMAGES]; ///< up, down, left, right
    int32_t eyeFrame = 0;             ///< expression, 0..5
    Segment segments[MAX_SEGMENTS];   ///< 0 is the head
    bool isDying = false;
    int32_t deathFrames = 0;
    int32_t movedFrames = 0; ///< since start, respawn or level end; collisions count above 50
    int32_t lives = 0;       ///< spare ones
    int32_t lastColour = 0;  ///< of the current streak, -1 none
    int32_t streak = 0;
    int32_t pendingEffect = 0; ///< -1 none
    int32_t score = 0;
    int32_t rainTimer = 0;    ///< frames left
    int32_t shrinkCount = 0;  ///< tail segments still to remove
    int32_t speedUpTimer = 0; ///< stops at 1; 0 none
    int32_t keyLeft = 0;      ///< virtual-key codes
    int32_t keyRight = 0;
    int32_t keyUp = 0;
    int32_t keyDown = 0;
    int32_t turnQueue[TURN_QUEUE] = {}; ///< pending turns, key codes, oldest first
    int32_t turnCount = 0;
    int32_t speed = 0;      ///< pixels a frame, 2 or 4; divides 16
    int32_t frameCount = 0; ///< since SnakeInit
    CPond* pond = nullptr;  ///< not owned
    int32_t player = 0;     ///< 1 or 2
    int32_t startX = 0;

private:
    // Steering: keys in, turns out.
    Direction DirectionOf(int key) const;
    bool IsReverse(int key, int otherKey) const;
    bool AcceptsKey(int key) const;
    void TakeKey(int key);
    void MakeWake();
    void TurnHead();

    // Entry, the first segments' way onto the pond.
    int EntryFrames() const;
    void StepEntry();

    // Movement.
    void Run(int key);
    bool IsHeadOnGrid() const;
    bool IsCloseToNext(int index) const;
    bool IsOnHead(int index) const;
    bool IsStacked(int index) const;
    void StepSegment(Segment& segment) const;
    void Move();
    void Coil();

    // What the head meets on a grid point.
    void CheckHead();
    void CheckFreeze();
    void CheckCollision();
    void CheckBerry();
    void ScoreBerry(int colour);
    void CountStreak(int colour);
    void Grow();

    // Effects.
    void RunEffects();
    void StepShrink();
    void StepRain();
    void StepSpeedUp();
    void EndStreak();
    void RunPendingEffect();

    // Death.
    int VanishedSegments() const;
    void SplashVanishing();
    void StepDeath();
    void Respawn();
    void GoOut();

    // Pictures and drawing.
    std::array<std::span<CImage>, SNAKE_IMAGE_SETS> ImageSets();
    void SnakeDraw(CImage& pondPicture);
    void SnakeDrawHead(CImage& pondPicture);
    void DrawBody(CImage& pondPicture);
    int FirstVisibleSegment() const;

    void Calm();
    bool IsGone() const { return lives == 0 && isOut; }
    int Heading() const;
    int RainSound() const;
    int BeatSound() const;
    static void Splash(const Segment& segment);
};
