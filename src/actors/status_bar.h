#pragma once

#include "gfx/image.h"
#include "gfx/text_image.h"
#include "menu/menu.h"

#include <cstdint>
#include <memory>

class CPond;

constexpr int STATUS_IMAGES = 17;
constexpr int HELP_PAGES = 4;

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
    /// One frame: draws strip and panels onto `target` and handles their keys and buttons.
    void StatusBarProcess(CImage& target);
    /// The level's target score has been reached.
    void StatusBarLevelCleared();
    /// Every snake in play is out.
    void StatusBarGameOver();

    int32_t level = 1;
    int32_t target = 500;       ///< score at which the level is cleared
    int32_t prevTarget = 0;     ///< the level's before
    int32_t coilWait = 0;       ///< frames that the level-cleared panel rests
    int32_t countUp = 0;        ///< frames left of a new level's count-up, 75 at its start
    bool panelOpen = false;     ///< paused, confirm or help: the mouse cursor stays visible
    int32_t berryCountdown = 0; ///< frames left of a new level's berry drop
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
};
