#include "actors/status_bar.h"

namespace
{
POINT PanelPosition(const CImage& picture, PanelPlace place)
{
    switch (place) {
    case PanelPlace::SCREEN_CENTRE:
        return { (SCREEN_WIDTH - picture.width) / 2, (SCREEN_HEIGHT - picture.height) / 2 };
    case PanelPlace::POND_CENTRE:
        return { (POND_SIZE - picture.width) / 2 + POND_LEFT, (POND_SIZE - picture.height) / 2 };
    case PanelPlace::CORNER:
        break;
    }
    return { 0, 0 };
}
}

std::array<CStatusBar::PanelRow, CStatusBar::PANELS> CStatusBar::PanelRows()
{
    static constexpr MenuButton strip[] = {
        { BUTTON_PAUSE, { 10, 433, 39, 14 } },
        { BUTTON_HELP, { 61, 433, 39, 14 } },
        { BUTTON_QUIT, { 112, 433, 39, 14 } },
    };
    static constexpr MenuButton paused[] = {
        { BUTTON_RESUME, { 18, 63, 54, 14 } },
        { BUTTON_HELP, { 88, 63, 54, 14 } },
    };
    static constexpr MenuButton confirm[] = {
        { BUTTON_YES, { 18, 63, 54, 14 } },
        { BUTTON_NO, { 88, 63, 54, 14 } },
    };
    using enum PanelPlace;
    using Bar = CStatusBar;
    return { {
        { leftPanel, IMAGE_STRIP, CORNER, &Bar::ProcessStrip, strip },
        { pausedPanel, IMAGE_PAUSED, SCREEN_CENTRE, &Bar::ProcessPaused, paused },
        { confirmPanel, IMAGE_CONFIRM, SCREEN_CENTRE, &Bar::ProcessConfirm, confirm },
        { levelClearedPanel, IMAGE_LEVEL_CLEARED, POND_CENTRE, &Bar::ProcessLevelCleared, {} },
        { nextLevelPanel, IMAGE_NEXT_LEVEL, POND_CENTRE, &Bar::ProcessNextLevel, {} },
        { helpPanels[0], IMAGE_HELP, SCREEN_CENTRE, &Bar::ProcessHelp, {} },
        { helpPanels[1], IMAGE_HELP + 1, SCREEN_CENTRE, &Bar::ProcessHelp, {} },
        { helpPanels[2], IMAGE_HELP + 2, SCREEN_CENTRE, &Bar::ProcessHelp, {} },
        { helpPanels[3], IMAGE_HELP + 3, SCREEN_CENTRE, &Bar::ProcessHelp, {} },
        { gameOverPanel, IMAGE_GAME_OVER, POND_CENTRE, &Bar::ProcessGameOver, {} },
    } };
}

bool CStatusBar::CreatePanels()
{
    for (const PanelRow& row : PanelRows())
        CreatePanel(row);
    for (int page = 0; page < HELP_PAGES; ++page)
        AddHelpButtons(helpPanels[page], BUTTON_HELP_FIRST, page);
    AddLevelTexts();
    return true;
}

void CStatusBar::CreatePanel(const PanelRow& row)
{
    CImage& picture = images[row.picture];
    const POINT position = PanelPosition(picture, row.place);
    row.panel.MenuCreate(static_cast<int>(position.x), static_cast<int>(position.y), &picture);
    for (const MenuButton& button : row.buttons)
        row.panel.AddButton(button);
}

void CStatusBar::AddLevelTexts()
{
    constexpr int DIGITS = 6; // of a level or a target
    const auto add = [this](int id, int top) {
        nextLevelPanel.AddText({ .id = id,
                                 .box = { 4, top, 152, 14 },
                                 .font = &font,
                                 .colour = 0xFFFF,
                                 .maxLength = DIGITS,
                                 .align = ALIGN_CENTRE });
    };
    add(TEXT_LEVEL, 25);
    add(TEXT_TARGET, 70);
}

void CStatusBar::ProcessPanels()
{
    for (const PanelRow& row : PanelRows()) {
        if (row.panel.IsOpen())
            (this->*row.process)();
    }
}
