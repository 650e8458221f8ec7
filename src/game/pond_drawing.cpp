#include "game/pond.h"

#include "gfx/image.h"

int32_t blinkCounter = 0;

namespace
{
constexpr int BLINK_FRAMES = 10; ///< shown during the first half
constexpr int LANDED_SHADOW = 8; ///< pixels down and right of a landed object
constexpr int FLIGHT_OFFSET = 7; ///< flight pictures are 30 pixels wide, a cell 16
constexpr int FALLING_FADE = 9;  ///< opacity that each frame of growth still to come takes: just short of all at 28
}

void CPond::DrawPondObjects(CImage& pondPicture)
{
    DrawObjectShadows(pondPicture);
    DrawLandedObjects(pondPicture);
    DrawStartHighlight(pondPicture);
    DrawLasers(pondPicture);
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
    for (const Cell& cell : cells) {
        if (cell.IsLanded())
            objectImages[cell.ripe ? cell.colour : STONE_IMAGE].Draw(pondPicture, cell.x, cell.y);
    }
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

void CPond::DrawLasers(CImage& pondPicture)
{
    for (const Laser& laser : lasers) {
        if (!laser.active)
            continue;
        if (!laser.hit) {
            laserImages[laser.frame].Draw(pondPicture, laser.x - FLIGHT_OFFSET, laser.y - FLIGHT_OFFSET);
            continue;
        }
        CImage& image = laserImages[LASER_FLIGHT_IMAGES + laser.frame % LASER_BURST_IMAGES];
        image.Draw(pondPicture, laser.x - (image.width - CELL_SIZE) / 2, laser.y - (image.height - CELL_SIZE) / 2);
    }
}

/// Falling berries come into focus and out of the haze.
void CPond::DrawGrowingBerries(CImage& screen)
{
    for (const Cell& cell : cells) {
        if (!cell.IsFalling())
            continue;
        const int frame = GROWTH_FRAMES - cell.growth / 2;
        CImage& image = growthImages[cell.colour * GROWTH_FRAMES + frame];
        image.opacity = 255 - FALLING_FADE * cell.growth;
        image.Draw(screen, cell.x + POND_LEFT, cell.y);
    }
}

void CPond::DrawPopups(CImage& screen)
{
    for (const Popup& popup : popups) {
        if (!popup.active)
            continue;
        CImage& image = popupImages[popup.kind];
        image.opacity = popup.opacity;
        image.Draw(screen, popup.x + POND_LEFT, popup.y);
    }
}
