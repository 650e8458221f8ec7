#include "actors/status_bar_fixture.h"
#include "game/water.h"
#include "menu/section_menu.h"

#include <gtest/gtest.h>
#include <vector>

namespace
{
constexpr int QUIT = -3; ///< in the place of a panel: the menu has been asked for

constexpr Step SPACE{ VK_SPACE }, ENTER{ VK_RETURN }, ESCAPE{ VK_ESCAPE }, F1{ VK_F1 };
constexpr Step Click(int x, int y)
{
    return { 0, x, y };
}
constexpr Step CLICK_PAUSE = Click(29, 440), CLICK_HELP = Click(80, 440), CLICK_QUIT = Click(131, 440);
constexpr Step CLICK_LEFT = Click(285, 265), CLICK_RIGHT = Click(355, 265); // of the two buttons on a message
constexpr Step CLICK_CLOSE = Click(320, 415), CLICK_TAB_1 = Click(134, 64), CLICK_TAB_3 = Click(380, 64);
}

TEST(StatusBar, OpensAndLeavesItsPanelsByKeysAndMouse)
{
    const struct {
        std::vector<Step> steps;
        int open;
        int keyLeft; ///< by the last step, for the rest of the frame
    } cases[] = {
        { { Step{ 'X' } }, PANEL_LEFT, 'X' },
        { { SPACE }, PANEL_PAUSED, 0 },
        { { SPACE, SPACE }, PANEL_LEFT, 0 },
        { { SPACE, ENTER }, PANEL_LEFT, 0 },
        { { SPACE, ESCAPE }, PANEL_LEFT, 0 },
        { { SPACE, F1 }, PANEL_HELP, 0 },
        { { ESCAPE }, PANEL_CONFIRM, 0 },
        { { ESCAPE, ESCAPE }, PANEL_LEFT, 0 },
        { { ESCAPE, F1 }, PANEL_CONFIRM, VK_F1 },
        { { F1 }, PANEL_HELP, 0 },
        { { F1, F1 }, PANEL_HELP, VK_F1 },
        { { F1, SPACE }, PANEL_PAUSED, 0 },
        { { F1, ENTER, ENTER }, PANEL_LEFT, 0 },
        { { F1, CLICK_TAB_3 }, PANEL_HELP + 2, 0 },
        { { F1, CLICK_TAB_3, ESCAPE }, PANEL_PAUSED, 0 },
        { { F1, CLICK_TAB_3, CLICK_TAB_1, CLICK_CLOSE }, PANEL_PAUSED, 0 },
        { { CLICK_PAUSE, CLICK_LEFT }, PANEL_LEFT, 0 },
        { { CLICK_PAUSE, CLICK_RIGHT }, PANEL_HELP, 0 },
        { { CLICK_PAUSE, CLICK_QUIT }, PANEL_PAUSED, 0 },    // the strip is frozen
        { { Step{ VK_RETURN, 29, 440 } }, PANEL_PAUSED, 0 }, // a click and a key that nobody wanted, in one frame
        { { Step{ VK_RETURN, 80, 440 } }, PANEL_HELP, 0 },
        { { CLICK_HELP, CLICK_CLOSE }, PANEL_PAUSED, 0 },
        { { CLICK_QUIT, CLICK_RIGHT }, PANEL_LEFT, 0 },
        { { ESCAPE, ENTER }, QUIT, 0 },
        { { ESCAPE, SPACE }, QUIT, 0 },
        { { CLICK_QUIT, CLICK_LEFT }, QUIT, 0 },
    };
    BarGame run;
    for (const auto& row : cases) {
        const auto& [steps, open, keyLeft] = row;
        run.Restart();
        for (const Step& step : steps)
            run.Process(step);
        SCOPED_TRACE("case " + std::to_string(&row - cases));
        EXPECT_EQ(input.lastKeyDown, keyLeft);
        EXPECT_EQ(requestedSection, open == QUIT ? &sectionMenu : nullptr);
        EXPECT_EQ(captureScreen, steps[0].key != 'X') << "the still to show meanwhile";
        EXPECT_EQ(run.snake.isPaused, open != PANEL_LEFT);
        EXPECT_EQ(run.pond.snake[1].isPaused, run.snake.isPaused);
        EXPECT_EQ(run.bar.panelOpen, open != PANEL_LEFT && open != QUIT);
        EXPECT_EQ(run.OpenPanel(), open == QUIT ? PANEL_CONFIRM : open);
    }
}

TEST(StatusBar, LeadsFromAClearedLevelToTheNext)
{
    BarGame run;
    CStatusBar& bar = run.bar;
    EXPECT_TRUE(run.ShowsGoal(396, 1) && run.ShowsGoal(50, 500));

    run.snake.score = 500;
    run.Frame(0);
    EXPECT_EQ(bar.level, 2);
    EXPECT_EQ(bar.coilWait, 5 * 8 - 1); // five segments of eight frames, one frame gone
    EXPECT_STREQ(bar.nextLevelPanel.FindText(TEXT_LEVEL)->text.get(), "2");
    EXPECT_STREQ(bar.nextLevelPanel.FindText(TEXT_TARGET)->text.get(), "1500");
    run.Frame(VK_SPACE);
    EXPECT_FALSE(run.snake.isPaused) << "no pause between levels";
    for (int i = 0; i < 20; ++i)
        run.Frame(0);
    EXPECT_EQ(bar.levelClearedPanel.y, 195) << "in the middle of the pond";
    EXPECT_TRUE(run.ShowsGoal(396, 1) && run.ShowsGoal(50, 500)) << "the old level while the snake coils";
    EXPECT_TRUE(run.ShowsProgress(313));

    // The figure climbs by the thousand, the bar drains, each in 75 frames; a frame counts down after drawing.
    const struct {
        int countUp, target, rows;
    } moments[] = { { 74, 500, 313 }, { 37, 993, 158 }, { 0, 1486, 4 } };
    for (const auto& [countUp, target, rows] : moments) {
        ASSERT_TRUE(run.RunUntil([&, c = countUp] { return bar.countUp == c && bar.nextLevelPanel.y >= 185; }));
        EXPECT_FALSE(bar.levelClearedPanel.isVisible);
        EXPECT_TRUE(run.ShowsGoal(396, 2) && run.ShowsGoal(50, target)) << target;
        EXPECT_TRUE(run.ShowsProgress(rows)) << run.Find(PROGRESS);
    }
    EXPECT_TRUE(run.snake.isWaiting && run.snake.isActive) << "in the frame in which the count-up ends";
    EXPECT_EQ(bar.berryCountdown, 50 - 1);
    EXPECT_EQ(run.OpenPanel(), PANEL_NEXT_LEVEL);
    ASSERT_TRUE(run.RunUntil([&] { return bar.leftPanel.isActive; }));
    EXPECT_EQ(run.OpenPanel(), PANEL_LEFT);
    EXPECT_TRUE(run.ShowsGoal(50, 1500));
    EXPECT_TRUE(run.ShowsProgress(0));
}

TEST(StatusBar, DropsFiveBerriesTenFramesApart)
{
    BarGame run;
    run.EmptyPond();
    run.bar.berryCountdown = 50;
    std::vector<int> framesOfDrops;
    for (int frame = 0, before = 0; frame < 60; ++frame) {
        run.Process();
        const int berries = static_cast<int>(std::ranges::count(run.pond.cells, true, &Cell::occupied));
        if (berries != before)
            framesOfDrops.push_back(frame);
        before = berries;
    }
    EXPECT_EQ(framesOfDrops, (std::vector{ 0, 10, 20, 30, 40 }));
}

TEST(StatusBar, ClearsBerriesButNoStonesAtALevelsEnd)
{
    const struct {
        bool ripe;
        int growth;
        bool stays;
        int depth; ///< of the water above it
        const char* what;
    } cases[] = { { true, 0, false, 170, "ripe berry" },
                  { false, 9, false, 0, "growing berry" },
                  { false, 0, true, 0, "stone" } };
    BarGame run;
    run.EmptyPond();
    WaterInit(waterBufferA, waterBufferB, 5, 3);
    Cell* const row = &run.pond.cells[CELL_COLUMNS * 2];
    for (size_t i = 0; i < std::size(cases); ++i) {
        row[4 * i].occupied = true;
        row[4 * i].ripe = cases[i].ripe;
        row[4 * i].growth = cases[i].growth;
    }
    run.bar.StatusBarLevelCleared();
    for (size_t i = 0; i < std::size(cases); ++i) {
        const auto& [ripe, growth, stays, depth, what] = cases[i];
        const Cell& cell = row[4 * i];
        EXPECT_EQ(cell.occupied, stays) << what;
        const auto depthAt = [&](int x) { return water.current[(cell.y + 8) * water.fieldWidth + cell.x + 8 + x]; };
        EXPECT_EQ(depthAt(0), depth) << what;
        EXPECT_EQ(depthAt(7), depth) << what;
        EXPECT_EQ(depthAt(8), 0) << what;
    }
}

TEST(StatusBar, AddsUpTwoScoresAndRaisesTheTargetByMoreEachLevel)
{
    BarGame run(1);
    run.snake.score = 250;
    run.pond.snake[1].score = 249;
    run.Frame(0);
    EXPECT_EQ(run.bar.level, 1);
    EXPECT_TRUE(run.ShowsProgress(312)) << "499 of 500, cut";
    run.pond.snake[1].score = 250;
    run.Frame(0);
    EXPECT_FALSE(run.snake.isActive || run.pond.snake[1].isActive) << "both snakes coil up";
    for (const int target : { 1500, 3000, 5000, 7500, 10500 }) {
        EXPECT_EQ(run.bar.target, target);
        run.bar.StatusBarLevelCleared();
    }
}

TEST(StatusBar, EndsTheGameOnceEverySnakeIsOut)
{
    BarGame run(1);
    run.snake.isOut = true;
    run.snake.lives = 0;
    run.Frame(0);
    EXPECT_FALSE(run.bar.gameOverPanel.isVisible);
    run.pond.snake[1].isOut = true;
    run.Frame(0);
    EXPECT_EQ(run.OpenPanel(), PANEL_GAME_OVER);
    ASSERT_TRUE(run.RunUntil([&] { return run.pond.fadeOut != 0; }));
    EXPECT_EQ(run.bar.gameOverPanel.y, 195);
    EXPECT_TRUE(run.RunUntil([&] { return run.pond.gameOver; }));
}
