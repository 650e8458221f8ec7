#pragma once

#include "actors/status_bar_items.h"
#include "app/frame_images.h"
#include "app/input.h"
#include "app/scenes.h"
#include "platform/window.h"
#include "support/test_game.h"

#include <algorithm>
#include <ostream>
#include <string>

constexpr uint16_t STRIP = 0x1111;
constexpr uint16_t HEART = 0xF000;
constexpr uint16_t PROGRESS = 0x0FF0;
constexpr uint16_t ICON = 0x0700;
constexpr uint16_t WHITE = 0xFFFF;
constexpr uint16_t GREY = 0xCE59;

/// A key, or a click on the screen.
struct Step {
    int key = 0;
    int x = 0;
    int y = 0;
};

/// Where a colour shows; nothing is all 0.
struct Area {
    int x = 0, y = 0, width = 0, height = 0;
    bool operator==(const Area&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Area& area)
    {
        return out << area.width << " x " << area.height << " at " << area.x << ", " << area.y;
    }
};

/// A game after its fade-in, with plain colours for strip, hearts, streaks and progress bar.
class BarGame : public TestGame
{
public:
    explicit BarGame(int players = 0) : TestGame(players, 1)
    {
        input = InputState{};
        bar.images[IMAGE_STRIP].Fill(STRIP);
        bar.images[IMAGE_HEART].Fill(HEART);
        bar.images[IMAGE_PROGRESS].Fill(PROGRESS);
        for (int colour = 0; colour < ORDINARY_COLOURS; ++colour)
            bar.images[IMAGE_STREAK + colour].Fill(ICON);
        constexpr int INTRO_FRAMES = 31;
        for (int i = 0; i < INTRO_FRAMES; ++i)
            Frame(0);
    }

    void Restart()
    {
        bar.StatusBarReset(&pond);
        snake.isPaused = pond.snake[1].isPaused = captureScreen = false;
        requestedSection = nullptr;
    }
    /// The status bar's part of a frame, which leaves a key that nobody wants in `input.lastKeyDown`.
    void Process(const Step& step = {})
    {
        input.lastKeyDown = step.key;
        input.mouseX = step.x;
        input.mouseY = step.y;
        input.mouseLeftDown = step.x != 0;
        bar.StatusBarProcess(backBuffer);
    }
    void EmptyPond()
    {
        for (Cell& cell : pond.cells)
            cell.occupied = false;
    }

    /// The strip's pixels from (x, y) on show that number and nothing else; a centred one is told its middle.
    bool Shows(int x, int y, uint16_t colour, int value, bool isCentred = false)
    {
        const std::string figure = std::to_string(value);
        const int left = isCentred ? x - bar.font.TextWidth(figure.c_str()) / 2 : x;
        CImage expected;
        expected.Create(160, 480);
        expected.Fill(STRIP);
        bar.font.TextDraw(expected, left, y, colour, figure.c_str());
        for (int row = y; row < y + bar.font.height; ++row) {
            if (!std::equal(expected.Row(row) + left - 3, expected.Row(row) + left + 22,
                            backBuffer.Row(row) + left - 3))
                return false;
        }
        return true;
    }
    bool ShowsGoal(int y, int value) { return Shows(137, y, WHITE, value, true); }
    /// The smallest box around the strip's pixels of that colour, among these rows.
    Area Find(uint16_t colour, int top = 0, int bottom = 480)
    {
        int left = 160, right = 0, first = bottom, last = top;
        for (int y = top; y < bottom; ++y) {
            for (int x = 0; x < 160; ++x) {
                if (backBuffer.Row(y)[x] != colour)
                    continue;
                left = std::min(left, x), right = std::max(right, x + 1);
                first = std::min(first, y), last = y + 1;
            }
        }
        return right > left ? Area{ left, first, right - left, last - first } : Area{};
    }
    bool ShowsProgress(int rows) { return Find(PROGRESS) == (rows > 0 ? Area{ 128, 379 - rows, 19, rows } : Area{}); }

    /// The panel that takes input.
    int OpenPanel()
    {
        CMenu* const panels[] = { &bar.leftPanel,      &bar.pausedPanel,   &bar.confirmPanel,  &bar.levelClearedPanel,
                                  &bar.nextLevelPanel, &bar.helpPanels[0], &bar.helpPanels[1], &bar.helpPanels[2],
                                  &bar.helpPanels[3],  &bar.gameOverPanel };
        int open = NO_PANEL;
        for (int i = 0; i < STATUS_PANELS; ++i) {
            if (!panels[i]->IsOpen())
                continue;
            open = open == NO_PANEL ? i : TWO_PANELS;
        }
        return open;
    }
    /// Runs the game until the condition holds; false when it never does.
    template <typename Condition>
    bool RunUntil(Condition holds)
    {
        for (int i = 0; i < 500 && !holds(); ++i)
            Frame(0);
        return holds();
    }

    static constexpr int NO_PANEL = -1;
    static constexpr int TWO_PANELS = -2; ///< which never happens

    CStatusBar& bar = pond.statusBar;
    CSnake& snake = pond.snake[0];
};
