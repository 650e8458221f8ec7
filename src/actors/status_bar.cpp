#include "actors/status_bar.h"

#include "actors/status_bar_items.h"
#include "app/loading_steps.h"
#include "app/log.h"
#include "game/geometry.h"
#include "gfx/error.h"

#include <iterator>
#include <span>

namespace
{
constexpr int FONT_HEIGHT = 13;
constexpr int FONT_WIDTH = 5;

enum class Place { CORNER, SCREEN_CENTRE, POND_CENTRE };

struct PanelRow {
    int image;
    Place place;
};

/// By PanelId.
constexpr PanelRow panelRows[] = {
    { IMAGE_STRIP, Place::CORNER },           { IMAGE_PAUSED, Place::SCREEN_CENTRE },
    { IMAGE_CONFIRM, Place::SCREEN_CENTRE },  { IMAGE_LEVEL_CLEARED, Place::POND_CENTRE },
    { IMAGE_NEXT_LEVEL, Place::POND_CENTRE }, { IMAGE_HELP, Place::SCREEN_CENTRE },
    { IMAGE_HELP + 1, Place::SCREEN_CENTRE }, { IMAGE_HELP + 2, Place::SCREEN_CENTRE },
    { IMAGE_HELP + 3, Place::SCREEN_CENTRE }, { IMAGE_GAME_OVER, Place::POND_CENTRE },
};
static_assert(std::size(panelRows) == STATUS_PANELS);

/// A button lies over one that is part of the panel's picture.
struct ButtonRow {
    int panel;
    int id;
    MenuBox box;
};

constexpr ButtonRow buttonRows[] = {
    { PANEL_LEFT, BUTTON_PAUSE, { 10, 433, 39, 14 } }, { PANEL_LEFT, BUTTON_HELP, { 61, 433, 39, 14 } },
    { PANEL_LEFT, BUTTON_QUIT, { 112, 433, 39, 14 } }, { PANEL_PAUSED, BUTTON_RESUME, { 18, 63, 54, 14 } },
    { PANEL_PAUSED, BUTTON_HELP, { 88, 63, 54, 14 } }, { PANEL_CONFIRM, BUTTON_YES, { 18, 63, 54, 14 } },
    { PANEL_CONFIRM, BUTTON_NO, { 88, 63, 54, 14 } },
};

constexpr int NUMBER_LENGTH = 6; ///< digits of a level or a target

struct TextRow {
    int id;
    MenuBox box;
};

/// On the next-level panel.
constexpr TextRow textRows[] = {
    { TEXT_LEVEL, { 4, 25, 152, 14 } },
    { TEXT_TARGET, { 4, 70, 152, 14 } },
};

POINT PanelPosition(const CImage& picture, Place place)
{
    switch (place) {
    case Place::SCREEN_CENTRE:
        return { (SCREEN_WIDTH - picture.width) / 2, (SCREEN_HEIGHT - picture.height) / 2 };
    case Place::POND_CENTRE:
        return { (POND_SIZE - picture.width) / 2 + POND_LEFT, (POND_SIZE - picture.height) / 2 };
    case Place::CORNER:
        break;
    }
    return { 0, 0 };
}
}

CStatusBar::~CStatusBar()
{
    DataUnload();
}

std::array<CMenu*, STATUS_PANELS> CStatusBar::Panels()
{
    return { &leftPanel,     &pausedPanel,   &confirmPanel,  &levelClearedPanel, &nextLevelPanel,
             &helpPanels[0], &helpPanels[1], &helpPanels[2], &helpPanels[3],     &gameOverPanel };
}

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
    fontHandle = CreateVerdana(FONT_HEIGHT, FONT_WIDTH);
    return font.TextImageCreate(fontHandle, TEXT_GREY_LEVELS, TEXT_GLYPH_SLOTS);
}

bool CStatusBar::LoadImages()
{
    if (!AllocateImages(images, STATUS_IMAGES))
        return false;
    const std::span<CImage> sets[] = { { images.get(), STATUS_IMAGES } };
    return LoadPictures(sets, statusPictures);
}

bool CStatusBar::CreatePanels()
{
    const auto panels = Panels();
    bool ok = true;
    for (int i = 0; i < STATUS_PANELS; ++i) {
        CImage& picture = images[panelRows[i].image];
        const POINT position = PanelPosition(picture, panelRows[i].place);
        ok = ok && panels[i]->MenuCreate(static_cast<int>(position.x), static_cast<int>(position.y), &picture);
    }
    for (const ButtonRow& row : buttonRows)
        ok = ok && panels[row.panel]->AddHotArea(row.id, row.box);
    for (int page = 0; page < HELP_PAGES; ++page)
        ok = ok && AddHelpButtons(helpPanels[page], BUTTON_HELP_FIRST, page);
    for (const auto& [id, box] : textRows)
        ok = ok && nextLevelPanel.AddText(id, box.x, box.y, box.width, box.height, nullptr, &font, 0xFFFF, 0x0000,
                                          ALIGN_CENTRE, TEXT_ENTRY, NUMBER_LENGTH);
    return ok || FailWith(ENGINE_ALLOCATE_MEMORY);
}

void CStatusBar::DataUnload()
{
    font.TextImageFree();
    if (fontHandle != nullptr)
        DeleteObject(fontHandle);
    fontHandle = nullptr;
    images.reset();
    for (CMenu* panel : Panels())
        panel->MenuFree();
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
    for (CMenu* panel : Panels())
        panel->Hide();
    leftPanel.Show();
}
