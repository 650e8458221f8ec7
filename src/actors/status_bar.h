#pragma once

#include "actors/status_bar_pictures.h"
#include "gfx/image.h"
#include "gfx/text_image.h"
#include "menu/help_page.h"
#include "menu/menu.h"

#include <array>
#include <cstdint>
#include <memory>

class CPond;

constexpr int STATUS_PANELS = 10;
constexpr int FIRST_TARGET = 500;   ///< score that clears level 1
constexpr int COUNT_UP_FRAMES = 75; ///< of the target's figure at a new level

/// The strip left of the pond, the message panels over the game, and the progression of levels. The pond holds it by
/// value and drives it. Coordinates are the screen's.
class CStatusBar
{
public:
    CStatusBar() = default;
    virtual ~CStatusBar();

    /// One loading step a call, until `done` is set. False when a font or a file cannot be had.
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
    std::unique_ptr<CImage[]> images;
    CTextImage font;
    CPond* pond = nullptr;    ///< not owned
    int32_t lifeMark[2] = {}; ///< per player, score at the last extra life

private:
    std::array<CMenu*, STATUS_PANELS> Panels(); ///< in the order in which they are handled
    bool LoadFont();                            // the steps of loading
    bool LoadImages();
    bool CreatePanels();

    bool IsAnyCoiling() const;
    bool IsHelpVisible() const;
    bool IsInGame(int player) const; ///< players count from 0
    void SetPaused(bool paused);
    void ResumeGame(CMenu& panel);
    void ProcessStripButtons();
    void ProcessPausedPanel();
    void ProcessConfirmPanel();
    void ProcessLevelClearedPanel();
    void ProcessNextLevelPanel();
    void ProcessHelpPages();
    void ProcessGameOverPanel();
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
