#include "gfx/error.h"
#include "menu/menu_fixture.h"

#include <vector>

using namespace menu_items;

namespace
{
using SectionMenuTest = MenuFixture;
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

TEST_F(SectionMenuTest, KeepsWhatWasTypedWhenTheWindowIsClosed)
{
    menu.rankScores[0] = 900;
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
