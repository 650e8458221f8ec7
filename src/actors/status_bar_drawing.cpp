#include "actors/status_bar.h"

#include "game/pond.h"

#include <algorithm>
#include <string>

namespace
{
constexpr uint16_t WHITE = 0xFFFF;
constexpr uint16_t GREY = 0xCE59;

// A blinking item shows in the first frames of each period.
constexpr int BLINK_PERIOD = 25;
constexpr int BLINK_SHOWN = 12;
constexpr int WARNING_LENGTH = MAX_SEGMENTS - 1; ///< the next berry freezes the tail
constexpr int WARNING_STREAK = 4;                ///< the next berry sets off the effect

/// Where a player's figures stand.
struct PlayerRow {
    int heartsY;
    int lengthY;
    int streakY;
    int scoreY;
};
constexpr PlayerRow playerRows[] = {
    { .heartsY = 63, .lengthY = 81, .streakY = 105, .scoreY = 122 },
    { .heartsY = 183, .lengthY = 201, .streakY = 225, .scoreY = 242 },
};
constexpr int FIGURES_X = 48;
constexpr int HEART_STEP = 15;
constexpr int HEARTS_END_X = 123; ///< hearts from here on are left out
constexpr int STREAK_X = 52;
constexpr int STREAK_STEP = 12;

/// A count of ripe berries.
struct CensusRow {
    int colour;
    int x;
    int y;
};
constexpr CensusRow censusRows[] = {
    { RED, 38, 318 },    { GREEN, 98, 318 },  { BLUE, 38, 338 },
    { PURPLE, 98, 338 }, { ORANGE, 38, 358 }, { GOLDEN, 98, 358 },
};
constexpr int STONES_X = 38;
constexpr int STONES_Y = 398;

constexpr int GOAL_X = 137; ///< middle of the column of target, progress bar and level
constexpr int TARGET_Y = 50;
constexpr int LEVEL_Y = 396;
constexpr int PROGRESS_X = 128;
constexpr int PROGRESS_BOTTOM = 379; ///< the bar grows upward from here
constexpr int PROGRESS_WIDTH = 19;
constexpr int PROGRESS_HEIGHT = 313; ///< full

bool IsBlinkedOff(int frames)
{
    return frames % BLINK_PERIOD >= BLINK_SHOWN;
}
}

void CStatusBar::StatusBarDraw(CImage& screen)
{
    for (int player = 0; player < 2; ++player) {
        DrawPlayer(screen, player);
        DrawStreak(screen, player);
    }
    DrawCensus(screen);
    const bool isOldLevelShown = countUp == 0 && IsAnyCoiling();
    DrawNumberCentred(screen, GOAL_X, LEVEL_Y, isOldLevelShown ? level - 1 : level);
    DrawNumberCentred(screen, GOAL_X, TARGET_Y, ShownTarget());
    DrawProgress(screen);
}

void CStatusBar::StepFigures()
{
    if (countUp > 0)
        --countUp;
    ++lengthBlink;
    ++streakBlink;
}

bool CStatusBar::IsInGame(int player) const
{
    return player <= pond->players;
}

void CStatusBar::DrawPlayer(CImage& screen, int player)
{
    const CSnake& snake = pond->snake[player];
    const PlayerRow& row = playerRows[player];
    if (!IsInGame(player) || snake.isOut) {
        DrawNumber(screen, FIGURES_X, row.lengthY, GREY, IsInGame(player) ? snake.length : 0);
        DrawNumber(screen, FIGURES_X, row.scoreY, GREY, IsInGame(player) ? snake.score : 0);
        return;
    }
    for (int i = 0, x = FIGURES_X; i < snake.lives && x < HEARTS_END_X; ++i, x += HEART_STEP)
        images[IMAGE_HEART].Draw(screen, x, row.heartsY);
    if (snake.length < WARNING_LENGTH || !IsBlinkedOff(lengthBlink))
        DrawNumber(screen, FIGURES_X, row.lengthY, WHITE, snake.length);
    DrawNumber(screen, FIGURES_X, row.scoreY, WHITE, snake.score);
}

void CStatusBar::DrawStreak(CImage& screen, int player)
{
    const CSnake& snake = pond->snake[player];
    if (!IsInGame(player) || snake.lastColour < 0)
        return;
    if (snake.streak == WARNING_STREAK && IsBlinkedOff(streakBlink))
        return;
    for (int i = 0; i < snake.streak; ++i)
        images[StreakImage(snake.lastColour)].Draw(screen, STREAK_X + STREAK_STEP * i, playerRows[player].streakY);
}

void CStatusBar::DrawCensus(CImage& screen)
{
    for (const CensusRow& row : censusRows)
        DrawNumber(screen, row.x, row.y, WHITE, pond->CountBerries(row.colour));
    DrawNumber(screen, STONES_X, STONES_Y, WHITE, pond->CountStones());
}

/// Counts up from the old target to the new one.
int CStatusBar::ShownTarget() const
{
    if (countUp > 0)
        return prevTarget + (target - prevTarget) * (COUNT_UP_FRAMES - countUp) / COUNT_UP_FRAMES;
    return IsAnyCoiling() ? prevTarget : target;
}

/// Rows of the bar; at a new level it drains from full to what is already reached.
int CStatusBar::ProgressHeight() const
{
    if (countUp == 0 && IsAnyCoiling())
        return PROGRESS_HEIGHT;
    const int full = images[IMAGE_PROGRESS].height;
    const int reached = (pond->Score() - prevTarget) * full / (target - prevTarget);
    return std::min(std::max(reached, countUp * full / COUNT_UP_FRAMES), full);
}

void CStatusBar::DrawProgress(CImage& screen)
{
    const int height = ProgressHeight();
    CImage filled;
    if (height >= 1 && filled.CreateView(images[IMAGE_PROGRESS], 0, PROGRESS_HEIGHT - height, PROGRESS_WIDTH, height))
        filled.Draw(screen, PROGRESS_X, PROGRESS_BOTTOM - height);
}

void CStatusBar::DrawNumber(CImage& screen, int x, int y, uint16_t colour, int value)
{
    font.TextDraw(screen, x, y, colour, std::to_string(value).c_str());
}

void CStatusBar::DrawNumberCentred(CImage& screen, int centreX, int y, int value)
{
    const std::string figure = std::to_string(value);
    font.TextDraw(screen, centreX - font.TextWidth(figure.c_str()) / 2, y, WHITE, figure.c_str());
}
