#include "actors/status_bar_items.h"

#include "app/globals.h"
#include "game/pond.h"
#include "menu/section_menu.h"

#include <algorithm>

namespace
{
/// True once for a press of the key.
bool TakeKey(int key)
{
    if (input.lastKeyDown != key)
        return false;
    input.lastKeyDown = 0;
    return true;
}

bool IsDismissKey(int key)
{
    return key == VK_SPACE || key == VK_RETURN || key == VK_ESCAPE;
}

void Click(CMenu& panel, int button)
{
    panel.FindButton(button)->clicked = true;
}

bool IsClicked(CMenu& panel, int button)
{
    return panel.FindButton(button)->clicked;
}
}

void CStatusBar::ShowPanel(CMenu& panel)
{
    panel.isVisible = true;
    panel.isActive = true;
}

void CStatusBar::HidePanel(CMenu& panel)
{
    panel.isVisible = false;
    panel.isActive = false;
}

bool CStatusBar::IsHelpVisible() const
{
    return std::ranges::any_of(helpPanels, &CMenu::isVisible);
}

void CStatusBar::SetPaused(bool paused)
{
    for (CSnake& snake : pond->snake)
        snake.isPaused = paused;
}

void CStatusBar::StatusBarProcess(CImage& screen)
{
    // While paused the pond shows a still of the screen, the strip included.
    if (!pond->snake[0].isPaused) {
        leftPanel.MenuProcess(screen);
        StatusBarDraw(screen);
    }
    for (CMenu* panel : Panels()) {
        if (panel != &leftPanel)
            panel->MenuProcess(screen);
    }
    ProcessStripButtons();
    ProcessPausedPanel();
    ProcessConfirmPanel();
    ProcessLevelClearedPanel();
    ProcessNextLevelPanel();
    ProcessHelpPages();
    ProcessGameOverPanel();
    DropLevelBerries();
}

void CStatusBar::ProcessStripButtons()
{
    if (!IsOpen(leftPanel))
        return;
    if (!pond->snake[0].isPaused && TakeKey(VK_SPACE))
        Click(leftPanel, BUTTON_PAUSE);
    if (!confirmPanel.isVisible && TakeKey(VK_ESCAPE))
        Click(leftPanel, BUTTON_QUIT);
    if (!IsHelpVisible() && TakeKey(VK_F1))
        Click(leftPanel, BUTTON_HELP);

    CMenu* opened = nullptr;
    if (IsClicked(leftPanel, BUTTON_PAUSE))
        opened = &pausedPanel;
    else if (IsClicked(leftPanel, BUTTON_HELP))
        opened = &helpPanels[0];
    else if (IsClicked(leftPanel, BUTTON_QUIT))
        opened = &confirmPanel;
    if (opened == nullptr)
        return;
    ShowPanel(*opened);
    leftPanel.isActive = false;
    SetPaused(true);
    captureScreen = true;
}

void CStatusBar::ProcessPausedPanel()
{
    if (!IsOpen(pausedPanel))
        return;
    panelOpen = true;
    if (pond->snake[0].isPaused && IsDismissKey(input.lastKeyDown))
        Click(pausedPanel, BUTTON_RESUME);
    if (!IsHelpVisible() && TakeKey(VK_F1))
        Click(pausedPanel, BUTTON_HELP);

    if (IsClicked(pausedPanel, BUTTON_RESUME)) {
        ResumeGame(pausedPanel);
    } else if (IsClicked(pausedPanel, BUTTON_HELP)) {
        HidePanel(pausedPanel);
        ShowPanel(helpPanels[0]);
    }
}

void CStatusBar::ProcessConfirmPanel()
{
    if (!IsOpen(confirmPanel))
        return;
    panelOpen = true;
    if (TakeKey(VK_RETURN) || TakeKey(VK_SPACE))
        Click(confirmPanel, BUTTON_YES);
    else if (TakeKey(VK_ESCAPE))
        Click(confirmPanel, BUTTON_NO);

    if (IsClicked(confirmPanel, BUTTON_YES)) {
        panelOpen = false;
        input.lastKeyDown = 0;
        requestedSection = &sectionMenu;
    } else if (IsClicked(confirmPanel, BUTTON_NO)) {
        ResumeGame(confirmPanel);
    }
}

/// Closes the last open panel.
void CStatusBar::ResumeGame(CMenu& panel)
{
    panelOpen = false;
    HidePanel(panel);
    leftPanel.isActive = true;
    SetPaused(false);
}

void CStatusBar::ProcessHelpPages()
{
    const auto open = std::ranges::find_if(helpPanels, IsOpen);
    if (open == std::end(helpPanels))
        return;
    const int page = static_cast<int>(open - std::begin(helpPanels));
    panelOpen = true;
    if (IsDismissKey(input.lastKeyDown)) {
        input.lastKeyDown = 0;
        Click(*open, HelpCloseId(page));
    }

    if (IsClicked(*open, HelpCloseId(page))) {
        HidePanel(*open);
        ShowPanel(pausedPanel);
        return;
    }
    for (int other = 0; other < HELP_PAGES; ++other) {
        if (other == page || !IsClicked(*open, HelpTabId(page, other)))
            continue;
        HidePanel(*open);
        ShowPanel(helpPanels[other]);
        return;
    }
}
