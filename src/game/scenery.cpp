#include "app/frame_images.h"
#include "game/pond.h"
#include "gfx/image.h"

SceneryState scenery;

namespace
{
constexpr int DAY_FRAMES = 100 * FRAMES_PER_SECOND; ///< from dusk to dawn, from dawn to dusk
constexpr int TRANSITION_FRAMES = 50;               ///< of a dusk or dawn
constexpr int NIGHT_OPACITY = 50;                   ///< of the day picture, darkened to night
constexpr int INTRO_FRAMES = 31;

constexpr int MOON_SIZE = 130;
constexpr int MOON_OPACITY = 80;
constexpr int MOON_FADE_Y = 101; ///< above it the moon fades out

/// Darkens `light` by that grey.
bool SubtractGrey(CImage& light, int grey)
{
    CImage shade;
    if (!shade.Create(light.width, light.height))
        return false;
    shade.Fill(Rgb565(grey, grey, grey));
    shade.blit = BlitSub;
    shade.Draw(light);
    return true;
}

/// The pond wraps around: a light near an edge also shines in from the opposite one.
void DrawWrapped(CImage& light, CImage& target, int x, int y)
{
    for (const int right : { 0, -POND_SIZE, POND_SIZE })
        for (const int down : { 0, -POND_SIZE, POND_SIZE })
            light.Draw(target, x + right, y + down);
}
}

void CPond::CountDay()
{
    ++dayTimer;
    if (dayTimer == DAY_FRAMES) {
        transition = TRANSITION_FRAMES;
        dayTimer = 0;
    }
}

void CPond::DrawBackground(CImage& pondPicture)
{
    const int brightness = isDay ? transition : TRANSITION_FRAMES - transition; // of a dusk or dawn
    if (transition != 0)
        DrawDarkenedDay(pondPicture, NIGHT_OPACITY + 4 * brightness);
    else
        (isDay ? dayBackground : nightBackground).Draw(pondPicture);
    if (transition != 0 || !isDay)
        DrawSnakeLights(pondPicture);
}

/// Day and night change with the last frame of a dusk or dawn.
void CPond::StepTransition()
{
    if (transition == 0)
        return;
    --transition;
    if (transition == 0)
        isDay = !isDay;
}

bool CPond::MakeNightBackground()
{
    if (!nightBackground.Create(backBuffer.width, backBuffer.height))
        return false;
    nightBackground.blit = BlitCopy;
    DrawDarkenedDay(nightBackground, NIGHT_OPACITY);
    return true;
}

void CPond::DrawDarkenedDay(CImage& target, int opacity)
{
    dayBackground.blit = BlitFadeToBlack;
    dayBackground.opacity = opacity;
    dayBackground.Draw(target);
    dayBackground.blit = BlitCopy;
}

void CPond::DrawSnakeLights(CImage& pondPicture)
{
    CImage light;
    if (!light.Copy(lightImage) || !DimLight(light))
        return;
    light.blit = BlitAdd;
    for (const CSnake& each : SnakesInPlay()) {
        int x = 0;
        int y = 0;
        if (each.SnakeGetHead(x, y))
            DrawWrapped(light, pondPicture, x - (light.width - CELL_SIZE) / 2, y - (light.height - CELL_SIZE) / 2);
    }
}

/// The lights grow during a dusk, up to its last frame, and wane during a dawn, from its second on.
bool CPond::DimLight(CImage& light) const
{
    if (transition == 0)
        return true;
    return SubtractGrey(light, 5 * (isDay ? transition - 1 : TRANSITION_FRAMES - transition));
}

/// The end of a game: the background sinks into black, by night from the night picture.
void CPond::DrawEndFade(CImage& pondPicture)
{
    if (!gameOver && fadeOut > 0)
        DrawDarkenedDay(pondPicture, isDay ? 2 * fadeOut : NIGHT_OPACITY * fadeOut / FADE_OUT_START);
}

void CPond::StepEndFade()
{
    if (gameOver || fadeOut <= 0)
        return;
    fadeOut -= 2;
    if (fadeOut < 0) {
        fadeOut = 0;
        gameOver = true;
    }
}

/// The start of a game: the pond brightens out of black and nothing moves. True while it does.
bool CPond::DrawIntro(CImage& pondPicture)
{
    if (introFrames >= INTRO_FRAMES)
        return false;
    ++introFrames;
    CImage faded;
    if (faded.Copy(pondPicture)) {
        faded.blit = BlitFadeToBlack;
        faded.opacity = 8 * introFrames;
        faded.Draw(backBuffer, POND_LEFT, 0);
    }
    statusBar.StatusBarProcess(backBuffer);
    return true;
}

/// The moon of this night; the two take turns.
CImage& CPond::Moon()
{
    return moonImages[scenery.moonToggle ? 0 : 1];
}

/// At night a moon rises from below the pond, fades in, stays, and fades out near the top.
void CPond::FadeMoon()
{
    if (isDay)
        return;
    if (transition == 1) { // the frame before dawn ends: ready for the next night
        scenery.moonToggle = !scenery.moonToggle;
        scenery.moonY = POND_SIZE + MOON_SIZE;
        moonImages[0].opacity = 0;
        moonImages[1].opacity = 0;
    }
    CImage& moon = Moon();
    if (scenery.moonY >= POND_SIZE / 2 && scenery.moonY <= POND_SIZE && moon.opacity < MOON_OPACITY)
        ++moon.opacity;
    else if (scenery.moonY < MOON_FADE_Y && moon.opacity >= 1)
        --moon.opacity;
}

void CPond::DrawMoon(CImage& pondPicture)
{
    if (!isDay)
        Moon().Draw(pondPicture, (POND_SIZE - MOON_SIZE) / 2, scenery.moonY);
}

void CPond::RaiseMoon()
{
    if (!isDay)
        scenery.moonY -= 2;
}
