#include "menu/help_page.h"

#include "app/input.h"
#include "platform/window.h"

namespace
{
constexpr MenuBox closeBox = { 223, 363, 54, 14 };
constexpr MenuBox tabBoxes[HELP_PAGES] = {
    { 3, 3, 123, 32 },
    { 126, 3, 123, 32 },
    { 249, 3, 123, 32 },
    { 372, 3, 123, 32 },
};
}

void AddHelpButtons(CMenu& panel, int firstId, int page)
{
    panel.AddButton({ .id = HelpCloseId(firstId, page), .box = closeBox });
    for (int other = 0; other < HELP_PAGES; ++other) {
        if (other != page)
            panel.AddButton({ .id = HelpTabId(firstId, page, other), .box = tabBoxes[other] });
    }
}

int ProcessHelpPage(CMenu& panel, int firstId, int page)
{
    MenuButton& close = *panel.FindButton(HelpCloseId(firstId, page));
    if (input.TakeKey({ VK_SPACE, VK_RETURN, VK_ESCAPE }))
        close.clicked = true;
    if (close.clicked)
        return HELP_CLOSE;
    for (int other = 0; other < HELP_PAGES; ++other) {
        if (other != page && panel.FindButton(HelpTabId(firstId, page, other))->clicked)
            return other;
    }
    return HELP_STAY;
}
