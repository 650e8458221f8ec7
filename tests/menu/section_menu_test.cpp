#include "app/frame_images.h"
#include "app/random.h"
#include "app/scenes.h"
#include "doubles/directx.h"
#include "doubles/system.h"
#include "game/section_main.h"
#include "gfx/error.h"
#include "menu/menu_fixture.h"
#include "platform/sdl/native_window.h"
#include "sound/sound.h"

#include <vector>

namespace
{
class SectionMenuTest : public MenuFixture
{
protected:
    const char* NameField(int place) { return menu.rankingMenu.FindText(FIELD_NAME_FIRST + place - 1)->text.get(); }
};
}

TEST_F(SectionMenuTest, StopsLoadingAtAMissingPictureAndTriesTheStepAgain)
{
    CSectionMenu other;
    bool done = false;
    const std::string picture = pictures.folder.Read("Dat/Image/Help4.jpg");
    pictures.folder.Write("Dat/Image/Help4.jpg", "no picture");
    int steps = 0;
    while (other.DataLoad(done))
        ++steps;
    EXPECT_EQ(steps, 2);
    pictures.folder.Write("Dat/Image/Help4.jpg", picture);
    EXPECT_TRUE(other.DataLoad(done));
    EXPECT_FALSE(done);
    EXPECT_TRUE(other.DataLoad(done));
    EXPECT_TRUE(done);
    lastError = ENGINE_NO_ERROR;
}

TEST_F(SectionMenuTest, EachMainButtonDoesItsOwnThing)
{
    for (const auto& [button, page] :
         { std::pair{ BUTTON_RANKING, "r" }, { BUTTON_OPTIONS, "o" }, { BUTTON_HELP, "1" } }) {
        ClickMain(button);
        EXPECT_EQ(OpenPages(), page);
        screenCopy.Fill(Rgb565(200, 100, 40));
        Press(0);
        EXPECT_EQ(backBuffer.Row(0)[0], Rgb565(100, 50, 16)) << "the still behind a page has half its light";
        Press(VK_ESCAPE);
        EXPECT_EQ(OpenPages(), "m");
    }
    for (const auto& [button, players] : { std::pair{ BUTTON_TWO_PLAYERS, 1U }, { BUTTON_ONE_PLAYER, 0U } }) {
        menu.SectionBegin();
        ClickMain(button);
        EXPECT_EQ(menu.twoPlayers, players);
        EXPECT_EQ(static_cast<void*>(requestedSection), &sectionMain);
    }
    menu.SectionBegin();
    const uint32_t random = RandomState();
    requestedSection = nullptr;
    ClickMain(BUTTON_QUIT);
    EXPECT_FALSE(nativeWindow.handle);
    EXPECT_EQ(RandomState(), random) << "nothing is touched once the window is gone";
}

TEST_F(SectionMenuTest, HelpTabsLeadToEveryOtherPage)
{
    Press(VK_F1);
    int page = 0;
    for (const int next : { 1, 0, 2, 0, 3, 1, 2, 1, 3, 2, 3, 0 }) { // each page from each other
        const CMenu& shown = menu.helpMenus[page];
        input.mouseX = shown.x + 123 * next + 60; // the tabs lie side by side in the order of the pages
        input.mouseY = shown.y + 20;
        input.mouseLeftDown = true;
        Press(VK_F1); // opens nothing more
        EXPECT_EQ(OpenPages(), std::to_string(next + 1)) << "from page " << page + 1;
        page = next;
    }
}

TEST_F(SectionMenuTest, APressThatNobodyWantedActsOnNoOtherPage)
{
    const struct {
        CMenu& page;
        int opener; ///< the main menu's button for it; 0: the main menu itself
        int key;
        int button; ///< clicked in the frame after
        const char* pages;
    } cases[] = {
        { menu.mainMenu, 0, VK_RETURN, BUTTON_HELP, "1" },
        { menu.mainMenu, 0, VK_ESCAPE, BUTTON_HELP, "1" },
        { menu.mainMenu, 0, VK_RETURN, BUTTON_RANKING, "r" },
        { menu.mainMenu, 0, VK_RETURN, BUTTON_OPTIONS, "o" },
        { menu.mainMenu, 0, VK_LEFT, BUTTON_OPTIONS, "o" },
        { menu.rankingMenu, BUTTON_RANKING, VK_F1, BUTTON_RANKING_OK, "m" },
        { menu.helpMenus[0], BUTTON_HELP, VK_F1, BUTTON_HELP_FIRST, "m" },
        { menu.optionsMenu, BUTTON_OPTIONS, VK_F1, BUTTON_OPTIONS_CANCEL, "m" },
    };
    for (const auto& [page, opener, key, button, pages] : cases) {
        menu.SectionBegin();
        if (opener != 0)
            ClickMain(opener);
        Press(key);
        Click(page, page.FindButton(button));
        Press(0);
        EXPECT_EQ(OpenPages(), pages) << key << ", then " << button;
        EXPECT_NE(menu.optionsMenu.FindText(FIELD_KEY_FIRST)->key, VK_LEFT);
    }
    input.mouseX = input.mouseY = 0;
    input.mouseLeftDown = true; // beside every button, and held
    Press(VK_F1);
    input.mouseX = menu.helpMenus[0].x + 180;
    input.mouseY = menu.helpMenus[0].y + 20;
    Press(0);
    EXPECT_EQ(OpenPages(), "1") << "and no tab";
}

TEST_F(SectionMenuTest, SleepsWithoutFocus)
{
    input.hasFocus = false;
    const uint32_t before = systemDouble.now;
    Press(VK_F1);
    EXPECT_EQ(systemDouble.now, before + 100);
    EXPECT_EQ(OpenPages(), "m");
}

TEST_F(SectionMenuTest, NumbersThreeToSevenPlayTheirAmbience)
{
    for (uint32_t seed = 0, wanted = 2; wanted <= 8; ++seed) {
        SeedRandom(seed);
        if (Random() % 1000 != static_cast<int>(wanted))
            continue;
        SeedRandom(seed);
        Press(0);
        for (uint32_t id = SOUND_MENU_ENV_FIRST; id <= SOUND_MENU_ENV_LAST; ++id)
            EXPECT_EQ(directX.buffers[id]->plays, id <= wanted ? 1 : 0) << id << " after number " << wanted;
        ++wanted;
    }
    menu.SectionEnd();
    EXPECT_TRUE(directX.buffers[SOUND_MUSIC]->playing && directX.buffers[SOUND_MUSIC]->looping) << "under the game";
    for (int id = SOUND_MENU_ENV_FIRST; id <= SOUND_MENU_ENV_LAST; ++id)
        EXPECT_FALSE(directX.buffers[static_cast<size_t>(id)]->playing) << id;
}

TEST_F(SectionMenuTest, InsertsAScoreBelowItsEquals)
{
    struct Case {
        int32_t score;
        int place; ///< from 1; 0 = not entered
        const char* reason;
    };
    const Case cases[] = {
        { 950, 1, "a new best" },
        { 800, 3, "below an equal score" },
        { 50, 10, "the tenth place is replaced, nothing moves" },
        { 0, 0, "an equal of the tenth place" },
        { -5, 0, "less than nothing" },
    };
    for (const Case& row : cases) {
        std::vector<int32_t> expected;
        for (int i = 0; i < RANKING_PLACES; ++i) {
            expected.push_back(menu.rankScores[i] = 900 - 100 * i);
            snprintf(menu.rankNames[i], NAME_BYTES, "%d", menu.rankScores[i]);
        }
        if (row.place != 0) {
            expected.insert(expected.begin() + row.place - 1, row.score);
            expected.pop_back();
        }
        menu.rankEntryPending = 0;
        menu.RankingInsert(row.score);
        EXPECT_EQ(std::vector<int32_t>(menu.rankScores, menu.rankScores + RANKING_PLACES), expected) << row.reason;
        EXPECT_EQ(menu.rankEntryPending, row.place != 0 ? 1U : 0U) << row.reason;
        for (int i = 0; i < RANKING_PLACES; ++i) {
            const bool isNew = i + 1 == row.place;
            EXPECT_EQ(menu.rankNames[i], isNew ? "" : std::to_string(menu.rankScores[i])) << row.reason;
            EXPECT_EQ(menu.rankingMenu.FindText(FIELD_NAME_FIRST + i)->focused, isNew) << row.reason;
        }
        menu.RankingPageStore(); // the name's field loses the focus
    }
}

TEST_F(SectionMenuTest, AsksForTheNameOfANewScore)
{
    menu.rankScores[0] = 900;
    menu.SectionEnd();
    input.lastChar = 'w'; // left over from steering
    menu.RankingInsert(70);
    EXPECT_TRUE(captureScreen);
    menu.SectionBegin();
    Press(0);
    EXPECT_EQ(OpenPages(), "r");
    EXPECT_STREQ(NameField(1), "------");
    Type("ann x");
    Press(VK_BACK);
    Type("b");
    Press(VK_ESCAPE);
    EXPECT_STREQ(NameField(2), "ann b");
    Press(VK_RETURN);
    EXPECT_EQ(OpenPages(), "r") << "the first Enter ends typing";
    EXPECT_EQ(Stored(), "");
    Press(VK_RETURN);
    EXPECT_EQ(OpenPages(), "m");
    EXPECT_STREQ(menu.rankNames[0], "") << "a name left as dashes is empty";
    EXPECT_NE(Stored().find("ann b"), std::string::npos);

    menu.RankingInsert(60);
    menu.SectionBegin();
    Type("zoe");
    Click(menu.rankingMenu, menu.rankingMenu.FindButton(BUTTON_RANKING_OK)); // while the name is typed
    EXPECT_EQ(OpenPages(), "m");
    EXPECT_STREQ(menu.rankNames[2], "zoe");
    EXPECT_EQ(menu.rankEntryPending, 0U);
    ClickMain(BUTTON_RANKING);
    Press(VK_SPACE);
    EXPECT_EQ(OpenPages(), "m") << "no field has the focus any more";

    for (const int lastKey : { int{ 'X' }, VK_RETURN }) {
        menu.RankingInsert(950);
        menu.SectionBegin();
        Type("joy");
        Press(lastKey);
        menu.SectionEnd(); // the window is closed
        EXPECT_STREQ(menu.rankNames[0], "joy");
        menu.rankScores[0] = 900;
    }
}
