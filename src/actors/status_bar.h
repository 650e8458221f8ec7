#pragma once

#include "actors/status_bar_pictures.h"
#include "gfx/image.h"
#include "gfx/text_image.h"
#include "menu/help_page.h"
#include "menu/menu.h"

#include <array>
#include <cstdint>
#include <span>

class CPond;

/// Where a panel is made; some slide from there.
enum class PanelPlace { CORNER, SCREEN_CENTRE, POND_CENTRE };

constexpr int FIRST_TARGET = 500;   ///< score that clears level 1
constexpr int COUNT_UP_FRAMES = 75; ///< of the target's figure at a new level

/// The strip left of the pond, the message panels over the game, and the progression of levels. The pond holds it by
/// value and drives it. Coordinates are the screen's.
class CStatusBar
{
public:
    /// Buttons and texts of the panels.
    enum ItemId : int {
        BUTTON_PAUSE = 0,
        BUTTON_HELP = 1, ///< on the strip and on the paused panel
        BUTTON_QUIT = 2,
        BUTTON_RESUME = 3,
        BUTTON_YES = 4,
        BUTTON_NO = 5,
        TEXT_LEVEL = 6,
        TEXT_TARGET = 7,
        BUTTON_HELP_FIRST = 8, ///< those of the help pages
    };

    virtual ~CStatusBar() { DataUnload(); }

    /// One loading step a call, until `done` is set. False when the font or a picture cannot be loaded.
    bool DataLoad(bool& done);
    void DataUnload();
    /// A new game: level 1, only the strip is shown.
    void StatusBarReset(CPond* owner);
    /// One frame: draws strip and panels onto `screen` and handles their keys and buttons.
    void StatusBarProcess(CImage& screen);
    /// The level's target score has been reached.
    void StatusBarLevelCleared();
    /// Every snake in play is out.
    void StatusBarGameOver();

    int32_t level = 1;
    int32_t target = FIRST_TARGET; ///< score at which the level is cleared
    int32_t prevTarget = 0;        ///< the level's before
    int32_t coilWait = 0;          ///< frames that the level-cleared panel rests
    int32_t countUp = 0;           ///< frames left of a new level's count-up, COUNT_UP_FRAMES at its start
    bool panelOpen = false;        ///< paused, confirm or help: the mouse cursor stays visible
    int32_t berryCountdown = 0;    ///< frames left of a new level's berry drop
    CMenu leftPanel;
    CMenu pausedPanel;
    CMenu confirmPanel;
    CMenu levelClearedPanel;
    CMenu nextLevelPanel;
    CMenu helpPanels[HELP_PAGES];
    CMenu gameOverPanel;
    CImage images[STATUS_IMAGES];
    CTextImage font;
    CPond* pond = nullptr;    ///< not owned
    int32_t lifeMark[2] = {}; ///< per player, score at the last extra life

private:
    static constexpr int PANELS = 6 + HELP_PAGES;
    /// All about a panel.
    struct PanelRow {
        CMenu& panel;
        int picture;
        PanelPlace place;
        void (CStatusBar::*process)();       ///< each frame in which it takes input
        std::span<const MenuButton> buttons; ///< over those that are part of its picture
    };
    /// The panels in the order in which they are drawn and handled.
    std::array<PanelRow, PANELS> PanelRows();
    bool LoadFont(); // the steps of loading
    bool LoadImages();
    bool CreatePanels();
    void CreatePanel(const PanelRow& row);
    void AddLevelTexts();

    bool IsAnyCoiling() const;
    bool IsHelpVisible() const;
    bool IsInGame(int player) const; ///< players count from 0
    void SetPaused(bool paused);
    void ResumeGame(CMenu& panel);
    void ProcessPanels();
    void ProcessStrip();
    void ProcessPaused();
    void ProcessConfirm();
    void ProcessLevelCleared();
    void ProcessNextLevel();
    void ProcessHelp();
    void ProcessGameOver();
    void ClearBerries();
    void StatusBarNextLevel();
    void DropLevelBerries();

    void AwardExtraLives();

    void StatusBarDraw(CImage& screen);
    void StepFigures();
    void DrawPlayer(CImage& screen, int player);
    void DrawStreak(CImage& screen, int player);
    void DrawCensus(CImage& screen);
    int ShownTarget() const;
    int ProgressHeight() const;
    void DrawProgress(CImage& screen);
    void DrawNumber(CImage& screen, int x, int y, uint16_t colour, int value);
    void DrawNumberCentred(CImage& screen, int centreX, int y, int value);

    int32_t loadStep = 0;       ///< of DataLoad
    HFONT fontHandle = nullptr; ///< selected into `font`
    int32_t lengthBlink = 0;    ///< frames that the strip has been drawn; lengths and streaks blink by them
    int32_t streakBlink = 0;
};
