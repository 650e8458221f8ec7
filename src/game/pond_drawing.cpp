#include "game/pond.h"

#include "game/water.h"
#include "gfx/blit.h"
#include "sound/sound.h"

#include <algorithm>

int32_t blinkCounter = 0;

namespace
{
constexpr int BLINK_FRAMES = 10; ///< shown during the first half
constexpr int LANDED_SHADOW = 8; ///< pixels down and right of a landed object

// Popups: opacity at the start, and what it loses and they rise in a frame.
constexpr int POPUP_OPACITY = 255;
constexpr int POPUP_FADE = 10;
constexpr int POPUP_RISE = 2;
}

void CPond::DrawPondObjects(CImage& pondPicture)
{
    DrawObjectShadows(pondPicture);
    DrawLandedObjects(pondPicture);
    DrawStartHighlight(pondPicture);
    StepLasers(pondPicture);
}

/// A falling berry's shadow closes in. An object down right hides the shadow; for the last column that is, in index
/// order, the first cell two rows below.
void CPond::DrawObjectShadows(CImage& pondPicture)
{
    for (int i = 0; i < CELL_COUNT; ++i) {
        const Cell& cell = cells[i];
        const int below = i + CELL_COLUMNS + 1;
        if (!cell.occupied || (IsCell(below) && cells[below].occupied))
            continue;
        const int distance = cell.growth / 4 * 8 + LANDED_SHADOW;
        shadowImage.Draw(pondPicture, cell.x + distance, cell.y + distance);
    }
}

void CPond::DrawLandedObjects(CImage& pondPicture)
{
    for (Cell& cell : cells) {
        if (cell.IsRipeBerry())
            DrawRipeBerry(cell, pondPicture);
        else if (cell.IsStone())
            objectImages[STONE_IMAGE].Draw(pondPicture, cell.x, cell.y);
    }
}

void CPond::DrawRipeBerry(Cell& cell, CImage& pondPicture)
{
    objectImages[cell.colour].Draw(pondPicture, cell.x, cell.y);
    if (cell.splashed)
        return;
    cell.splashed = true;
    SplashCell(cell.x, cell.y, BERRY_SPLASH);
    SoundStop(SOUND_DROP); // its place is kept: a drop that still sounds goes on, an ended one starts from the front
    SoundPlay(SOUND_DROP, false);
}

/// The berries blink by being added to themselves.
void CPond::DrawStartHighlight(CImage& pondPicture)
{
    for (const int32_t index : highlight) {
        if (index < 0 || !cells[index].ripe || blinkCounter % BLINK_FRAMES >= BLINK_FRAMES / 2)
            continue;
        CImage glow;
        if (!glow.Copy(objectImages[cells[index].colour]))
            continue;
        glow.blit = BlitAdd;
        glow.Draw(pondPicture, cells[index].x, cells[index].y);
    }
    ++blinkCounter;
}

/// Falling berries come into focus for 26 frames, then land.
void CPond::DrawGrowingBerries(CImage& screen)
{
    for (Cell& cell : cells) {
        if (!cell.occupied || cell.growth < 1)
            continue;
        const int frame = GROWTH_FRAMES - cell.growth / 2;
        CImage& image = growthImages[cell.colour * GROWTH_FRAMES + frame];
        image.opacity = 255 - 9 * cell.growth;
        image.Draw(screen, cell.x + POND_LEFT, cell.y);
        if (cell.growth / 2 == 1) {
            cell.growth = 0;
            cell.ripe = true;
        } else {
            --cell.growth;
        }
    }
}

void CPond::ShowPopup(int x, int y, int kind)
{
    Popup* slot = std::ranges::find(popups, false, &Popup::active);
    if (slot != std::end(popups))
        *slot = { .active = true, .x = x, .y = y, .kind = kind, .opacity = POPUP_OPACITY };
}

void CPond::DrawPopups(CImage& screen)
{
    for (Popup& popup : popups) {
        if (!popup.active)
            continue;
        CImage& image = popupImages[popup.kind];
        image.opacity = popup.opacity;
        image.Draw(screen, popup.x + POND_LEFT, popup.y);
        popup.opacity -= POPUP_FADE;
        popup.y -= POPUP_RISE;
        popup.active = popup.opacity >= 0;
    }
}
