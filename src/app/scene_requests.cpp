#include "app/scenes.h"

#include "game/section_main.h"
#include "menu/section_menu.h"

void RequestMenu()
{
    requestedSection = &sectionMenu;
}

void RequestGame()
{
    requestedSection = &sectionMain;
}

GameChoice ChosenGame()
{
    const uint32_t* keys = sectionMenu.keys.data();
    return { static_cast<int>(sectionMenu.twoPlayers), keys, keys + KEY_BINDINGS / 2 };
}

void EnterRanking(int32_t score)
{
    sectionMenu.RankingInsert(score);
}
