#include "actors/status_bar_rows.h"

#include "game/geometry.h"
#include "gfx/error.h"

#include <algorithm>
#include <functional>

namespace
{
std::span<CMenu> AllOf(CMenu& panel)
{
    return { &panel, 1 };
}

std::span<CMenu> AllOf(CMenu (&pages)[HELP_PAGES])
{
    return pages;
}

template <auto member>
std::span<CMenu> Get(CStatusBar& bar)
{
    return AllOf(bar.*member);
}

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

std::span<const CStatusBar::PanelRow> CStatusBar::PanelRows()
{
    static constexpr PanelButton strip[] = {
        { BUTTON_PAUSE, { 10, 433, 39, 14 } },
        { BUTTON_HELP, { 61, 433, 39, 14 } },
        { BUTTON_QUIT, { 112, 433, 39, 14 } },
    };
    static constexpr PanelButton paused[] = {
        { BUTTON_RESUME, { 18, 63, 54, 14 } },
        { BUTTON_HELP, { 88, 63, 54, 14 } },
    };
    static constexpr PanelButton confirm[] = {
        { BUTTON_YES, { 18, 63, 54, 14 } },
        { BUTTON_NO, { 88, 63, 54, 14 } },
    };
    using enum PanelPlace;
    using Bar = CStatusBar;
    static constexpr PanelRow rows[] = {
        { Get<&Bar::leftPanel>, IMAGE_STRIP, CORNER, &Bar::ProcessStrip, strip },
        { Get<&Bar::pausedPanel>, IMAGE_PAUSED, SCREEN_CENTRE, &Bar::ProcessPaused, paused },
        { Get<&Bar::confirmPanel>, IMAGE_CONFIRM, SCREEN_CENTRE, &Bar::ProcessConfirm, confirm },
        { Get<&Bar::levelClearedPanel>, IMAGE_LEVEL_CLEARED, POND_CENTRE, &Bar::ProcessLevelCleared, {} },
        { Get<&Bar::nextLevelPanel>, IMAGE_NEXT_LEVEL, POND_CENTRE, &Bar::ProcessNextLevel, {} },
        { Get<&Bar::helpPanels>, IMAGE_HELP, SCREEN_CENTRE, &Bar::ProcessHelp, {} },
        { Get<&Bar::gameOverPanel>, IMAGE_GAME_OVER, POND_CENTRE, &Bar::ProcessGameOver, {} },
    };
    return rows;
}

bool CStatusBar::CreatePanels()
{
    const auto create = [this](const PanelRow& row) { return CreatePanel(row); };
    const std::span<const PanelRow> rows = PanelRows();
    const bool made = std::all_of(rows.begin(), rows.end(), create) && AddHelp() && AddLevelTexts();
    return made || FailWith(ENGINE_ALLOCATE_MEMORY);
}

bool CStatusBar::CreatePanel(const PanelRow& row)
{
    CImage* picture = &images[row.picture];
    for (CMenu& panel : row.panels(*this)) {
        const POINT position = PanelPosition(*picture, row.place);
        if (!panel.MenuCreate(static_cast<int>(position.x), static_cast<int>(position.y), picture))
            return false;
        ++picture;
        for (const PanelButton& button : row.buttons)
            if (!panel.AddButton({ .id = button.id, .box = button.box }))
                return false;
    }
    return true;
}

bool CStatusBar::AddHelp()
{
    for (int page = 0; page < HELP_PAGES; ++page)
        if (!AddHelpButtons(helpPanels[page], BUTTON_HELP_FIRST, page))
            return false;
    return true;
}

bool CStatusBar::AddLevelTexts()
{
    constexpr int DIGITS = 6; // of a level or a target
    const auto add = [this](int id, int top) {
        return nextLevelPanel.AddText({ .id = id,
                                        .box = { 4, top, 152, 14 },
                                        .font = &font,
                                        .colour = 0xFFFF,
                                        .maxLength = DIGITS,
                                        .align = ALIGN_CENTRE });
    };
    return add(TEXT_LEVEL, 25) && add(TEXT_TARGET, 70);
}

void CStatusBar::ProcessPanels()
{
    for (const PanelRow& row : PanelRows()) {
        const std::span<CMenu> panels = row.panels(*this);
        if (std::any_of(panels.begin(), panels.end(), std::mem_fn(&CMenu::IsOpen)))
            (this->*row.process)();
    }
}
