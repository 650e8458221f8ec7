#include "support/state_checksum.h"

#include "app/random.h"
#include "game/water.h"

namespace
{
/// FNV-1a over numbers, 64 bits. Field by field: records have gaps.
class Checksum
{
public:
    template <typename... Numbers>
    void Add(Numbers... numbers)
    {
        (AddOne(static_cast<uint64_t>(numbers)), ...);
    }
    uint64_t Value() const { return value; }

private:
    void AddOne(uint64_t number)
    {
        value ^= number;
        value *= 0x100000001B3;
        value ^= value >> 29; // a whole number goes in at once, so its high bits must reach the low ones
    }

    uint64_t value = 0xCBF29CE484222325;
};

void AddSnake(Checksum& sum, const CSnake& s)
{
    sum.Add(s.isOut, s.isPaused, s.isWaiting, s.startPressed, s.slowDownPending, s.isActive, s.length, s.arrowBlink);
    sum.Add(s.eyeFrame, s.isDying, s.deathFrames, s.movedFrames, s.lives, s.lastColour, s.streak, s.pendingEffect);
    sum.Add(s.score, s.rainTimer, s.shrinkCount, s.speedUpTimer, s.turnCount, s.speed, s.frameCount, s.player);
    for (int i = 0; i < s.length; ++i)
        sum.Add(s.segments[i].x, s.segments[i].y, s.segments[i].dir);
    for (int i = 0; i < s.turnCount; ++i)
        sum.Add(s.turnQueue[i]);
}

void AddPanel(Checksum& sum, const CMenu& panel)
{
    sum.Add(panel.x, panel.y, panel.isVisible, panel.isActive);
}

void AddStatusBar(Checksum& sum, const CStatusBar& bar)
{
    sum.Add(bar.level, bar.target, bar.prevTarget, bar.coilWait, bar.countUp, bar.panelOpen, bar.berryCountdown);
    sum.Add(bar.lifeMark[0], bar.lifeMark[1]);
    AddPanel(sum, bar.leftPanel);
    AddPanel(sum, bar.pausedPanel);
    AddPanel(sum, bar.confirmPanel);
    AddPanel(sum, bar.levelClearedPanel);
    AddPanel(sum, bar.nextLevelPanel);
    for (const CMenu& page : bar.helpPanels)
        AddPanel(sum, page);
    AddPanel(sum, bar.gameOverPanel);
}

void AddObjects(Checksum& sum, const CPond& pond)
{
    for (const Cell& cell : pond.cells)
        sum.Add(cell.x, cell.y, cell.occupied, cell.ripe, cell.colour, cell.age, cell.growth, cell.splashed);
    for (const Laser& laser : pond.lasers)
        sum.Add(laser.active, laser.x, laser.y, laser.heading, laser.frame, laser.hit);
    for (const Popup& popup : pond.popups)
        sum.Add(popup.active, popup.x, popup.y, popup.kind, popup.opacity);
    sum.Add(pond.shockwave.x, pond.shockwave.y, pond.shockwave.radius, pond.shockwave.maxRadius);
    for (const int32_t cell : pond.highlight)
        sum.Add(cell);
    sum.Add(pond.highlightNext, blinkCounter);
}

void AddScenery(Checksum& sum, const CPond& pond)
{
    sum.Add(pond.isDay, pond.transition, pond.dayTimer, pond.introFrames, pond.fadeOut, pond.gameOver);
    sum.Add(scenery.moonToggle, scenery.moonY, pond.moonImages[0].opacity, pond.moonImages[1].opacity);
}

void AddWater(Checksum& sum)
{
    const int heights = water.fieldBytes / static_cast<int>(sizeof(int16_t));
    for (int i = 0; i < heights; ++i)
        sum.Add(water.current[i], water.previous[i]);
}
}

uint64_t StateChecksum(const CPond& pond)
{
    Checksum sum;
    sum.Add(pond.players, RandomState());
    for (const CSnake& snake : pond.snake)
        AddSnake(sum, snake);
    AddStatusBar(sum, pond.statusBar);
    AddObjects(sum, pond);
    AddScenery(sum, pond);
    AddWater(sum);
    return sum.Value();
}
