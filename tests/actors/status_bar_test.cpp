#include "actors/status_bar_items.h"
#include "app/globals.h"
#include "gfx/error.h"
#include "menu/section_menu.h"
#include "support/allocations.h"
#include "support/test_game.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{
constexpr uint16_t STRIP = 0x1111;
constexpr uint16_t HEART = 0xF000;
constexpr uint16_t PROGRESS = 0x0FF0;
constexpr uint16_t WHITE = 0xFFFF;
constexpr uint16_t GREY = 0xCE59;
constexpr int INTRO_FRAMES = 31;
constexpr int QUIT = -1; ///< in the place of a panel: the menu has been asked for

/// A key, or a click on the screen.
struct Step {
    int key = 0;
    int x = 0;
    int y = 0;
};
constexpr Step SPACE{ VK_SPACE }, ENTER{ VK_RETURN }, ESCAPE{ VK_ESCAPE }, F1{ VK_F1 };
constexpr Step Click(int x, int y)
{
    return { 0, x, y };
}
constexpr Step CLICK_PAUSE = Click(29, 440), CLICK_HELP = Click(80, 440), CLICK_QUIT = Click(131, 440);
constexpr Step CLICK_LEFT = Click(285, 265), CLICK_RIGHT = Click(355, 265); // of the two buttons on a message
constexpr Step CLICK_CLOSE = Click(320, 415);
constexpr Step CLICK_TAB[] = { Click(134, 64), Click(257, 64), Click(380, 64), Click(503, 64) };

/// A game after its fade-in, with plain colours for strip, hearts and progress bar.
class BarGame : public TestGame
{
public:
    explicit BarGame(int players = 0) : TestGame(players, 1)
    {
        input = InputState{};
        bar.images[IMAGE_STRIP].Fill(STRIP);
        bar.images[IMAGE_HEART].Fill(HEART);
        bar.images[IMAGE_PROGRESS].Fill(PROGRESS);
        for (int i = 0; i < INTRO_FRAMES; ++i)
            Frame(0);
    }

    void Restart()
    {
        bar.StatusBarReset(&pond);
        snake.isPaused = pond.snake[1].isPaused = captureScreen = false;
        requestedSection = nullptr;
    }
    void Play(const Step& step)
    {
        input.mouseX = step.x;
        input.mouseY = step.y;
        input.mouseLeftDown = step.x != 0;
        Frame(step.key);
        input.mouseLeftDown = false;
    }
    void PlayAll(const std::vector<Step>& steps)
    {
        for (const Step& step : steps)
            Play(step);
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
    ptrdiff_t StripPixels(uint16_t colour)
    {
        ptrdiff_t count = 0;
        for (int row = 0; row < backBuffer.height; ++row)
            count += std::count(backBuffer.Row(row), backBuffer.Row(row) + 160, colour);
        return count;
    }
    ptrdiff_t BarRows() { return StripPixels(PROGRESS) / 19; }

    /// The one that takes input.
    int OpenPanel()
    {
        CMenu* const panels[] = { &bar.leftPanel,      &bar.pausedPanel,   &bar.confirmPanel,  &bar.levelClearedPanel,
                                  &bar.nextLevelPanel, &bar.helpPanels[0], &bar.helpPanels[1], &bar.helpPanels[2],
                                  &bar.helpPanels[3],  &bar.gameOverPanel };
        int open = -1;
        for (int i = 0; i < STATUS_PANELS; ++i) {
            if (!panels[i]->isVisible || !panels[i]->isActive)
                continue;
            EXPECT_EQ(open, -1) << "two panels take input";
            open = i;
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

    CStatusBar& bar = pond.statusBar;
    CSnake& snake = pond.snake[0];
};
}

TEST(StatusBar, OpensAndLeavesItsPanelsByKeysAndMouse)
{
    const struct {
        std::vector<Step> steps;
        int open;
    } cases[] = {
        { { Step{ 'X' } }, PANEL_LEFT },
        { { SPACE }, PANEL_PAUSED },
        { { SPACE, ENTER }, PANEL_LEFT },
        { { SPACE, ESCAPE }, PANEL_LEFT },
        { { SPACE, F1 }, PANEL_HELP },
        { { ESCAPE }, PANEL_CONFIRM },
        { { ESCAPE, ESCAPE }, PANEL_LEFT },
        { { ESCAPE, F1 }, PANEL_CONFIRM },
        { { F1 }, PANEL_HELP },
        { { F1, F1 }, PANEL_HELP },
        { { F1, SPACE, SPACE }, PANEL_LEFT },
        { { CLICK_PAUSE, CLICK_LEFT }, PANEL_LEFT },
        { { CLICK_PAUSE, CLICK_RIGHT }, PANEL_HELP },
        { { CLICK_PAUSE, CLICK_QUIT }, PANEL_PAUSED }, // the strip is frozen
        { { CLICK_HELP, CLICK_CLOSE }, PANEL_PAUSED },
        { { CLICK_QUIT, CLICK_RIGHT }, PANEL_LEFT },
        { { ESCAPE, ENTER }, QUIT },
        { { ESCAPE, SPACE }, QUIT },
        { { CLICK_QUIT, CLICK_LEFT }, QUIT },
    };
    BarGame run;
    for (const auto& row : cases) {
        const auto& [steps, open] = row;
        run.Restart();
        run.PlayAll(steps);
        SCOPED_TRACE("case " + std::to_string(&row - cases));
        EXPECT_EQ(requestedSection, open == QUIT ? &sectionMenu : nullptr);
        EXPECT_EQ(captureScreen, steps[0].key != 'X') << "the still to show meanwhile";
        EXPECT_EQ(run.snake.isPaused, open != PANEL_LEFT);
        EXPECT_EQ(run.pond.snake[1].isPaused, run.snake.isPaused);
        EXPECT_EQ(run.bar.panelOpen, open != PANEL_LEFT && open != QUIT);
        EXPECT_EQ(run.OpenPanel(), open == QUIT ? PANEL_CONFIRM : open);
    }
}

TEST(StatusBar, TurnsHelpPagesByTheirTabs)
{
    BarGame run;
    run.PlayAll({ F1, CLICK_TAB[0] });
    EXPECT_EQ(run.OpenPanel(), PANEL_HELP) << "a page has no tab for itself";
    for (const int page : { 1, 0, 2, 0, 3, 1, 2, 1, 3, 2, 3, 0 }) { // each page from each other
        run.Play(CLICK_TAB[page]);
        EXPECT_EQ(run.OpenPanel(), PANEL_HELP + page);
    }
    for (int page = 0; page < HELP_PAGES; ++page) {
        run.PlayAll({ CLICK_TAB[page], CLICK_CLOSE });
        EXPECT_EQ(run.OpenPanel(), PANEL_PAUSED) << "from page " << page;
        run.Play(F1);
    }
}

TEST(StatusBar, LeadsFromAClearedLevelToTheNext)
{
    BarGame run;
    CStatusBar& bar = run.bar;
    ASSERT_TRUE(run.RunUntil([&] { return run.pond.CountBerries(BLUE) == 5; }));
    run.pond.TurnToStone(0, 0);
    EXPECT_TRUE(run.ShowsGoal(396, 1) && run.ShowsGoal(50, 500));

    run.snake.score = 500;
    run.Frame(0);
    EXPECT_EQ(bar.level, 2);
    EXPECT_EQ(bar.target, 1500);
    EXPECT_EQ(bar.coilWait, 5 * 8 - 1); // five segments of eight frames, one frame gone
    EXPECT_EQ(run.pond.CountBerries(BLUE), 0);
    EXPECT_EQ(run.pond.CountStones(), 1);
    EXPECT_STREQ(bar.nextLevelPanel.FindText(TEXT_LEVEL)->text.get(), "2");
    EXPECT_STREQ(bar.nextLevelPanel.FindText(TEXT_TARGET)->text.get(), "1500");
    run.Play(SPACE);
    EXPECT_FALSE(run.snake.isPaused) << "no pause between levels";
    for (int i = 0; i < 20; ++i)
        run.Frame(0);
    EXPECT_EQ(bar.levelClearedPanel.y, 195) << "in the middle of the pond";
    EXPECT_TRUE(run.ShowsGoal(396, 1) && run.ShowsGoal(50, 500)) << "the old level while the snake coils";
    EXPECT_EQ(run.BarRows(), 313);

    // The figure climbs by the thousand, the bar drains, each in 75 frames; a frame counts down after drawing.
    const struct {
        int countUp, target, rows;
    } moments[] = { { 74, 500, 313 }, { 37, 993, 158 }, { 0, 1486, 4 } };
    for (const auto& [countUp, target, rows] : moments) {
        ASSERT_TRUE(run.RunUntil([&, c = countUp] { return bar.countUp == c && bar.nextLevelPanel.y >= 185; }));
        EXPECT_FALSE(bar.levelClearedPanel.isVisible);
        EXPECT_TRUE(run.ShowsGoal(396, 2) && run.ShowsGoal(50, target)) << target;
        EXPECT_EQ(run.BarRows(), rows);
    }
    EXPECT_TRUE(run.snake.isWaiting && run.snake.isActive) << "in the frame in which the count-up ends";
    EXPECT_EQ(run.OpenPanel(), PANEL_NEXT_LEVEL);
    ASSERT_TRUE(run.RunUntil([&] { return bar.leftPanel.isActive; }));
    EXPECT_EQ(run.OpenPanel(), PANEL_LEFT);
    EXPECT_TRUE(run.ShowsGoal(50, 1500));
    EXPECT_EQ(run.BarRows(), 0);
    for (int i = 0; i < 100; ++i)
        run.Frame(0);
    EXPECT_EQ(std::ranges::count_if(run.pond.cells, &Cell::IsRipeBerry), 5) << "five fresh berries";

    run.snake.score = 1000;
    run.Frame(0);
    EXPECT_EQ(run.BarRows(), 156) << "half of 313";
}

TEST(StatusBar, AddsUpTwoScoresAndRaisesTheTargetByMoreEachLevel)
{
    BarGame run(1);
    run.snake.score = 250;
    run.pond.snake[1].score = 249;
    run.Frame(0);
    EXPECT_EQ(run.bar.level, 1);
    EXPECT_EQ(run.BarRows(), 312); // 499 of 500, cut
    run.pond.snake[1].score = 250;
    run.Frame(0);
    EXPECT_FALSE(run.snake.isActive || run.pond.snake[1].isActive) << "both snakes coil up";
    for (const int target : { 1500, 3000, 5000, 7500, 10500 }) {
        EXPECT_EQ(run.bar.target, target);
        run.bar.StatusBarLevelCleared();
    }
}

TEST(StatusBar, GivesALifeAtEachFiveThousandPoints)
{
    BarGame run(1);
    const struct {
        int score, lives;
    } steps[] = { { 4999, 2 }, { 5000, 3 }, { 5000, 3 }, { 9995, 3 }, { 10015, 4 }, { 10020, 4 }, { 15000, 5 } };
    CSnake& second = run.pond.snake[1];
    for (const auto& [score, lives] : steps) {
        second.score = score;
        run.pond.popups[0].active = false;
        const bool isAwarded = lives > second.lives;
        run.bar.StatusBarProcess(backBuffer);
        EXPECT_EQ(second.lives, lives) << score;
        EXPECT_EQ(run.pond.popups[0].active, isAwarded);
        EXPECT_TRUE(!isAwarded || run.pond.popups[0].kind == POPUP_LIFE_UP);
    }
    EXPECT_EQ(run.snake.lives, 2);
    run.bar.StatusBarReset(&run.pond);
    second.score = 5005;
    run.bar.StatusBarProcess(backBuffer);
    EXPECT_EQ(second.lives, 6) << "a new game counts from 0";
}

TEST(StatusBar, ShowsBothPlayersFigures)
{
    BarGame run(1);
    run.snake.lives = 1;
    run.snake.score = 123456;
    run.bar.lifeMark[0] = run.bar.lifeMark[1] = 999999;
    run.pond.snake[1].lives = 9;
    run.pond.snake[1].score = 70;
    run.bar.StatusBarProcess(backBuffer);
    EXPECT_TRUE(run.Shows(48, 81, WHITE, 5) && run.Shows(48, 122, WHITE, 123456));
    EXPECT_TRUE(run.Shows(48, 201, WHITE, 5) && run.Shows(48, 242, WHITE, 70));
    EXPECT_EQ(run.StripPixels(HEART), (1 + 5) * 14 * 12) << "no more than five hearts fit";

    run.pond.snake[1].isOut = true;
    run.pond.snake[1].length = 0;
    run.bar.StatusBarProcess(backBuffer);
    EXPECT_TRUE(run.Shows(48, 201, GREY, 0) && run.Shows(48, 242, GREY, 70));
    EXPECT_EQ(run.StripPixels(HEART), 14 * 12);

    BarGame alone;
    alone.pond.snake[1].score = 70; // left over from another game
    alone.Frame(0);
    EXPECT_TRUE(alone.Shows(48, 201, GREY, 0) && alone.Shows(48, 242, GREY, 0));
}

TEST(StatusBar, BlinksBeforeATailFreezesAndBeforeAnEffect)
{
    constexpr uint16_t ICON = 0x0700;
    BarGame run;
    run.bar.images[IMAGE_STREAK + 4].Fill(ICON);
    run.snake.lastColour = PURPLE;
    const struct {
        int length, streak, lengthFrames, streakFrames;
    } cases[] = { { 23, 3, 25, 25 }, { 24, 4, 12, 12 } };
    for (const auto& [length, streak, lengthFrames, streakFrames] : cases) {
        run.snake.length = length;
        run.snake.streak = streak;
        int lengthShown = 0;
        int streakShown = 0;
        for (int i = 0; i < 25; ++i) {
            run.bar.StatusBarProcess(backBuffer);
            lengthShown += run.Shows(48, 81, WHITE, length);
            streakShown += run.StripPixels(ICON) == streak * 11 * 11;
        }
        EXPECT_EQ(lengthShown, lengthFrames);
        EXPECT_EQ(streakShown, streakFrames);
    }
}

TEST(StatusBar, CountsBerriesAndStones)
{
    BarGame run;
    for (Cell& cell : run.pond.cells)
        cell.occupied = false;
    const int counts[] = { 11, 1, 20, 3, 41, 2 }; // by colour
    int next = 0;
    for (int colour = RED; colour <= GOLDEN; ++colour) {
        for (int i = 0; i < counts[colour]; ++i, ++next)
            run.pond.cells[next].occupied = run.pond.cells[next].ripe = true, run.pond.cells[next].colour = colour;
    }
    run.pond.TurnToStone(470, 470);
    run.bar.StatusBarProcess(backBuffer);
    EXPECT_TRUE(run.Shows(38, 318, WHITE, 11) && run.Shows(98, 318, WHITE, 1) && run.Shows(38, 338, WHITE, 20));
    EXPECT_TRUE(run.Shows(98, 338, WHITE, 41)) << "purple stands before orange";
    EXPECT_TRUE(run.Shows(38, 358, WHITE, 3) && run.Shows(98, 358, WHITE, 2) && run.Shows(38, 398, WHITE, 1));
}

TEST(StatusBar, HasRoomForSixDigits)
{
    BarGame run;
    for (const char* number : { "888888", "999999", "100000" }) {
        const int width = run.bar.font.TextWidth(number);
        EXPECT_LE(48 + width, 123) << "the score's box ends where the goal's column begins";
        EXPECT_LE(137 + (width + 1) / 2, 160) << "the strip's edge";
        EXPECT_LE(width, run.bar.nextLevelPanel.FindText(TEXT_TARGET)->width);
    }
}

TEST(StatusBar, DrawsWithoutRenderingOrAllocating)
{
    BarGame run(1);
    CTextImage& font = run.bar.font;
    font.TextWidth("0123456789");
    const HDC dc = font.dc;
    font.dc = nullptr; // any call to the font fails from here on
    lastError = ENGINE_NO_ERROR;
    const int before = AllocationCount();
    for (int i = 0; i < 200; ++i) {
        run.snake.score += 37;
        run.bar.StatusBarProcess(backBuffer);
    }
    EXPECT_EQ(AllocationCount(), before);
    EXPECT_EQ(lastError, ENGINE_NO_ERROR);
    font.dc = dc;
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

TEST(StatusBar, CannotLoadWithoutAPicture)
{
    const TestPictures pictures;
    std::filesystem::remove("Dat/Image/Help3.jpg");
    CStatusBar bar;
    bool done = false;
    EXPECT_TRUE(bar.DataLoad(done));
    lastError = ENGINE_NO_ERROR;
    EXPECT_FALSE(bar.DataLoad(done));
    EXPECT_EQ(lastError, ENGINE_LOAD_FILE);
    EXPECT_FALSE(done);
}
