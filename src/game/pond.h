#pragma once

#include "actors/snake.h"
#include "actors/status_bar.h"
#include "game/geometry.h"
#include "game/pond_pictures.h"
#include "game/pond_records.h"
#include "gfx/image.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// Frames that the start-up highlight has been drawn; it blinks by it. Outlives a game.
extern int32_t blinkCounter;

/// The game world: cells with berries and stones, lasers, shock wave, popups, the snakes and the status bar, and the
/// scenery around them. One object lives for the whole run, inside the game scene.
class CPond
{
public:
    virtual ~CPond() { UnDataLoad(); }

    /// Sets up a game of one (0) or two (1) players; keys are virtual-key codes up, down, left, right. False when a
    /// snake's image cannot be loaded.
    bool NewGame(int playerMode, const uint32_t* keys1, const uint32_t* keys2);
    /// One frame of play, composed onto `backBuffer`; `key` is the virtual-key code of this frame's key, 0 for none.
    /// Always true.
    bool GameFrame(CImage& pondPicture, int key);
    /// End of play: frees the snakes' images and stops the pond's sounds.
    void GameEnd();

    /// One loading step a call, until `done` is set. False when a picture cannot be loaded.
    bool DataLoad(bool& done);
    void UnDataLoad();

    // What snakes and status bar ask for. Positions are pond pixels.

    /// A new falling berry on a free cell far from every head, searched from `cell` on; either may be RANDOM.
    void PlaceBerry(int colour, int cell);
    /// Its cell becomes the newest stone.
    void TurnToStone(int x, int y);
    /// Eats the ripe berry in the head's cell: true, and its colour. Otherwise false. `eyeFrame` is 1 when eating,
    /// 2..5 with a berry beside the head, else 0.
    bool EatAt(int x, int y, int& colour, int heading, int& eyeFrame);
    /// More than one occupant in the cell, counting snake segments and stones.
    bool IsOccupied(int x, int y);
    /// The oldest stones become ripe berries of random colour.
    void FadeStones(int count);
    /// Starts a laser; dropped when both slots are taken.
    void FireLaser(int x, int y, int heading);
    /// Starts a score popup; dropped when all slots are taken.
    void ShowPopup(int x, int y, int kind);
    std::span<CSnake> SnakesInPlay() { return { snake, static_cast<size_t>(players) + 1 }; }
    int Score();                        ///< of all players
    int CountBerries(int colour) const; ///< ripe ones
    int CountStones() const;

    int32_t players = 0; ///< 0 = one-player game, 1 = two-player game
    CSnake snake[2];
    CStatusBar statusBar;
    bool gameOver = false; ///< the end-of-game fade has finished
    int32_t fadeOut = 0;   ///< end-of-game fade counter, FADE_OUT_START falling by 2 a frame
    Cell cells[CELL_COUNT];
    Shockwave shockwave;
    CImage dayBackground;
    CImage nightBackground;
    CImage objectImages[OBJECT_IMAGES];
    CImage shadowImage;
    CImage lightImage;
    CImage laserImages[LASER_IMAGES];
    CImage popupImages[POPUP_IMAGES];
    CImage growthImages[GROWTH_IMAGES]; ///< index colour * GROWTH_FRAMES + frame - 1
    CImage moonImages[MOON_IMAGES];
    Laser lasers[2];
    Popup popups[20];
    bool isDay = false;
    int32_t transition = 0;             ///< frames left of a dusk or dawn
    int32_t dayTimer = 0;               ///< frames since the last change of day and night
    int32_t highlightNext = 0;          ///< next slot to record into, -1 when recording is over
    int32_t highlight[HIGHLIGHTS] = {}; ///< cells of the start-up highlight, -1 = empty
    int32_t introFrames = 0;            ///< frames of the start fade-in, 0..31

private:
    /// How many occupants each cell has.
    using CountGrid = std::array<int, CELL_COUNT>;

    CountGrid CountSnakes();
    bool InitSnakes(const uint32_t* keys1, const uint32_t* keys2);
    void ClearCells();

    // The steps of a frame. Those with `pondPicture` draw below the water, those with `screen` above it.
    void DrawPausedFrame();
    void CheckLevel();
    void DrawSnakeShadows(CImage& pondPicture);
    void ProcessSnakes(CImage& pondPicture, int key);
    void DrawArrows(CImage& screen);

    // Cells
    int FindBerryCell(int start);
    bool IsFarFromHeads(int cell);
    void RecordHighlight(int cell);
    void ClearHighlight(int cell);
    bool HasRipeBerry(int column, int row) const;
    int EyeFrameBeside(int cell, int heading) const;

    // Lasers and shock wave
    void StepShockwave();
    void StrikeRingPoint(int x, int y, int radius);
    void StepLasers();
    void StepFlight(Laser& laser);
    void StepBurst(Laser& laser);
    void HitCell(Cell& cell);

    // Objects
    void DrawPondObjects(CImage& pondPicture);
    void DrawObjectShadows(CImage& pondPicture);
    void DrawLandedObjects(CImage& pondPicture);
    void DrawStartHighlight(CImage& pondPicture);
    void DrawLasers(CImage& pondPicture);
    void SplashLandedBerries();
    void DrawGrowingBerries(CImage& screen);
    void GrowBerries();
    void DrawPopups(CImage& screen);
    void RaisePopups();

    // Scenery
    void CountDay();
    void DrawBackground(CImage& pondPicture);
    void StepTransition();
    bool MakeNightBackground();
    void DrawDarkenedDay(CImage& target, int opacity);
    void DrawSnakeLights(CImage& pondPicture);
    bool DimLight(CImage& light) const;
    void DrawEndFade(CImage& pondPicture);
    void StepEndFade();
    bool DrawIntro(CImage& pondPicture);
    CImage& Moon();
    void FadeMoon();
    void DrawMoon(CImage& pondPicture);
    void RaiseMoon();

    // Resources
    std::array<std::span<CImage>, POND_IMAGE_SETS> ImageSets();
    bool LoadSounds();
    bool LoadBackgrounds();
    bool LoadImages();
};
