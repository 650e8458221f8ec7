#include "actors/status_bar.h"

#include "game/pond.h"
#include "game/water.h"
#include "sound/sound.h"

#include <algorithm>
#include <cstdio>
#include <functional>

namespace
{
constexpr int SLIDE_SPEED = 20;    ///< pixels a frame, downward
constexpr int GATHER_SPEED = 2;    ///< of coiling snakes, pixels a frame
constexpr int FRESH_BERRIES = 5;   ///< at a level's start
constexpr int BERRY_INTERVAL = 10; ///< frames between them
constexpr int POINTS_PER_LIFE = 5000;

int RestingY(const CMenu& panel)
{
    return (POND_SIZE - panel.background->height) / 2;
}

/// Puts the panel just above the screen.
void PlaceAbove(CMenu& panel)
{
    panel.y = -panel.background->height;
}

/// Moves the panel down to the middle of the pond; true in the frame in which it arrives.
bool SlideIn(CMenu& panel)
{
    const int rest = RestingY(panel);
    if (panel.y >= rest)
        return false;
    panel.y = std::min(panel.y + SLIDE_SPEED, rest);
    return panel.y == rest;
}

/// Moves the panel down; true when it has left the screen.
bool SlideOut(CMenu& panel)
{
    panel.y += SLIDE_SPEED;
    return panel.y >= POND_SIZE;
}

void ShowNumber(CMenu& panel, int textId, int number)
{
    std::snprintf(panel.FindText(textId)->text, MENU_TEXT_SIZE, "%d", number);
}
}

bool CStatusBar::IsAnyCoiling() const
{
    const std::span<CSnake> snakes = pond->SnakesInPlay();
    return !std::all_of(snakes.begin(), snakes.end(), std::mem_fn(&CSnake::isActive));
}

void CStatusBar::StatusBarLevelCleared()
{
    ++level;
    prevTarget = target;
    target += FIRST_TARGET * level; // every level asks for FIRST_TARGET more points than the one before

    ClearBerries();
    int longest = 0;
    for (CSnake& snake : pond->SnakesInPlay()) {
        longest = std::max(longest, snake.length);
        snake.SnakeGather();
    }
    coilWait = longest * CELL_SIZE / GATHER_SPEED;

    leftPanel.isActive = false;
    for (CMenu* panel : { &levelClearedPanel, &nextLevelPanel }) {
        panel->Show();
        PlaceAbove(*panel);
    }
    ShowNumber(nextLevelPanel, TEXT_LEVEL, level);
    ShowNumber(nextLevelPanel, TEXT_TARGET, target);
}

/// Stones stay for the next level.
void CStatusBar::ClearBerries()
{
    for (Cell& cell : pond->cells) {
        if (!cell.occupied || cell.IsStone())
            continue;
        cell.occupied = false;
        if (cell.growth == 0)
            SplashCell(cell.x, cell.y, BERRY_SPLASH);
    }
}

void CStatusBar::ProcessLevelCleared()
{
    SlideIn(levelClearedPanel);
    if (coilWait > 0)
        --coilWait;
    if (coilWait == 0 && SlideOut(levelClearedPanel))
        levelClearedPanel.Hide();
}

void CStatusBar::ProcessNextLevel()
{
    if (!levelClearedPanel.isVisible && IsAnyCoiling() && SlideIn(nextLevelPanel))
        countUp = COUNT_UP_FRAMES;
    if (nextLevelPanel.y == RestingY(nextLevelPanel) && countUp == 0)
        StatusBarNextLevel();
    if (!IsAnyCoiling() && SlideOut(nextLevelPanel)) {
        nextLevelPanel.Hide();
        leftPanel.isActive = true;
    }
}

void CStatusBar::StatusBarNextLevel()
{
    for (CSnake& snake : pond->SnakesInPlay())
        snake.SnakeRestart();
    berryCountdown = FRESH_BERRIES * BERRY_INTERVAL;
}

void CStatusBar::DropLevelBerries()
{
    if (berryCountdown < 1)
        return;
    if (berryCountdown % BERRY_INTERVAL == 0)
        pond->PlaceBerry(RANDOM, RANDOM);
    --berryCountdown;
}

void CStatusBar::AwardExtraLives()
{
    for (int player = 0; IsInGame(player); ++player) {
        CSnake& snake = pond->snake[player];
        if (snake.score / POINTS_PER_LIFE <= lifeMark[player] / POINTS_PER_LIFE)
            continue;
        SoundPlay(SOUND_LIFE_UP, false);
        ++snake.lives;
        int x = 0;
        int y = 0;
        if (snake.SnakeGetHead(x, y))
            pond->ShowPopup(x, y, POPUP_LIFE_UP);
        lifeMark[player] = snake.score;
    }
}

void CStatusBar::StatusBarGameOver()
{
    if (gameOverPanel.isVisible)
        return;
    leftPanel.isActive = false;
    gameOverPanel.Show();
    PlaceAbove(gameOverPanel);
}

void CStatusBar::ProcessGameOver()
{
    if (SlideIn(gameOverPanel))
        pond->fadeOut = FADE_OUT_START;
}
