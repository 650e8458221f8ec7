#include "app/frame_images.h"
#include "app/input.h"
#include "menu/section_menu.h"
#include "platform/window.h"

#include <cstdio>
#include <cstring>

namespace
{

constexpr char EMPTY_PLACE[] = "------";

}

void CSectionMenu::RankingInsert(int32_t score)
{
    constexpr int LAST = RANKING_PLACES - 1;
    if (score <= rankScores[LAST])
        return;
    int place = 0;
    while (rankScores[place] >= score) // an equal score stays above the new one
        ++place;
    for (int lower = LAST; lower > place; --lower) {
        rankScores[lower] = rankScores[lower - 1];
        memcpy(rankNames[lower], rankNames[lower - 1], NAME_BYTES);
    }
    rankScores[place] = score;
    rankNames[place][0] = 0;

    rankingMenu.FindText(FIELD_NAME_FIRST + place)->focused = true;
    rankEntryPending = 1;
    RankingPageFill();
    captureScreen = true; // the game's last frame is the still behind the page
}

void CSectionMenu::RankingPageFill()
{
    for (int place = 0; place < RANKING_PLACES; ++place) {
        MenuText& name = *rankingMenu.FindText(FIELD_NAME_FIRST + place);
        const bool isShownEmpty = rankNames[place][0] == 0 && !name.focused;
        snprintf(name.text, MENU_TEXT_SIZE, "%s", isShownEmpty ? EMPTY_PLACE : rankNames[place]);

        MenuText& score = *rankingMenu.FindText(FIELD_SCORE_FIRST + place);
        if (rankScores[place] > 0)
            snprintf(score.text, MENU_TEXT_SIZE, "%d", rankScores[place]);
        else
            snprintf(score.text, MENU_TEXT_SIZE, "%s", EMPTY_PLACE);
    }
}

void CSectionMenu::RankingPageStore()
{
    for (int place = 0; place < RANKING_PLACES; ++place) {
        MenuText& name = *rankingMenu.FindText(FIELD_NAME_FIRST + place);
        name.focused = false;
        const bool isEmpty = strcmp(name.text, EMPTY_PLACE) == 0;
        snprintf(rankNames[place], NAME_BYTES, "%s", isEmpty ? "" : name.text);
    }
}

MenuText* CSectionMenu::FocusedName()
{
    for (int place = 0; place < RANKING_PLACES; ++place) {
        MenuText* name = rankingMenu.FindText(FIELD_NAME_FIRST + place);
        if (name->focused)
            return name;
    }
    return nullptr;
}

void CSectionMenu::RankingPageProcess()
{
    MenuButton& ok = *rankingMenu.FindButton(BUTTON_RANKING_OK);
    if (MenuText* name = FocusedName()) {
        if (input.TakeKey({ VK_RETURN }))
            name->focused = false;
    } else if (input.TakeKey({ VK_SPACE, VK_RETURN, VK_ESCAPE })) {
        ok.clicked = true;
    }
    if (!ok.clicked)
        return;
    ClosePage(rankingMenu);
    RankingPageStore();
    SettingsSave();
    rankEntryPending = 0;
}
