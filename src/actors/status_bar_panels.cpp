#include "actors/status_bar.h"

#include "app/frame_images.h"
#include "app/input.h"
#include "app/scenes.h"
#include "game/pond.h"
#include "platform/window.h"

#include <algorithm>
#include <functional>

namespace
{
void Click(CMenu& panel, int button)
{
    panel.FindButton(button)->clicked = true;
}

bool IsClicked(CMenu& panel, int button)
{
    return panel.FindButton(button)->clicked;
}
}

bool CStatusBar::IsHelpVisible() const
{
    return std::any_of(std::begin(helpPanels), std::end(helpPanels), std::mem_fn(&CMenu::isVisible));
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
        StepFigures();
        AwardExtraLives();
    }
    for (const PanelRow& row : PanelRows())
        if (&row.panel != &leftPanel)
            row.panel.MenuProcess(screen);
    ProcessPanels();
    DropLevelBerries();
}

void CStatusBar::ProcessStrip()
{
    if (!pond->snake[0].isPaused && input.TakeKey({ VK_SPACE }))
        Click(leftPanel, BUTTON_PAUSE);
    if (!confirmPanel.isVisible && input.TakeKey({ VK_ESCAPE }))
        Click(leftPanel, BUTTON_QUIT);
    if (!IsHelpVisible() && input.TakeKey({ VK_F1 }))
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
    opened->Show();
    leftPanel.isActive = false;
    SetPaused(true);
    captureScreen = true;
    input.DropPresses();
}

void CStatusBar::ProcessPaused()
{
    panelOpen = true;
    if (pond->snake[0].isPaused && input.TakeKey({ VK_SPACE, VK_RETURN, VK_ESCAPE }))
        Click(pausedPanel, BUTTON_RESUME);
    if (!IsHelpVisible() && input.TakeKey({ VK_F1 }))
        Click(pausedPanel, BUTTON_HELP);

    if (IsClicked(pausedPanel, BUTTON_RESUME)) {
        ResumeGame(pausedPanel);
    } else if (IsClicked(pausedPanel, BUTTON_HELP)) {
        pausedPanel.Hide();
        helpPanels[0].Show();
        input.DropPresses();
    }
}

void CStatusBar::ProcessConfirm()
{
    panelOpen = true;
    if (input.TakeKey({ VK_RETURN, VK_SPACE }))
        Click(confirmPanel, BUTTON_YES);
    else if (input.TakeKey({ VK_ESCAPE }))
        Click(confirmPanel, BUTTON_NO);

    if (IsClicked(confirmPanel, BUTTON_YES)) {
        panelOpen = false;
        input.DropPresses();
        RequestMenu();
    } else if (IsClicked(confirmPanel, BUTTON_NO)) {
        ResumeGame(confirmPanel);
    }
}

/// Closes the last open panel.
void CStatusBar::ResumeGame(CMenu& panel)
{
    panelOpen = false;
    panel.Hide();
    leftPanel.isActive = true;
    SetPaused(false);
    input.DropPresses();
}

void CStatusBar::ProcessHelp()
{
    CMenu* open = std::find_if(std::begin(helpPanels), std::end(helpPanels), std::mem_fn(&CMenu::IsOpen));
    panelOpen = true;
    const int next = ProcessHelpPage(*open, BUTTON_HELP_FIRST, static_cast<int>(open - std::begin(helpPanels)));
    if (next == HELP_STAY)
        return;
    open->Hide();
    (next == HELP_CLOSE ? pausedPanel : helpPanels[next]).Show();
    input.DropPresses();
}
