#include "game/section_main.h"

#include "app/input.h"
#include "app/scenes.h"
#include "doubles/directx.h"
#include "doubles/system.h"
#include "game/water.h"
#include "menu/menu_items.h"
#include "menu/section_menu.h"
#include "support/game_fixture.h"
#include "support/test_pictures.h"

#include <SDL.h>
#include <algorithm>
#include <filesystem>

namespace
{
/// The game scene with its resources and a game begun.
class GameScene : public testing::Test
{
protected:
    void SetUp() override
    {
        directX = {};
        ASSERT_TRUE(PrepareGlobals());
        scenery.loadStage = 0;
        for (bool done = false; !done;)
            ASSERT_TRUE(scene.pond.DataLoad(done));
        for (bool done = false; !done;)
            ASSERT_TRUE(scene.pond.statusBar.DataLoad(done));
        ASSERT_TRUE(sectionMenu.rankingMenu.MenuCreate(0, 0, nullptr));
        for (const int first : { FIELD_NAME_FIRST, FIELD_SCORE_FIRST })
            for (int place = 0; place < RANKING_PLACES; ++place)
                sectionMenu.rankingMenu.AddText(first + place, 0, 0, 1, 1, nullptr, nullptr, 0, 0, 0, 0, 1);
        std::ranges::fill(sectionMenu.rankScores, 100);
        sectionMenu.rankEntryPending = 0;
        input.lastKeyDown = 13;
        DisturbWater(50, 50, 8, 170);
        ASSERT_TRUE(scene.SectionBegin());
    }
    void TearDown() override { sectionMenu.rankingMenu.MenuFree(); }

    TestPictures pictures;
    CSectionMain scene;
};

TEST_F(GameScene, BeginsWithCalmWaterAndWithoutTheStartingKey)
{
    EXPECT_EQ(input.lastKeyDown, 0);
    EXPECT_EQ(water.current[50 * POND_SIZE + 50], 0);
    std::filesystem::remove("Dat/Image/snakeeye24.jpg");
    EXPECT_FALSE(scene.SectionBegin());
}

TEST_F(GameScene, StandsStillWithoutFocus)
{
    input.hasFocus = false;
    input.lastKeyDown = 37;
    const uint32_t before = systemDouble.now;
    scene.SectionProcess();
    EXPECT_EQ(systemDouble.now, before + 100);
    EXPECT_EQ(input.lastKeyDown, 37);
    EXPECT_EQ(scene.pond.dayTimer, 0);
    input.hasFocus = true;
    scene.SectionProcess();
    EXPECT_EQ(input.lastKeyDown, 0) << "a key is seen by one frame";
    EXPECT_EQ(scene.pond.dayTimer, 1);
}

TEST_F(GameScene, HidesARestingCursorUnlessAPanelIsOpen)
{
    const auto rest = [this](int frames) {
        for (int i = 0; i < frames; ++i)
            scene.SectionProcess();
    };
    scene.pond.snake[0].isPaused = true; // frames without water are quick
    input.mouseX = 33;
    rest(1);
    rest(124);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_ENABLE);
    rest(1);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_DISABLE);
    scene.pond.statusBar.panelOpen = true;
    rest(1);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_ENABLE);
    scene.pond.statusBar.panelOpen = false;
    rest(1);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_DISABLE);
    ++input.mouseY;
    rest(1);
    EXPECT_EQ(SDL_ShowCursor(SDL_QUERY), SDL_ENABLE);
}

struct OverCase {
    int players;
    int score;
    uint32_t entryPending;
};

TEST_F(GameScene, EntersOnlyALonePlayersScoreIntoTheRanking)
{
    for (const OverCase& over : { OverCase{ 0, 100, 0 }, OverCase{ 1, 900, 0 }, OverCase{ 0, 900, 1 } }) {
        scene.pond.players = over.players;
        scene.pond.snake[0].score = over.score;
        scene.pond.gameOver = true;
        input.mouseLeftDown = true;
        requestedSection = &scene;
        scene.SectionProcess();
        EXPECT_EQ(requestedSection, &sectionMenu);
        EXPECT_FALSE(input.mouseLeftDown);
        EXPECT_EQ(sectionMenu.rankEntryPending, over.entryPending);
    }
}
}
