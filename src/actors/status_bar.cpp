#include "actors/status_bar.h"
#include "app/loading_steps.h"
#include "app/log.h"

bool CStatusBar::DataLoad(bool& done)
{
    static constexpr LoadingStep<CStatusBar> steps[] = {
        { &CStatusBar::LoadFont, "CStatusBar::DataLoad 0" },
        { &CStatusBar::LoadImages, "CStatusBar::DataLoad 1" },
        { &CStatusBar::CreatePanels, "CStatusBar::DataLoad 2" },
    };
    return DoLoadingStep(*this, steps, loadStep, done);
}

bool CStatusBar::LoadFont()
{
    constexpr int FONT_HEIGHT = 13;
    constexpr int FONT_WIDTH = 5;
    fontHandle = CreateVerdana(FONT_HEIGHT, FONT_WIDTH);
    return font.TextImageCreate(fontHandle, TEXT_GREY_LEVELS, TEXT_GLYPH_SLOTS);
}

bool CStatusBar::LoadImages()
{
    const std::span<CImage> sets[] = { images };
    return LoadPictures(sets, statusPictures);
}

void CStatusBar::DataUnload()
{
    font.TextImageFree();
    if (fontHandle != nullptr)
        DeleteObject(fontHandle);
    fontHandle = nullptr;
    for (CImage& image : images)
        image.Free();
    for (const PanelRow& row : PanelRows())
        row.panel.MenuFree();
    loadStep = 0;
    WriteLog("CStatusBar::DataUnload");
}

void CStatusBar::StatusBarReset(CPond* owner)
{
    pond = owner;
    level = 1;
    target = FIRST_TARGET;
    prevTarget = 0;
    coilWait = 0;
    countUp = 0;
    panelOpen = false;
    berryCountdown = 0;
    lifeMark[0] = lifeMark[1] = 0;
    for (const PanelRow& row : PanelRows())
        row.panel.Hide();
    leftPanel.Show();
}
