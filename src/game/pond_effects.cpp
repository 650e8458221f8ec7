#include "game/pond.h"

#include "game/water.h"
#include "sound/sound.h"

#include <algorithm>
#include <array>
#include <functional>
#include <numbers>

namespace
{
constexpr int BURST_FRAMES = 20;
constexpr int GOLDEN_RING_RADIUS = 64;
constexpr int RING_STEP = 3;       ///< pixels a frame
constexpr int POPUP_OPACITY = 255; ///< at the start
constexpr int POPUP_FADE = 10;     ///< a frame
constexpr int POPUP_RISE = 2;      ///< pixels a frame

void MoveLaser(Laser& laser)
{
    const Direction direction = DirectionOfHeading(laser.heading);
    if (direction == Direction::NONE)
        return;
    laser.x += RowOf(direction).dx * CELL_SIZE;
    laser.y += RowOf(direction).dy * CELL_SIZE;
}

struct RingPoint {
    int x;
    int y;
    int waterRadius;
};

/// In the order in which they strike. The diagonal's single precision decides which pixel, so which cell, is struck.
std::array<RingPoint, 8> RingPoints(const Shockwave& ring)
{
    const float diagonal = static_cast<float>(std::numbers::sqrt2 * ring.radius * 0.5);
    const auto x = static_cast<float>(ring.x);
    const auto y = static_cast<float>(ring.y);
    const int east = static_cast<int>(x + diagonal);
    const int west = static_cast<int>(x - diagonal);
    const int north = static_cast<int>(y - diagonal);
    const int south = static_cast<int>(y + diagonal);
    return { {
        { ring.x, ring.y - ring.radius, 4 },
        { ring.x, ring.y + ring.radius, 4 },
        { ring.x - ring.radius, ring.y, 2 },
        { ring.x + ring.radius, ring.y, 2 },
        { east, north, 2 },
        { east, south, 2 },
        { west, south, 2 },
        { west, north, 2 },
    } };
}

constexpr bool IsOnPond(int x, int y)
{
    return x >= 0 && x < POND_SIZE && y >= 0 && y < POND_SIZE;
}
}

void CPond::FireLaser(int x, int y, int heading)
{
    Laser* slot = std::find_if_not(std::begin(lasers), std::end(lasers), std::mem_fn(&Laser::active));
    if (slot != std::end(lasers))
        *slot = { .active = true, .x = x, .y = y, .heading = heading };
}

void CPond::StepLasers()
{
    for (Laser& laser : lasers) {
        if (!laser.active)
            continue;
        if (laser.hit)
            StepBurst(laser);
        else
            StepFlight(laser);
    }
}

/// One cell further. Lasers do not wrap around the pond's edges, and fly over growing berries.
void CPond::StepFlight(Laser& laser)
{
    laser.frame = (laser.frame + 1) % LASER_FLIGHT_IMAGES;
    MoveLaser(laser);
    if (!IsOnPond(laser.x, laser.y)) {
        laser.active = false;
        return;
    }
    Cell& cell = cells[CellAt(laser.x, laser.y)];
    if (!cell.IsLanded())
        return;
    laser.hit = true;
    HitCell(cell);
}

/// A golden berry goes up in a ring; anything else becomes one, and splashes anew.
void CPond::HitCell(Cell& cell)
{
    SoundPlay(SOUND_WARP, false);
    if (cell.ripe && cell.colour == GOLDEN) {
        cell.occupied = false;
        shockwave = { cell.x + CELL_SIZE / 2, cell.y + CELL_SIZE / 2, 0, GOLDEN_RING_RADIUS };
        return;
    }
    cell.ripe = true;
    cell.splashed = false;
    cell.colour = GOLDEN;
}

/// The counter runs on from the flight's, so a burst is up to three frames shorter than BURST_FRAMES.
void CPond::StepBurst(Laser& laser)
{
    ++laser.frame;
    if (laser.frame == BURST_FRAMES)
        laser.active = false;
}

/// Eight points of the ring travel outward.
void CPond::StepShockwave()
{
    if (shockwave.radius >= shockwave.maxRadius)
        return;
    for (const RingPoint& point : RingPoints(shockwave))
        StrikeRingPoint(point.x, point.y, point.waterRadius);
    shockwave.radius += RING_STEP;
}

void CPond::StrikeRingPoint(int x, int y, int radius)
{
    DisturbWater(x, y, radius, 255);
    const int index = CellAt(x, y);
    if (!IsCell(index) || !cells[index].IsLanded())
        return;
    cells[index].occupied = false;
    SplashCell(cells[index].x, cells[index].y, LIGHT_SPLASH);
}

void CPond::ShowPopup(int x, int y, int kind)
{
    Popup* slot = std::find_if_not(std::begin(popups), std::end(popups), std::mem_fn(&Popup::active));
    if (slot != std::end(popups))
        *slot = { .active = true, .x = x, .y = y, .kind = kind, .opacity = POPUP_OPACITY };
}

void CPond::RaisePopups()
{
    for (Popup& popup : popups) {
        if (!popup.active)
            continue;
        popup.opacity -= POPUP_FADE;
        popup.y -= POPUP_RISE;
        popup.active = popup.opacity >= 0;
    }
}
