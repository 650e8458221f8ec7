#include "app/globals.h"
#include "app/random.h"
#include "doubles/fake_platform.h"
#include "menu/menu_fixture.h"
#include "menu/menu_items.h"
#include "sound/sound.h"

#include <algorithm>
#include <vector>

namespace
{
class SectionMenuTest : public MenuFixture
{
protected:
    MenuButton* MainButton(int id) { return menu.mainMenu.FindButton(id); }
    /// Clicks the button with that id on the page that is open.
    void ClickOpen(int id)
    {
        for (CMenu* page : { &menu.mainMenu, &menu.optionsMenu, &menu.rankingMenu, &menu.helpMenus[0] }) {
            if (page->IsOpen())
                return Click(*page, page->FindButton(id));
        }
    }
    const char* NameField(int place) { return menu.rankingMenu.FindText(FIELD_NAME_FIRST + place - 1)->text.get(); }
    const char* ScoreField(int place) { return menu.rankingMenu.FindText(FIELD_SCORE_FIRST + place - 1)->text.get(); }
};
}

TEST_F(SectionMenuTest, LoadsInFourLoggedStepsAndStopsAtAMissingPicture)
{
    CSectionMenu other;
    bool done = false;
    const std::string before = Log();
    const std::string picture = pictures.folder.Read("Dat/Image/Help4.jpg");
    for (const std::string& damaged : { std::string(), std::string("no picture") }) {
        pictures.folder.Write("Dat/Image/Help4.jpg", damaged);
        while (other.DataLoad(done))
            ASSERT_FALSE(done);
    }
    pictures.folder.Write("Dat/Image/Help4.jpg", picture);
    EXPECT_TRUE(other.DataLoad(done)); // the step is tried again
    EXPECT_FALSE(done);
    EXPECT_TRUE(other.DataLoad(done));
    EXPECT_TRUE(done);
    EXPECT_TRUE(other.DataLoad(done));
    EXPECT_EQ(Log().substr(before.size()), "CSectionMenu::DataLoad 0\nCSectionMenu::DataLoad 1\n"
                                           "CSectionMenu::DataLoad 2\nCSectionMenu::DataLoad 3\n");
}

TEST_F(SectionMenuTest, EveryItemLiesOnItsPage)
{
    std::vector<CMenu*> pages = { &menu.mainMenu, &menu.optionsMenu, &menu.rankingMenu };
    for (CMenu& page : menu.helpMenus)
        pages.push_back(&page);
    for (const CMenu* page : pages) {
        EXPECT_EQ(page->x, (640 - page->background->width) / 2);
        EXPECT_EQ(page->y, (480 - page->background->height) / 2);
        const auto isOnPage = [page](const auto& item) {
            return item.x >= 0 && item.y >= 0 && item.x + item.width <= page->background->width &&
                   item.y + item.height <= page->background->height;
        };
        EXPECT_TRUE(std::all_of(&page->buttons[0], &page->buttons[page->buttonCount], isOnPage));
        EXPECT_TRUE(std::all_of(&page->toggles[0], &page->toggles[page->toggleCount], isOnPage));
        EXPECT_TRUE(std::all_of(&page->texts[0], &page->texts[page->textCount], isOnPage));
    }
    // A picture that is drawn over a box fills it.
    for (int i = 0; i < menu.mainMenu.buttonCount; ++i) {
        const MenuButton& button = menu.mainMenu.buttons[i];
        EXPECT_EQ(button.hoverImage->width, button.width) << button.id;
        EXPECT_EQ(button.hoverImage->height, button.height) << button.id;
    }
    for (int i = 0; i < menu.optionsMenu.toggleCount; ++i)
        EXPECT_EQ(menu.optionsMenu.toggles[i].checkedImage->width, menu.optionsMenu.toggles[i].width) << i;
}

TEST_F(SectionMenuTest, KeysOpenAndClosePages)
{
    struct Step {
        int key;
        const char* pages;
    };
    const Step steps[] = {
        { VK_SPACE, "main" }, { VK_RETURN, "main" }, { VK_ESCAPE, "main" }, { VK_F1, "help1" },
        { VK_F1, "help1" },   { VK_ESCAPE, "main" }, { VK_F1, "help1" },    { VK_SPACE, "main" },
    };
    for (const Step& step : steps) {
        Press(step.key);
        EXPECT_EQ(OpenPages(), step.pages) << step.key;
    }
}

TEST_F(SectionMenuTest, APressThatNobodyWantedActsOnNoOtherPage)
{
    constexpr int MAIN = -1;
    const struct {
        int from; ///< the main menu's button whose page is open
        int key;
        int button; ///< clicked in a later frame
        const char* pages;
    } cases[] = {
        { MAIN, VK_RETURN, BUTTON_HELP, "help1" },         { MAIN, VK_ESCAPE, BUTTON_HELP, "help1" },
        { MAIN, VK_RETURN, BUTTON_RANKING, "ranking" },    { MAIN, VK_RETURN, BUTTON_OPTIONS, "options" },
        { MAIN, VK_LEFT, BUTTON_OPTIONS, "options" },      { BUTTON_RANKING, VK_F1, BUTTON_RANKING_OK, "main" },
        { BUTTON_HELP, VK_F1, BUTTON_HELP_FIRST, "main" }, { BUTTON_OPTIONS, VK_F1, BUTTON_OPTIONS_CANCEL, "main" },
    };
    for (const auto& [from, key, button, pages] : cases) {
        SCOPED_TRACE(std::to_string(from) + ", " + std::to_string(key) + ", " + std::to_string(button));
        menu.SectionBegin();
        if (from != MAIN)
            ClickOpen(from);
        Press(key);
        ClickOpen(button);
        Frame();
        EXPECT_EQ(OpenPages(), pages);
        EXPECT_NE(menu.optionsMenu.FindText(FIELD_KEY_FIRST)->key, VK_LEFT);
        EXPECT_EQ(StoredNumber("Windowed").has_value(), from > MAIN) << "stored by OK alone";
    }
    input.mouseX = input.mouseY = 0;
    input.mouseLeftDown = true; // beside every button, and held
    Press(VK_F1);
    input.mouseX = menu.helpMenus[0].x + 180;
    input.mouseY = menu.helpMenus[0].y + 20;
    Frame();
    EXPECT_EQ(OpenPages(), "help1") << "and no tab";
}

TEST_F(SectionMenuTest, EachMainButtonDoesItsOwnThing)
{
    for (const auto& [button, page] : { std::pair{ BUTTON_RANKING, "ranking" },
                                        { BUTTON_OPTIONS, "options" },
                                        { BUTTON_HELP, "help1" },
                                        { BUTTON_HOME_PAGE, "main" } }) {
        screenCopy.Fill(0);
        Click(menu.mainMenu, MainButton(button));
        EXPECT_EQ(OpenPages(), page);
        EXPECT_EQ(screenCopy.Row(0)[0] != 0, button != BUTTON_HOME_PAGE) << "a still behind " << page;
        Press(VK_ESCAPE);
        EXPECT_EQ(OpenPages(), "main");
    }
    EXPECT_EQ(fake.opened, std::vector<std::string>{ HOME_PAGE });
    EXPECT_TRUE(fake.windowMinimised);

    for (const auto& [button, players] : { std::pair{ BUTTON_TWO_PLAYERS, 1U }, { BUTTON_ONE_PLAYER, 0U } }) {
        menu.SectionBegin();
        requestedSection = nullptr;
        Click(menu.mainMenu, MainButton(button));
        EXPECT_EQ(menu.twoPlayers, players);
        EXPECT_EQ(static_cast<void*>(requestedSection), &sectionMain);
        EXPECT_FALSE(menu.mainMenu.isVisible);
    }
}

TEST_F(SectionMenuTest, QuitTouchesNothingOnceTheWindowIsGone)
{
    const uint32_t random = RandomState();
    Click(menu.mainMenu, MainButton(BUTTON_QUIT));
    EXPECT_EQ(fake.Calls("DestroyWindow"), 1);
    EXPECT_EQ(RandomState(), random);
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
        Frame();
        EXPECT_EQ(OpenPages(), "help" + std::to_string(next + 1)) << "from page " << page + 1;
        page = next;
    }
    Click(menu.helpMenus[0], menu.helpMenus[0].FindButton(45));
    EXPECT_EQ(OpenPages(), "main");
}

TEST_F(SectionMenuTest, DimsTheFrameThatShowedTheMainMenuBehindAPage)
{
    Press(VK_F1);
    backBuffer.Fill(0);
    screenCopy.Fill(Rgb565(200, 100, 40));
    Frame();
    const uint16_t corner = backBuffer.Row(0)[0];
    EXPECT_EQ(corner >> 11, 200 / 8 / 2);
    EXPECT_EQ(corner >> 5 & 63, 100 / 4 / 2);
    EXPECT_EQ(corner & 31, 40 / 8 / 2);
}

TEST_F(SectionMenuTest, SleepsWithoutFocus)
{
    input.hasFocus = false;
    backBuffer.Fill(0x1234);
    const uint32_t random = RandomState();
    Press(VK_F1);
    EXPECT_EQ(fake.now, 1100U);
    EXPECT_EQ(OpenPages(), "main");
    EXPECT_EQ(backBuffer.Row(240)[320], 0x1234);
    EXPECT_EQ(RandomState(), random);
}

TEST_F(SectionMenuTest, NumbersThreeToSevenPlayTheirAmbience)
{
    for (uint32_t seed = 0, wanted = 2; wanted <= 8; ++seed) {
        SeedRandom(seed);
        if (Random() % 1000 != static_cast<int>(wanted))
            continue;
        SeedRandom(seed);
        Frame();
        for (uint32_t id = SOUND_MENU_ENV_FIRST; id <= SOUND_MENU_ENV_LAST; ++id)
            EXPECT_EQ(fake.soundBuffers[id]->plays, id <= wanted ? 1 : 0) << id << " after number " << wanted;
        ++wanted;
    }
    EXPECT_FALSE(fake.soundBuffers[SOUND_MENU_ENV_FIRST]->looping);
}

TEST_F(SectionMenuTest, TheMusicGoesOnUnderTheGame)
{
    fake.soundBuffers[SOUND_MENU_ENV_FIRST]->playing = true;
    menu.SectionEnd();
    EXPECT_TRUE(fake.soundBuffers[SOUND_MUSIC]->playing && fake.soundBuffers[SOUND_MUSIC]->looping);
    EXPECT_FALSE(fake.soundBuffers[SOUND_MENU_ENV_FIRST]->playing);
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
    Frame();
    EXPECT_EQ(OpenPages(), "ranking");
    EXPECT_TRUE(menu.mainMenu.isVisible);
    EXPECT_STREQ(NameField(1), "------");
    EXPECT_STREQ(NameField(2), "");
    EXPECT_STREQ(ScoreField(2), "70");
    EXPECT_STREQ(ScoreField(3), "------");

    Type("ann x");
    Press(VK_BACK);
    Type("b");
    Press(VK_ESCAPE);
    EXPECT_STREQ(NameField(2), "ann b");
    input.lastKeyDown = 0;
    Press(VK_RETURN);
    EXPECT_EQ(OpenPages(), "ranking") << "the first Enter ends typing";
    EXPECT_FALSE(StoredNumber("Windowed"));
    Press(VK_RETURN);
    EXPECT_EQ(OpenPages(), "main");
    EXPECT_STREQ(menu.rankNames[0], "") << "a name left as dashes is empty";
    EXPECT_STREQ(menu.rankNames[1], "ann b");
    EXPECT_EQ(menu.rankEntryPending, 0U);
    EXPECT_EQ(StoredText("Name 2"), "ann b");
}

TEST_F(SectionMenuTest, OkConfirmsWhileTheNameIsTyped)
{
    menu.RankingInsert(70);
    menu.SectionBegin();
    Type("zoe");
    Click(menu.rankingMenu, menu.rankingMenu.FindButton(BUTTON_RANKING_OK));
    EXPECT_EQ(OpenPages(), "main");
    EXPECT_STREQ(menu.rankNames[0], "zoe");
    Click(menu.mainMenu, MainButton(BUTTON_RANKING));
    EXPECT_STREQ(NameField(1), "zoe");
    Press(VK_SPACE);
    EXPECT_EQ(OpenPages(), "main") << "no field has the focus any more";
}

TEST_F(SectionMenuTest, KeepsWhatWasTypedWhenTheWindowIsClosed)
{
    for (const int lastKey : { int{ 'x' - 'a' + 'A' }, VK_RETURN }) {
        menu.RankingInsert(70);
        menu.SectionBegin();
        Type("zo");
        Press(lastKey);
        menu.SectionEnd();
        menu.SettingsSave();
        EXPECT_EQ(StoredText("Name 1"), "zo") << lastKey;
        menu.rankScores[0] = 0;
    }
}
